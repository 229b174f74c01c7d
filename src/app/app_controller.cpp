#include "app/app_controller.h"

#include "app/desktop_face.h"
#include "app/online_displays.h"
#include "app/user_interface.h"
#include "automation/automation.h"
#include "base/notification_names.h"
#include "base/run_loop.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "displays/display_gamma.h"
#include "displays/readability.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/saved_hot_key.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kReapplicationPeriod = 6000ms;
constexpr auto kModeChangeDelay = 50ms;
constexpr std::string_view kToggleAction = "toggleGlobalEffect:";

template <typename Range, typename Value>
bool contains(const Range& range, const Value& value) {
    return std::find(range.begin(), range.end(), value) != range.end();
}

} // namespace

NDAppController::NDAppController(DefaultsStore& defaults, const NotificationCenters& centers,
                                 RunLoop& runLoop)
    : defaults_(defaults), centers_(centers), runLoop_(runLoop) {}

NDAppController::~NDAppController() {
    for (NotificationCenter* center :
         {&centers_.local, &centers_.workspace, &centers_.distributed}) {
        center->removeObserver(this);
    }
    centers_.distributed.removeObserver(&saverRuns_);
    HXHotKeyCenter::sharedHotKeyCenter().unregisterAllHotKeys();
    CGDisplayRemoveReconfigurationCallback(NDDisplayReconfigurationCallback, this);
}

// What switches by itself switches on while the controller listens to no screen saver, too.
void NDAppController::setAutomation(Automation* automation) {
    automation_ = automation;
    centers_.distributed.addObserver(&saverRuns_, kScreenSaverDidStartNotification,
                                     [this] { saverRuns_ = true; });
    centers_.distributed.addObserver(&saverRuns_, kScreenSaverDidStopNotification,
                                     [this] { saverRuns_ = false; });
}

void NDAppController::observe(NotificationCenter& center, std::string_view name, Handler handler) {
    center.addObserver(this, name, [this, handler] { (this->*handler)(); });
}

bool NDAppController::applicationShouldHandleReopen(bool /*hasVisibleWindows*/) {
    const bool toggles = defaults_.boolForKey(kActivateOnClick);
    if (toggles) {
        toggleGlobalEffect();
    }
    const bool showsSomething = toggles && isReady() && globalEffect_->effectCount() != 0;
    if (!showsSomething && isReady() && userInterface_ != nullptr && userInterface_->canBeSeen()) {
        openPreferences();
    }
    return false;
}

void NDAppController::applicationWillTerminate() {
    if (effectActive()) {
        setEffectActive(false, false);
    }
    if (fades_ != nullptr) {
        fades_->finish();
    }
    defaults_.synchronize();
}

void NDAppController::openPreferences() {
    if (userInterface_ != nullptr) {
        userInterface_->showPreferences();
    }
}

void NDAppController::openAboutBox() {
    if (userInterface_ != nullptr) {
        userInterface_->showAboutBox();
    }
}

bool NDAppController::openFile(const std::string& path) {
    return userInterface_ != nullptr && userInterface_->openEffectFile(path);
}

bool NDAppController::openFileWithoutUI(const std::string& path) {
    return openFile(path);
}

void NDAppController::showRefusedDocuments(const std::vector<std::string>& paths) {
    if (desktop_ != nullptr) {
        desktop_->showRefusedDocuments(paths);
    }
}

void NDAppController::setEffectActive(bool active, bool saveState) {
    if (!isReady()) {
        return; // asked for while the launch still waits for an answer that may forbid it
    }
    const auto change = changeOver(saveState ? lengthOfFades() : Fades::Length::zero());
    if (saveState) {
        defaults_.setBool(active, kEffectActive);
        if (automation_ != nullptr) {
            automation_->wasSwitchedByHand(active);
        }
    }
    isSwitchedOn_ = active;
    paused_ = false;
    switchEffect(active);
}

void NDAppController::giveDisplaysBack() {
    const auto atOnce = changeOver(Fades::Length::zero());
    setEffectActive(false, true);
}

Fades::Length NDAppController::lengthOfFades() const {
    const float seconds =
        std::clamp(defaults_.floatForKey(kFadeSeconds), kFadeSeconds.lowest, kFadeSeconds.highest);
    return std::chrono::duration_cast<Fades::Length>(std::chrono::duration<float>(seconds));
}

void NDAppController::switchEffect(bool active) {
    if (active) {
        if (!screenControllers_) {
            screenControllers_.emplace();
        }
        adjustScreenControllers();
        takeRuledEffects();
        setActivateItemTitles();
        // Once, also where it was on: what says "on" again and again would add up.
        centers_.distributed.removeObserver(this, kScreenSaverDidStartNotification);
        observe(centers_.distributed, kScreenSaverDidStartNotification,
                &NDAppController::screenSaverDidStart);
    } else {
        screenControllers_.reset();
        ZQDisplayRestoreColorSync();
        setActivateItemTitles();
        centers_.distributed.removeObserver(this);
    }
    updateApplyTimer();
    updateStatusItemImage(active);
    centers_.local.post(kEffectActivationNotification);
}

void NDAppController::setActivateItemTitles() {
    if (desktop_ != nullptr) {
        desktop_->setActivateItemTitles(effectActive());
    }
}

void NDAppController::toggleGlobalEffect() {
    setEffectActive(!effectActive(), true);
}

void NDAppController::adjustScreenControllers() {
    const std::vector<double> affected = affectedScreenSet(defaults_);
    const OnlineDisplays online;
    for (const CGDirectDisplayID display : online.ids()) {
        const bool isAffected =
            affected.empty() || contains(affected, static_cast<double>(display));
        setScreenControllerActive(isAffected && ruling(display).isOn, display);
    }
}

void NDAppController::setScreenControllerActive(bool active, CGDirectDisplayID forScreenID) {
    if (!screenControllers_) {
        return;
    }
    const auto found =
        std::find_if(screenControllers_->begin(), screenControllers_->end(),
                     [&](const auto& controller) { return controller->screenID() == forScreenID; });
    if (found != screenControllers_->end()) {
        if (!active) {
            (*found)->restoreGamma();
            screenControllers_->erase(found);
        }
    } else if (active) {
        screenControllers_->push_back(NDScreenController::screenControllerWithEffect(
            effectInForce(forScreenID), forScreenID));
    }
}

std::optional<bool> NDAppController::everyAffectedDisplayIsUnreadable() const {
    if (!screenControllers_) {
        return false;
    }
    const OnlineDisplays online;
    std::optional<bool> unreadable;
    for (const auto& controller : *screenControllers_) {
        if (!contains(online.ids(), controller->screenID())) {
            continue;
        }
        if (!controller->hasCurve()) {
            unreadable = unreadable.value_or(false); // it cannot be changed
            continue;
        }
        ZQGammaCurve after = controller->gammaCurve();
        controller->effect().applyEffectOnGammaCurve(&after, 0);
        if (!isUnreadable(after)) {
            return false;
        }
        unreadable = true;
    }
    return unreadable;
}

void NDAppController::updateEffect() {
    if (screenControllers_) {
        for (const auto& controller : *screenControllers_) {
            controller->updateEffect();
        }
    }
}

void NDAppController::displayModeDidChange() {
    updateEffect();
    modeChangeTimer_ = runLoop_.scheduleTimer(kModeChangeDelay, [this] { updateEffect(); });
}

void NDAppController::updateApplyTimer() {
    if (!effectActive() || !defaults_.boolForKey(kContinuouslyApply)) {
        continuousApplyTimer_.reset();
    } else if (continuousApplyTimer_ == nullptr) {
        continuousApplyTimer_ = runLoop_.scheduleRepeatingTimer(kReapplicationPeriod, [this] {
            centers_.local.post(kReapplicationNotification);
            updateEffect();
        });
    }
}

void NDAppController::defaultsDidChange(const Subjects& settings) {
    const auto change = changeOver(lengthOfFades());
    const bool screens = settings.containAnyOf(kAffectedScreenSettings);
    if (screens && effectActive()) {
        adjustScreenControllers();
    }
    if (screens && effectActive() != isWanted()) {
        followRuling(); // one that shows nothing came, or the last that did has gone
    }
    if (screens || settings.containAnyOf(kEffectSettings)) {
        updateEffect();
    }
    updateHotKey();
    updateStatusItem();
}

void NDAppController::updateHotKey() {
    HXHotKeyCenter& center = HXHotKeyCenter::sharedHotKeyCenter();
    const bool wanted = !recordingHotKey_ && defaults_.boolForKey(kUseHotKey);
    const auto hotKey = wanted ? NDSavedHotKey(defaults_) : nullptr;
    if (hotKey != nullptr &&
        center.hasRegisteredHotKeyWithKeyCode(hotKey->keyCode(), hotKey->modifierFlags())) {
        return;
    }
    center.unregisterAllHotKeys();
    if (hotKey != nullptr) {
        // The center's hot keys end with this controller, which therefore owns itself for them.
        const std::shared_ptr<ActionTarget> target(std::shared_ptr<void>(), this);
        center.registerHotKeyWithKeyCode(hotKey->keyCode(), hotKey->modifierFlags(), target,
                                         std::string(kToggleAction), nullptr);
    }
}

void NDAppController::setRecordingHotKey(bool recording) {
    recordingHotKey_ = recording;
    updateHotKey();
}

void NDAppController::screenSaverDidStart() {
    if (defaults_.boolForKey(kDeactivateForScreenSaver)) {
        paused_ = true;
        switchEffect(false);
        observe(centers_.distributed, kScreenSaverDidStopNotification,
                &NDAppController::screenSaverDidStop);
    }
}

void NDAppController::screenSaverDidStop() {
    paused_ = false;
    switchEffect(automation_ == nullptr || isWanted());
}

CGDirectDisplayID NDAppController::validatedDisplayID() {
    const auto display = static_cast<CGDirectDisplayID>(defaults_.integerForKey(kAffectedScreens));
    const OnlineDisplays online;
    if (contains(online.ids(), display)) {
        return display;
    }
    defaults_.setInteger(0, kAffectedScreens);
    return 0;
}

bool NDAppController::respondsTo(std::string_view action) const {
    return action == kToggleAction;
}

void NDAppController::perform(std::string_view /*action*/, const KeyEvent& /*event*/,
                              const std::shared_ptr<void>& /*object*/) {
    toggleGlobalEffect();
}

std::string NDAppController::description() const {
    return "NDAppController";
}

void NDAppController::setCurrentEffect(std::shared_ptr<NDGroupEffect> effect) {
    globalEffect_ = std::move(effect);
}

void NDDisplayReconfigurationCallback(CGDirectDisplayID /*display*/, std::uint32_t flags,
                                      void* controller) {
    if ((flags & kCGDisplaySetModeFlag) != 0) {
        static_cast<NDAppController*>(controller)->displayModeDidChange();
    }
}

} // namespace nocturo
