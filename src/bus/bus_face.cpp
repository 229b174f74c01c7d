#include "bus/bus_face.h"

#include "app/app_controller.h"
#include "app/disturbance_watch.h"
#include "app/keep_colors.h"
#include "app/user_interface.h"
#include "automation/automation.h"
#include "base/activation_token.h"
#include "base/event_loop.h"
#include "base/log.h"
#include "base/notification_center.h"
#include "base/notification_names.h"
#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "hotkeys/hot_key_grant.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "settings/defaults_store.h"
#include "settings/settings_keeper.h"
#include "settings/settings_keys.h"
#include "settings/settings_table.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

tl::unexpected<BusFailure> noSetting(const std::string& key) {
    return refusal(translated("There is no setting \"%@\".", {key}));
}

// Relative ones would be so to the directory that Nocturo happened to be started in.
bool isAbsolute(const std::string& path) {
    return path.starts_with('/');
}

tl::unexpected<BusFailure> notAbsolute(const std::string& path) {
    return refusal(translated("\"%@\" is no absolute path.", {path}));
}

} // namespace

struct BusFace::Table {
    // Everybody on the session bus is its user.
    static constexpr auto kFree = SD_BUS_VTABLE_UNPRIVILEGED;
    static constexpr auto kTold = SD_BUS_VTABLE_PROPERTY_EMITS_CHANGE;

    static const std::array<sd_bus_vtable, 75> members;
};

const std::array<sd_bus_vtable, 75> BusFace::Table::members = {{
    SD_BUS_VTABLE_START(0),
    SD_BUS_PROPERTY("Active", "b", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Paused", "b", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Ruler", "s", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("RulesUntil", "x", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("RuledLook", "s", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Rule", "s", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Schedule", "aa{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Rules", "aa{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("DisplayServices", "s", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Displays", "aa{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("AbsentDisplays", "aa{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Effects", "as", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("DimLevel", "d", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("ColorFilterHue", "d", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("ColorFilterVividness", "d", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Temperature", "u", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Look", "s", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Looks", "aa{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("AffectedScreenSet", "ax", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("HotKey", "a{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Settings", "a{sv}", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Disturbances", "u", tellProperty, 0, kTold),
    SD_BUS_PROPERTY("Disturber", "s", tellProperty, 0, kTold),
    SD_BUS_METHOD_WITH_ARGS("SetActive", SD_BUS_ARGS("b", active), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setActive>, kFree),
    SD_BUS_METHOD_WITH_ARGS("Toggle", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::toggle>, kFree),
    SD_BUS_METHOD_WITH_ARGS("FadeNext", SD_BUS_ARGS("d", seconds), SD_BUS_NO_RESULT,
                            kServe<&BusFace::fadeNext>, kFree),
    SD_BUS_METHOD_WITH_ARGS("Pause", SD_BUS_ARGS("s", words), SD_BUS_NO_RESULT,
                            kServe<&BusFace::pause>, kFree),
    SD_BUS_METHOD_WITH_ARGS("PauseWhileConnected", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            pauseWhileConnected, kFree),
    SD_BUS_METHOD_WITH_ARGS("PauseWhileRunning", SD_BUS_ARGS("s", command), SD_BUS_NO_RESULT,
                            pauseWhileRunning, kFree),
    SD_BUS_METHOD_WITH_ARGS("Resume", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT, kServe<&BusFace::resume>,
                            kFree),
    SD_BUS_METHOD_WITH_ARGS("AddSchedulePoint", SD_BUS_ARGS("s", words), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::addSchedulePoint>, kFree),
    SD_BUS_METHOD_WITH_ARGS("RemoveSchedulePoint", SD_BUS_ARGS("u", index), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::removeSchedulePoint>, kFree),
    SD_BUS_METHOD_WITH_ARGS("AddRule", SD_BUS_ARGS("s", words), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::addRule>, kFree),
    SD_BUS_METHOD_WITH_ARGS("MoveRule", SD_BUS_ARGS("u", from, "u", to), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::moveRule>, kFree),
    SD_BUS_METHOD_WITH_ARGS("RemoveRule", SD_BUS_ARGS("u", index), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::removeRule>, kFree),
    SD_BUS_METHOD_WITH_ARGS("AddEffects", SD_BUS_ARGS("as", names), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::addEffects>, kFree),
    SD_BUS_METHOD_WITH_ARGS("RemoveEffects", SD_BUS_ARGS("as", names), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::removeEffects>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ToggleEffects", SD_BUS_ARGS("as", names), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::toggleEffects>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SetEffects", SD_BUS_ARGS("as", names), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setEffects>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SetTemperature", SD_BUS_ARGS("u", kelvin), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setTemperature>, kFree),
    SD_BUS_METHOD_WITH_ARGS("StepTemperature", SD_BUS_ARGS("i", kelvin), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::stepTemperature>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SetDim", SD_BUS_ARGS("d", level), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setDim>, kFree),
    SD_BUS_METHOD_WITH_ARGS("StepDim", SD_BUS_ARGS("d", by), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::stepDim>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SetTint", SD_BUS_ARGS("d", hue, "d", vividness), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setTint>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ChangeTint",
                            SD_BUS_ARGS("d", hue, "b", byHue, "d", vividness, "b", byVividness),
                            SD_BUS_NO_RESULT, kServeWhenReady<&BusFace::changeTint>, kFree),
    SD_BUS_METHOD_WITH_ARGS("StepSetting", SD_BUS_ARGS("s", key, "d", by), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::stepSetting>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ApplyLook", SD_BUS_ARGS("s", name), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::applyLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ApplyNextLook", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::applyNextLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ApplyPreviousLook", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::applyPreviousLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("GoBackFromLook", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::goBackFromLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SaveLook", SD_BUS_ARGS("s", name), SD_BUS_NO_RESULT,
                            kServe<&BusFace::saveLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("RenameLook", SD_BUS_ARGS("s", name, "s", to), SD_BUS_NO_RESULT,
                            kServe<&BusFace::renameLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("DeleteLook", SD_BUS_ARGS("s", name), SD_BUS_NO_RESULT,
                            kServe<&BusFace::deleteLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("MoveLook", SD_BUS_ARGS("s", name, "u", place), SD_BUS_NO_RESULT,
                            kServe<&BusFace::moveLook>, kFree),
    SD_BUS_SIGNAL_WITH_ARGS("LookChanged", SD_BUS_ARGS("s", name), 0),
    SD_BUS_METHOD_WITH_ARGS("SetDisplayLook", SD_BUS_ARGS("u", id, "s", name), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setDisplayLook>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SetSetting", SD_BUS_ARGS("s", key, "v", value), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setSetting>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ResetSetting", SD_BUS_ARGS("s", key), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::resetSetting>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SaveSettings", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::saveSettings>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ToggleScreen", SD_BUS_ARGS("u", id), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::toggleScreen>, kFree),
    SD_BUS_METHOD_WITH_ARGS("AddScreens", SD_BUS_ARGS("ax", ids), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::addScreens>, kFree),
    SD_BUS_METHOD_WITH_ARGS("RemoveScreens", SD_BUS_ARGS("ax", ids), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::removeScreens>, kFree),
    SD_BUS_METHOD_WITH_ARGS("AffectAllScreens", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::affectAllScreens>, kFree),
    SD_BUS_METHOD_WITH_ARGS("KeepColors", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::keepColors>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SetHotKey", SD_BUS_ARGS("s", text), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::setHotKey>, kFree),
    SD_BUS_METHOD_WITH_ARGS("OpenFile", SD_BUS_ARGS("s", path), SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::openFile>, kFree),
    SD_BUS_METHOD_WITH_ARGS("SaveFile", SD_BUS_ARGS("s", path), SD_BUS_NO_RESULT,
                            kServe<&BusFace::saveFile>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ProvideActivationToken", SD_BUS_ARGS("s", token), SD_BUS_NO_RESULT,
                            kServe<&BusFace::provideActivationToken>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ShowPreferences", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::showPreferences>, kFree),
    SD_BUS_METHOD_WITH_ARGS("ShowAboutBox", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServe<&BusFace::showAboutBox>, kFree),
    SD_BUS_METHOD_WITH_ARGS("RenderPreview", SD_BUS_ARGS("u", id), SD_BUS_RESULT("ay", picture),
                            renderPreview, kFree),
    SD_BUS_METHOD_WITH_ARGS("Reopen", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT,
                            kServeWhenReady<&BusFace::reopen>, kFree),
    SD_BUS_METHOD_WITH_ARGS("Quit", SD_BUS_NO_ARGS, SD_BUS_NO_RESULT, kServe<&BusFace::quit>,
                            kFree),
    SD_BUS_VTABLE_END,
}};

BusFace::BusFace(NDAppController& controller, DefaultsStore& defaults,
                 NotificationCenter& localCenter, const DisturbanceWatch& disturbances,
                 UserInterface& userInterface, KeepColors& keepColors, ChosenLook& chosenLook,
                 Automation& automation, const Bus* bus, EventLoop& loop)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter),
      userInterface_(userInterface), keepColors_(keepColors), chosenLook_(chosenLook),
      automation_(automation), bus_(bus), loop_(loop),
      state_(controller, defaults, disturbances, chosenLook, automation),
      launcherFace_(controller, bus, loop), pausing_([this] { automation_.releasePause(); }) {
    if (bus_ != nullptr) {
        object_ = bus_->addObject(kObjectPath, kNocturoInterface, Table::members.data(), this);
    }
}

BusFace::~BusFace() {
    localCenter_.removeObserver(this);
}

void BusFace::setKeyboardLayout(KeyboardLayout* layout) {
    layout_ = layout;
    state_.setKeyboardLayout(layout);
}

void BusFace::announceChanges() {
    for (const std::string_view name : ToldState::names()) {
        if (!ToldState::isOfLooks(name)) { // nobody is to wait for their files at a start
            announced_.emplace(name, state_.property(name));
        }
    }
    localCenter_.addObserver(
        this, NSUserDefaultsDidChangeNotification,
        [this](const Subjects& settings) { announceSoon(ToldState::namesConcernedBy(settings)); });
    for (const auto name :
         {kEffectActivationNotification, kDisturbanceNotification, kLooksDidChangeNotification,
          NSApplicationDidChangeScreenParametersNotification, kHotKeyGrantNotification}) {
        localCenter_.addObserver(this, name, [this] { announceSoon(ToldState::names()); });
    }
}

void BusFace::launchDidFinish() {
    announceSoon(ToldState::names()); // what the launch itself changed without a word
    launcherFace_.launchDidFinish();
}

int BusFace::tellProperty(sd_bus* /*bus*/, const char* /*path*/, const char* /*interface*/,
                          const char* property, sd_bus_message* reply, void* self,
                          sd_bus_error* /*error*/) {
    appendValue(reply, static_cast<BusFace*>(self)->state_.property(property));
    return 0;
}

BusAnswer BusFace::whetherReady() const {
    return nocturo::whetherReady(controller_);
}

BusAnswer BusFace::setActive(bool active) {
    const auto change = wishedChange();
    controller_.setEffectActive(active, true);
    return {};
}

BusAnswer BusFace::toggle() {
    const auto change = wishedChange();
    controller_.toggleGlobalEffect();
    return {};
}

BusAnswer BusFace::setSetting(const std::string& key, const std::optional<PropertyValue>& value) {
    const Setting* setting = settingNamed(key);
    if (setting == nullptr) {
        return noSetting(key);
    }
    if (!value) {
        return refusal(translated("No setting takes a value of this type."));
    }
    if (auto problem = problemWith(*setting, *value)) {
        return refusal(*std::move(problem));
    }
    defaults_.setObject(*value, setting->key);
    return {};
}

BusAnswer BusFace::resetSetting(const std::string& key) {
    const Setting* setting = settingNamed(key);
    if (setting == nullptr) {
        return noSetting(key);
    }
    defaults_.removeObjectForKey(setting->key);
    return {};
}

BusAnswer BusFace::saveSettings() {
    auto saved = keeper_ != nullptr ? keeper_->save() : Result<void>();
    return saved ? BusAnswer() : failure(std::move(saved.error().text));
}

BusAnswer BusFace::keepColors() {
    keepColors_.keep();
    return {};
}

BusAnswer BusFace::setHotKey(const std::string& text) {
    HotKeyCombination combination; // both numbers 0: no hot key
    if (!text.empty()) {
        const auto result = parseHotKeyText(text, layout_);
        if (!result) {
            return refusal(result.error().text + " " + hotKeyTextSyntax());
        }
        combination = *result;
        if (layout_ != nullptr &&
            layout_->isServers(combination.keyCode,
                               HXCarbonModifierFlags(combination.modifierFlags) >> 8U)) {
            return failure(translated("The display server keeps %@ to itself, so it cannot be the "
                                      "hot key.",
                                      {text}));
        }
    }
    const DefaultsStore::Batch oneChange(defaults_);
    defaults_.setInteger(combination.keyCode, kHotKeyCode);
    defaults_.setInteger(static_cast<std::int64_t>(combination.modifierFlags), kHotKeyModifiers);
    return {};
}

BusAnswer BusFace::openFile(const std::string& path) {
    if (!isAbsolute(path)) {
        return notAbsolute(path);
    }
    if (!userInterface_.applyEffectFile(path)) {
        return failure(translated("\"%@\" is not an effect document.", {path}));
    }
    return {};
}

BusAnswer BusFace::saveFile(const std::string& path) {
    if (!isAbsolute(path)) {
        return notAbsolute(path);
    }
    if (const auto saved = userInterface_.saveEffectFile(path); !saved) {
        return failure(
            translated("Could not save settings at \"%@\": %@.", {path, saved.error().text}));
    }
    return {};
}

BusAnswer BusFace::provideActivationToken(const std::string& token) {
    keepActivationToken(token);
    return {};
}

BusAnswer BusFace::showPreferences() {
    return show([this] { controller_.openPreferences(); });
}

BusAnswer BusFace::showAboutBox() {
    return show([this] { controller_.openAboutBox(); });
}

BusAnswer BusFace::show(const std::function<void()>& window) {
    const std::string why = userInterface_.whyNoWindows();
    if (!why.empty()) {
        return failure(why);
    }
    window();
    return {};
}

BusAnswer BusFace::reopen() {
    controller_.applicationShouldHandleReopen(false);
    return {};
}

BusAnswer BusFace::quit() {
    logInfo(kLogApp, "Somebody on the session bus has Nocturo quit.");
    loop_.callSoon([this] { loop_.quit(); }); // so that the caller has its answer first
    return {};
}

void BusFace::announceSoon(const std::vector<std::string_view>& properties) {
    if (bus_ != nullptr && unannounced_.empty() && !properties.empty()) {
        loop_.callSoon([this] { announce(); });
    }
    unannounced_.insert(properties.begin(), properties.end());
}

void BusFace::announce() {
    BusDictionary changed;
    for (const std::string_view name : std::exchange(unannounced_, {})) {
        BusValue value = state_.property(name);
        BusValue& told = announced_[std::string(name)];
        if (told != value) {
            told = value;
            changed.emplace(name, std::move(value));
        }
    }
    if (changed.empty()) {
        return;
    }
    if (const auto look = changed.find("Look"); look != changed.end()) {
        sd_bus_emit_signal(bus_->handle(), kObjectPath, kNocturoInterface, "LookChanged", "s",
                           std::get<std::string>(look->second).c_str());
    }
    sd_bus_message* message = nullptr;
    sd_bus_message_new_signal(bus_->handle(), &message, kObjectPath,
                              "org.freedesktop.DBus.Properties", "PropertiesChanged");
    const BusMessage signal(message);
    sd_bus_message_append(message, "s", kNocturoInterface);
    appendDictionary(message, changed);
    sd_bus_message_append(message, "as", 0);
    sd_bus_message_send(message);
}

} // namespace nocturo
