#pragma once

#include "base/bus.h"
#include "bus/bus_object.h"
#include "bus/callers_present.h"
#include "bus/launcher_face.h"
#include "bus/told_state.h"
#include "displays/fades.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nocturo {

class Automation;
class ChosenLook;
class EventLoop;
class KeepColors;
class NotificationCenter;
class SettingsKeeper;
class UserInterface;

/// The application's object on the session bus; its interface and what each member does stand in
/// org.nocturo.Nocturo1.xml.
class BusFace {
  public:
    /// All must outlive the face. Puts the object on the bus at once, because whoever sees the name
    /// may call; calls wait until the event loop runs. `bus` may be null.
    BusFace(NDAppController& controller, DefaultsStore& defaults, NotificationCenter& localCenter,
            const DisturbanceWatch& disturbances, UserInterface& userInterface,
            KeepColors& keepColors, ChosenLook& chosenLook, Automation& automation, const Bus* bus,
            EventLoop& loop);
    ~BusFace();
    BusFace(const BusFace&) = delete;
    BusFace& operator=(const BusFace&) = delete;

    /// Names and reads keys by this layout, which must outlive the face; null for none.
    void setKeyboardLayout(KeyboardLayout* layout);

    /// Keeps the settings while calls are served; without it they are in memory alone.
    void setSettingsKeeper(SettingsKeeper* keeper) { keeper_ = keeper; }

    /// Announces changes from now on. Each is announced from the event loop, once everybody else
    /// who follows it has acted.
    void announceChanges();

    /// Whether calls that change something may be carried out.
    BusAnswer whetherReady() const;

    /// Launchers' calls are more than the launch from now on.
    void launchDidFinish();

  private:
    struct Table;

    BusAnswer setActive(bool active);
    BusAnswer fadeNext(double seconds);
    Fades::Change wishedChange();
    std::string caller() const;
    BusAnswer toggle();
    BusAnswer pause(const std::string& words);
    BusAnswer resume();
    BusAnswer addSchedulePoint(const std::string& words);
    BusAnswer removeSchedulePoint(std::uint32_t index);
    BusAnswer addRule(const std::string& words);
    BusAnswer moveRule(std::uint32_t from, std::uint32_t to);
    BusAnswer removeRule(std::uint32_t index);
    int holdPause(sd_bus_message* call, const std::string& command);
    static int pauseWhileConnected(sd_bus_message* call, void* self, sd_bus_error* error);
    static int pauseWhileRunning(sd_bus_message* call, void* self, sd_bus_error* error);
    BusAnswer addEffects(const std::vector<std::string>& names);
    BusAnswer removeEffects(const std::vector<std::string>& names);
    BusAnswer toggleEffects(const std::vector<std::string>& names);
    BusAnswer setEffects(const std::vector<std::string>& names);
    BusAnswer setTemperature(std::uint32_t kelvin);
    BusAnswer stepTemperature(std::int32_t kelvin);
    BusAnswer setDim(double level);
    BusAnswer stepDim(double by);
    BusAnswer setTint(double hue, double vividness);
    BusAnswer changeTint(double hue, bool byHue, double vividness, bool byVividness);
    BusAnswer stepSetting(const std::string& key, double by);
    BusAnswer applyLook(const std::string& name);
    BusAnswer applyNextLook();
    BusAnswer applyPreviousLook();
    BusAnswer goBackFromLook();
    BusAnswer saveLook(const std::string& name);
    BusAnswer renameLook(const std::string& name, const std::string& to);
    BusAnswer deleteLook(const std::string& name);
    BusAnswer setDisplayLook(std::uint32_t display, const std::string& look);
    BusAnswer moveLook(const std::string& name, std::uint32_t place);
    BusAnswer setSetting(const std::string& key, const std::optional<PropertyValue>& value);
    BusAnswer resetSetting(const std::string& key);
    BusAnswer saveSettings();
    BusAnswer toggleScreen(std::uint32_t display);
    BusAnswer addScreens(const std::vector<std::int64_t>& displays);
    BusAnswer removeScreens(const std::vector<std::int64_t>& displays);
    BusAnswer affectAllScreens();
    BusAnswer keepColors();
    BusAnswer setHotKey(const std::string& text);
    BusAnswer openFile(const std::string& path);
    BusAnswer saveFile(const std::string& path);
    BusAnswer provideActivationToken(const std::string& token);
    BusAnswer showPreferences();
    BusAnswer showAboutBox();
    BusAnswer show(const std::function<void()>& window);
    BusAnswer reopen();
    BusAnswer quit();
    static int renderPreview(sd_bus_message* call, void* self, sd_bus_error* error);
    static int tellProperty(sd_bus* bus, const char* path, const char* interface,
                            const char* property, sd_bus_message* reply, void* self,
                            sd_bus_error* error);

    void announceSoon(const std::vector<std::string_view>& properties);
    void announce();

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    UserInterface& userInterface_;
    KeepColors& keepColors_;
    ChosenLook& chosenLook_;
    Automation& automation_;
    const Bus* bus_;
    EventLoop& loop_;
    ToldState state_;
    KeyboardLayout* layout_ = nullptr;
    SettingsKeeper* keeper_ = nullptr;
    LauncherFace launcherFace_;
    std::unique_ptr<BusSlot> object_;
    CallersPresent pausing_;
    std::pair<std::string, Fades::Length> nextFade_; // of that caller
    BusDictionary announced_;
    std::set<std::string_view> unannounced_; // what may have changed, to be looked at soon
};

} // namespace nocturo
