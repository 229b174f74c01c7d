// The launch, step by step. The order is the point: f.lux is looked for before anything is
// registered or written; the effect is back before anything can ask a question; the status item
// waits until the state that it shows is certain. A step that asks ends there, and its answer goes
// on with the next one.

#include "app/app_controller.h"
#include "app/desktop_face.h"
#include "app/flux_check.h"
#include "app/user_interface.h"
#include "automation/automation.h"
#include "base/notification_names.h"
#include "displays/display_functions.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"
#include "settings/settings_table.h"

#include <utility>

namespace nocturo {

namespace {

constexpr std::string_view kPreferenceWindowVisible = "PreferenceWindowVisible";

Alert noEffectWarning() {
    Alert alert;
    alert.title = "No effect has been chosen.";
    alert.message = "You should check at least one box in the preference panel relating to the "
                    "screen effect, or Nocturo will have no visible effect on your screen.";
    alert.defaultButton = "Open preferences...";
    alert.alternateButton = "Cancel";
    alert.overPreferences = true;
    return alert;
}

} // namespace

void NDAppController::applicationDidFinishLaunching(std::function<void(bool launched)> finished) {
    if (userInterface_ != nullptr) {
        userInterface_->setAboutBoxBackgroundColor({0.81, 0.81, 0.84});
    }
    if (installedApplications_ == nullptr || desktop_ == nullptr) {
        bringEffectBack(std::move(finished));
        return;
    }
    NDCheckForFlux(defaults_, *installedApplications_, *desktop_,
                   [this, finished = std::move(finished)](bool goOn) {
                       if (goOn) {
                           bringEffectBack(finished);
                       } else if (finished) {
                           finished(false);
                       }
                   });
}

void NDAppController::bringEffectBack(std::function<void(bool launched)> finished) {
    initDefaults();
    globalEffect_ = std::make_shared<NDGroupEffect>();
    // After this pair no announcement of a launch is heard any more, the one that brought us here
    // included.
    centers_.local.addObserver(this, NSApplicationDidFinishLaunchingNotification,
                               [this] { applicationDidFinishLaunching(); });
    restoreEffect();
    centers_.local.removeObserver(this, NSApplicationDidFinishLaunchingNotification);
    warnIfNoEffects([this, finished = std::move(finished)] {
        appearOnDesktop();
        if (finished) {
            finished(true);
        }
    });
}

void NDAppController::appearOnDesktop() {
    statusItemReady_ = true;
    updateHotKey();
    updateStatusItem();
    if (desktop_ != nullptr) {
        desktop_->makeScreenMenus();
    }
    for (const auto name :
         {NSWorkspaceDidWakeNotification, NSWorkspaceSessionDidBecomeActiveNotification,
          NSWorkspaceDidTerminateApplicationNotification}) {
        observe(centers_.workspace, name, &NDAppController::updateEffect);
    }
    observe(centers_.distributed, NSScreenColorSpaceDidChangeNotification,
            &NDAppController::updateEffect);
    CGDisplayRegisterReconfigurationCallback(NDDisplayReconfigurationCallback, this);
}

void NDAppController::initDefaults() {
    defaults_.registerDefaults(registeredDefaults());
    NotificationCenter& local = centers_.local;
    local.addObserver(this, NSUserDefaultsDidChangeNotification,
                      [this](const Subjects& settings) { defaultsDidChange(settings); });
    local.addObserver(this, NSUserDefaultsDidChangeNotification, [this](const Subjects& settings) {
        if (settings.contain(kContinuouslyApply)) {
            updateApplyTimer();
        }
    });
    local.addObserver(this, NSApplicationDidChangeScreenParametersNotification, [this] {
        const auto atOnce = changeOver(Fades::Length::zero());
        defaultsDidChange({});
    });
    observe(local, kRulingNotification, &NDAppController::followRuling);
}

void NDAppController::restoreEffect() {
    const bool always = !startsSwitchedOff_ && defaults_.boolForKey(kActivateAtLaunch);
    const bool saved = !startsSwitchedOff_ && !always && defaults_.boolForKey(kEffectActive);
    if (!saved) {
        defaults_.setBool(always, kEffectActive);
    }
    if (startsSwitchedOff_ && automation_ != nullptr) {
        automation_->wasSwitchedByHand(false);
    }
    isSwitchedOn_ = always || saved;
    switchEffect(isWanted());
}

void NDAppController::warnIfNoEffects(std::function<void()> done) {
    const bool check = globalEffect_ != nullptr && !didCheckForNoEffectsAtStartup_;
    const bool isAsked = check && !startsWithSession_;
    // Before the alert, which is answered while everything else goes on.
    didCheckForNoEffectsAtStartup_ = didCheckForNoEffectsAtStartup_ || check;
    if (!isAsked || globalEffect_->effectCount() != 0 || desktop_ == nullptr) {
        if (done) {
            done();
        }
        return;
    }
    desktop_->showAlert(noEffectWarning(), [this, done = std::move(done)](AlertAnswer answer) {
        if (answer == AlertAnswer::defaultButton) {
            openPreferences();
        }
        if (done) {
            done();
        }
    });
}

void NDAppController::updateStatusItem() {
    if (!statusItemReady_ || desktop_ == nullptr) {
        return;
    }
    const bool wanted = defaults_.integerForKey(kShowStatusItem) == 1;
    if (wanted == statusItemShown_) {
        return;
    }
    statusItemShown_ = wanted;
    desktop_->setStatusItemShown(wanted);
    updateStatusItemImage(effectActive());
}

void NDAppController::updateStatusItemImage(bool active) {
    if (statusItemShown_) {
        desktop_->setStatusItemImage(active);
    }
}

void NDAppController::willEncodeRestorableState(PropertyDictionary& coder) const {
    const bool visible = userInterface_ != nullptr && userInterface_->preferencesVisible();
    coder.insert_or_assign(std::string(kPreferenceWindowVisible), visible);
}

void NDAppController::didDecodeRestorableState(const PropertyDictionary& coder) {
    const auto found = coder.find(kPreferenceWindowVisible);
    if (found != coder.end() && found->second == PropertyValue(true)) {
        openPreferences();
    }
}

} // namespace nocturo
