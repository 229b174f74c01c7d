// What others than the hand have to say on each display, and how the controller follows.

#include "app/app_controller.h"
#include "app/online_displays.h"
#include "automation/automation.h"
#include "displays/affected_screen_set.h"
#include "settings/defaults_store.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

constexpr CGDirectDisplayID kNoneInParticular = 0;

std::vector<CGDirectDisplayID> affectedDisplays(const DefaultsStore& defaults) {
    const std::vector<double> affected = affectedScreenSet(defaults);
    const OnlineDisplays online;
    std::vector<CGDirectDisplayID> displays(online.ids().begin(), online.ids().end());
    std::erase_if(displays, [&](CGDirectDisplayID display) {
        return !affected.empty() && std::find(affected.begin(), affected.end(),
                                              static_cast<double>(display)) == affected.end();
    });
    return displays;
}

} // namespace

Ruling NDAppController::ruling(CGDirectDisplayID display) const {
    return automation_ != nullptr ? automation_->ruling(isSwitchedOn_, display)
                                  : Ruling{{isSwitchedOn_}, Ruler::settings};
}

Ruling NDAppController::ruling() const {
    Ruling usual = ruling(kNoneInParticular);
    const auto displays = affectedDisplays(defaults_);
    std::optional<Ruling> butForItsLook;
    for (const CGDirectDisplayID display : displays) {
        Ruling its = ruling(display);
        if (its == usual) {
            return usual;
        }
        const std::string own = std::exchange(its.look, usual.look);
        if (!butForItsLook && its == usual) {
            butForItsLook = its;
            butForItsLook->look = own;
        }
    }
    return displays.empty() ? usual : butForItsLook.value_or(ruling(displays.front()));
}

bool NDAppController::isWanted() const {
    const auto displays = affectedDisplays(defaults_);
    return displays.empty() ? ruling(kNoneInParticular).isOn
                            : std::any_of(displays.begin(), displays.end(),
                                          [this](auto display) { return ruling(display).isOn; });
}

std::string NDAppController::titleOfLook(const Ruling& ruling) const {
    return automation_ != nullptr ? automation_->titleOfLook(ruling) : std::string();
}

bool NDAppController::refuseRuledLooks() {
    for (const CGDirectDisplayID display : affectedDisplays(defaults_)) {
        const Ruling its = ruling(display);
        if (its.isOn && !its.look.empty() && (its.by == Ruler::rule || its.by == Ruler::schedule)) {
            automation_->refuseLook(its.look);
            refuseRuledLooks(); // those of others
            return true;
        }
    }
    return false;
}

std::shared_ptr<NDEffect> NDAppController::effectInForce(CGDirectDisplayID display) const {
    auto ruled = automation_ != nullptr ? automation_->effectOf(ruling(display)) : nullptr;
    return ruled != nullptr ? ruled : globalEffect_;
}

void NDAppController::takeRuledEffects() {
    for (const auto& controller : *screenControllers_) {
        auto effect = effectInForce(controller->screenID());
        if (effect.get() != &controller->effect()) {
            controller->setEffect(std::move(effect));
            controller->updateEffect();
        }
    }
}

void NDAppController::pause(std::string_view words) {
    if (automation_ != nullptr) {
        static_cast<void>(automation_->pause(words)); // menus have words that are understood
    }
}

Fades::Length NDAppController::lengthOfRuledFades() const {
    if (automation_ == nullptr || !automation_->isAtPoint() || ruling().by != Ruler::schedule) {
        return lengthOfFades();
    }
    const std::chrono::duration<float, std::ratio<60>> minutes(
        std::clamp(defaults_.floatForKey(kScheduleFadeMinutes), kScheduleFadeMinutes.lowest,
                   kScheduleFadeMinutes.highest));
    return std::max(lengthOfFades(), std::chrono::duration_cast<Fades::Length>(minutes));
}

void NDAppController::followRuling() {
    if (!isReady() || paused_) {
        return; // the end of the screen saver asks again
    }
    const bool isOn = isWanted();
    if (isOn && !effectActive() && saverRuns_) {
        screenSaverDidStart();
    }
    if (paused_) {
        return;
    }
    const auto change = changeOver(lengthOfRuledFades());
    if (isOn || effectActive()) {
        switchEffect(isOn);
    } else {
        centers_.local.post(kEffectActivationNotification); // off by another word
    }
}

} // namespace nocturo
