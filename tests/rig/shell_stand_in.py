#!/usr/bin/python3
"""Stands for GNOME Shell, or for Cinnamon, on a session bus: shell_stand_in.py JSON

The keys of JSON, all optional:
  names     "gnome" (default) or "cinnamon"
  outputs   how many there are (2), vendor  who made them
  size      entries of their ramps (256), lut  of those that are lent (size)
  lends     ok, busy (another program calibrates), never; without it there is nothing to lend
  ramps     what a ramp is answered with: its own (default), none, uneven
  words     true for a shell that answers questions for its displays with words

`Shown` tells of every output o for its own ramp, i for a falling one, ? for any other, in capitals
while it is lent. `Change` is what a change of the displays does, `TakeBack` ends what is lent.
"""

import json
import sys

import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
options = json.loads(sys.argv[1])
base = {"gnome": "org.gnome.Mutter", "cinnamon": "org.cinnamon.Muffin"}[options.get("names", "gnome")]
path = "/" + base.replace(".", "/")
DISPLAYS, COLORS, CALIBRATION = (base + end for end in
                                 (".DisplayConfig", ".ColorManager", ".ColorManager.Calibration"))
bus = dbus.SessionBus()
count = options.get("outputs", 2)
size = options.get("size", 256)
own = [entry * 65535 // max(size - 1, 1) for entry in range(size)]
shown = {crtc: [own] * 3 for crtc in range(count)}
lent = {}


def refuse(name, text):
    raise dbus.DBusException(text, name="org.freedesktop.DBus.Error." + name)


class Shell(dbus.service.Object):
    serial = 7

    @dbus.service.method(DISPLAYS, out_signature="ua(uxiiiiiuaua{sv})a(uxiausauaua{sv})a(uxuudu)ii")
    def GetResources(self):
        empty = dbus.Dictionary(signature="sv")
        crtcs = [(i, i, 320 * i, 0, 320, 240, 0, 0, dbus.Array([0], "u"), empty)
                 for i in range(count)]
        about = dbus.Dictionary({"vendor": options.get("vendor", "ACME"), "edid": 5}, signature="sv")
        outputs = [(i, i, i, dbus.Array([i], "u"), "DP-%d" % (i + 1), dbus.Array([], "u"),
                    dbus.Array([], "u"), about) for i in range(count)]
        return self.serial, crtcs, outputs, dbus.Array([], "(uxuudu)"), 4096, 4096

    def check(self, serial):
        if serial != self.serial:
            refuse("AccessDenied", "The requested configuration is based on stale information")

    @dbus.service.method(DISPLAYS, "uu", "aqaqaq")
    def GetCrtcGamma(self, serial, crtc):
        self.check(serial)
        odd = {"none": ([], [], []), "uneven": (own, own[1:], own)}
        return odd.get(options.get("ramps"), shown[crtc])

    @dbus.service.method(DISPLAYS, "uuaqaqaq")
    def SetCrtcGamma(self, serial, crtc, red, green, blue):
        self.check(serial)
        shown[crtc] = [red, green, blue]

    @dbus.service.method(DISPLAYS)
    def Change(self):
        self.serial += 1
        self.MonitorsChanged()

    @dbus.service.method(DISPLAYS)
    def TakeBack(self):
        for calibration in list(lent.values()):
            calibration.Stopped()
            calibration.Stop()

    @dbus.service.signal(DISPLAYS)
    def MonitorsChanged(self):
        pass

    @dbus.service.method(DISPLAYS, out_signature="s")
    def Shown(self):
        letters = ""
        for crtc, ramp in shown.items():
            falls = ramp[0][0] == 65535 and ramp[0][-1] == 0
            letter = "o" if ramp[0] == own else "i" if falls else "?"
            letters += letter.upper() if crtc in lent else letter
        return letters


class Words(Shell):
    """What no program expects."""

    @dbus.service.method(DISPLAYS, out_signature="as")
    def GetResources(self):
        return ["none", "of", "your", "business"]


class Calibration(dbus.service.Object):
    def __init__(self, crtc):
        self.crtc = crtc
        lent[crtc] = self
        super().__init__(bus, "%s/Calibration%d" % (path, crtc))

    @dbus.service.method(dbus.PROPERTIES_IFACE, "ss", "v")
    def Get(self, interface, name):
        return dbus.UInt32(options.get("lut", size))

    @dbus.service.method(CALIBRATION, "aqaqaq")
    def SetCrtcGammaLut(self, red, green, blue):
        shown[self.crtc] = [red, green, blue]

    @dbus.service.method(CALIBRATION)
    def Stop(self):
        if lent.pop(self.crtc, None) is not None:
            shown[self.crtc] = [own] * 3
            self.remove_from_connection()

    @dbus.service.signal(CALIBRATION)
    def Stopped(self):
        pass


class Colors(dbus.service.Object):
    @dbus.service.method(COLORS, "s", "o", sender_keyword="sender")
    def CalibrateMonitor(self, connector, sender):
        if options["lends"] == "never":
            refuse("Failed", "Device cannot be calibrated")
        crtc = int(connector.split("-")[1]) - 1
        if options["lends"] == "busy" or crtc in lent:
            refuse("Failed", "Monitor is already being calibrated")
        calibration = Calibration(crtc)
        bus.watch_name_owner(sender, lambda owner: owner or calibration.Stop())
        return calibration.__dbus_object_path__


kept = [(Words if options.get("words") else Shell)(bus, path + "/DisplayConfig")]
if "lends" in options:
    kept += [Colors(bus, path + "/ColorManager"), dbus.service.BusName(COLORS, bus)]
kept.append(dbus.service.BusName(DISPLAYS, bus))
GLib.MainLoop().run()
