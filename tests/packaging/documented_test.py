"""Holds the manuals and the completions against what the programs themselves say: documented_test.py
PREFIX. Asks the bus to start the installed Nocturo, through its service file, on simulated displays."""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

PREFIX = pathlib.Path(sys.argv.pop())
BIN = PREFIX / "bin"
SHARE = PREFIX / "share"
COMPLETIONS = {
    "bash": SHARE / "bash-completion/completions/nocturoctl",
    "zsh": SHARE / "zsh/site-functions/_nocturoctl",
    "fish": SHARE / "fish/vendor_completions.d/nocturoctl.fish",
}


def say(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def words(path, pattern):
    return set(re.findall(pattern, path.read_text(), re.MULTILINE))


def on_the_bus():
    """What a running Nocturo answers: its state, which is that of a fresh user, the ranges of its
    settings, the names of its effects, what it offers the bus."""
    with tempfile.TemporaryDirectory() as home:
        services = pathlib.Path(home) / "data/dbus-1/services"
        services.mkdir(parents=True)
        service = (SHARE / "dbus-1/services/org.nocturo.Nocturo.service").read_text()
        (services / "org.nocturo.Nocturo.service").write_text(
            re.sub("^(Exec=.*)$", r"\1 --display-services=simulated", service, flags=re.MULTILINE))
        environment = {
            "PATH": f"{BIN}:{os.environ['PATH']}", "HOME": home, "XDG_RUNTIME_DIR": home,
            "XDG_DATA_HOME": f"{home}/data", "XDG_CONFIG_HOME": home, "XDG_STATE_HOME": home,
            "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
        script = ("dbus-send --session --print-reply --dest=org.freedesktop.DBus / "
                  "org.freedesktop.DBus.StartServiceByName string:org.nocturo.Nocturo uint32:0 >&2 && "
                  "nocturoctl reset EffectActive && nocturoctl status --json && nocturoctl effects && "
                  # Beyond every range, which the refusal tells; nothing else takes it either.
                  "for key in $(nocturoctl status --json | grep -o '\"[A-Z]\\w*\":' | tr -d '\":'); do "
                  "nocturoctl set $key 1e9 2>&1 || true; done && "
                  "dbus-send --session --print-reply=literal --dest=org.nocturo.Nocturo /org/nocturo/Nocturo "
                  "org.freedesktop.DBus.Introspectable.Introspect && nocturoctl quit")
        said = say("dbus-run-session", "--", "sh", "-c", script, env=environment)
        # What the bus starts speaks through the same pipe.
        state, effects = said[said.index("{"):].split("\n", 1)
        interface = re.search(r"<node.*</node>", effects, re.DOTALL).group()
        ranges = dict(re.findall(r'"(\w+)" takes a number from (\S+ to \S+)\.$', effects, re.MULTILINE))
        return (json.loads(state), ranges, set(re.findall(r"\] +(\S+)", effects)), members(interface))


def members(introspection):
    interface = ElementTree.fromstring(introspection).find("interface[@name='org.nocturo.Nocturo1']")
    return {(member.tag, *sorted(member.items()),
             *(tuple(sorted(argument.items())) for argument in member.iter("arg")))
            for member in interface if member.tag != "annotation"}


class Documented(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.state, cls.ranges, cls.effects, cls.members = on_the_bus()
        cls.verbs = words_of_help = set(
            re.findall(r"^  ([a-z]+) ", say(BIN / "nocturoctl", "--help"), re.MULTILINE))
        assert {"on", "toggle", "quit"} <= words_of_help

    def test_the_bus_is_offered_what_the_contract_says(self):
        contract = pathlib.Path(__file__).parents[2] / "src/bus/org.nocturo.Nocturo1.xml"
        self.assertEqual(self.members, members(contract.read_text()))
        self.assertGreater(len(self.members), 20)

    def test_manual_of_nocturoctl_tells_of_every_verb(self):
        found = words(SHARE / "man/man1/nocturoctl.1", r"^\.It Ic ([a-z]+)")
        self.assertEqual(found, self.verbs, "nocturoctl.1")

    def test_manual_of_nocturo_tells_of_every_setting_effect_and_option(self):
        manual = SHARE / "man/man1/nocturo.1"
        text = manual.read_text()
        settings = re.search(r"^\.Sh SETTINGS$(.*?)^\.Sh ", text, re.M | re.S).group(1)
        listed = " ".join(re.findall(r"^\.It Sy (.*)$", settings, re.MULTILINE))
        self.assertEqual(set(listed.replace(",", " ").split()), set(self.state["settings"]))
        effects = re.search(r"^\.Sh EFFECTS$(.*?)^\.Sh ", text, re.M | re.S).group(1)
        self.assertEqual(set(re.findall(r"^\.It Cm (\S+)", effects, re.MULTILINE)), self.effects)
        for option in set(re.findall(r"^  --([a-z-]+)", say(BIN / "nocturo", "--help"), re.MULTILINE)):
            self.assertIn(rf"Fl \-{option}", text)
            for shell, path in COMPLETIONS.items():
                self.assertIn(option, path.with_name(path.name.replace("nocturoctl", "nocturo"))
                              .read_text(), shell)

    def test_manual_tells_type_range_and_default_of_every_setting(self):
        text = (SHARE / "man/man1/nocturo.1").read_text().replace("\\-", "-")
        self.assertGreater(len(self.ranges), 2)
        for key, value in self.state["settings"].items():
            kind = ("True or false" if isinstance(value, bool) else "A list" if isinstance(value, list)
                    else "A text" if isinstance(value, str)
                    else f"A number from {self.ranges[key]}" if key in self.ranges else "A whole number")
            default = "empty" if value in ([], "") else f"{value:g}" if kind.startswith("A n") else str(value).lower()
            self.assertIn(f"\n.It Sy {key}\n{kind}, {default} by default.\n", text)

    def test_completions_know_every_verb_setting_and_effect(self):
        bash = COMPLETIONS["bash"].read_text()
        verbs = set(re.search(r"verbs='([^']*)'", bash).group(1).split())
        self.assertEqual(verbs, self.verbs, "bash")
        self.assertEqual(words(COMPLETIONS["fish"], r"__fish_use_subcommand -a ([a-z]+)"), self.verbs,
                         "fish")
        zsh = re.search(r"verbs=\((.*?)^\)", COMPLETIONS["zsh"].read_text(), re.M | re.S).group(1)
        self.assertEqual(set(re.findall(r"'([a-z]+):", zsh)), self.verbs, "zsh")
        switches = {key for key, value in self.state["settings"].items() if isinstance(value, bool)}
        for shell, pattern in {"bash": r"switches='([^']*)'", "zsh": r"([\w|]+)\)\s+compadd true false",
                               "fish": r"set -l switches (.*)"}.items():
            listed = re.search(pattern, COMPLETIONS[shell].read_text()).group(1)
            self.assertEqual(set(re.findall(r"\w+", listed)), switches, shell)
        for shell, path in COMPLETIONS.items():
            text = set(re.findall(r"[\w-]+", path.read_text()))
            self.assertLessEqual(self.effects | set(self.state["settings"]), text, shell)
            keys = {word for word in text if re.match("ND[A-Z]|HotKey|Affected|Activate", word)}
            self.assertLessEqual(keys, set(self.state["settings"]), shell)


if __name__ == "__main__":
    unittest.main(verbosity=2)
