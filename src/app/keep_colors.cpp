// What is judged is what the displays are sent: the effect on the curves that were captured from
// them. It is judged after a change and not before, since a value alone says nothing: a black
// level is as good as any while the effect is off or another display stays bright.

#include "app/keep_colors.h"

#include "app/app_controller.h"
#include "app/desktop_face.h"
#include "automation/automation.h"
#include "base/log.h"
#include "base/notification_names.h"
#include "base/run_loop.h"
#include "displays/affected_screen_set.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"

#include <chrono>
#include <utility>

namespace nocturo {

using namespace std::chrono_literals;

KeepColors::KeepColors(NDAppController& controller, DefaultsStore& defaults,
                       NotificationCenter& localCenter, RunLoop& runLoop)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter), runLoop_(runLoop),
      settler_(runLoop, [this] { judge(); }) {
    localCenter_.addObserver(this, kEffectActivationNotification, [this] {
        wasSwitched_ = true;
        settler_.note();
    });
    const auto note = [this] {
        if (wasSwitched_) {
            settler_.note();
        }
    };
    localCenter_.addObserver(this, NSApplicationDidChangeScreenParametersNotification, note);
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [note](const Subjects& settings) {
                                 if (settings.containAnyOf(kEffectSettings) ||
                                     settings.containAnyOf(kAffectedScreenSettings)) {
                                     note();
                                 }
                             });
}

KeepColors::~KeepColors() {
    localCenter_.removeObserver(this);
}

void KeepColors::keep() {
    accepted_ = now();
    kept_ = accepted_;
    withdraw();
}

KeepColors::State KeepColors::now() const {
    return {screenColors(defaults_), controller_.ruling().look, controller_.effectActive()};
}

void KeepColors::judge() {
    State state = now();
    if (kept_ && !kept_->looksAs(state)) {
        kept_.reset();
    }
    const std::optional<bool> unreadable = controller_.everyAffectedDisplayIsUnreadable();
    if (kept_ || unreadable == false) {
        accepted_ = std::move(state);
        withdraw();
    } else if (!unreadable) {
        return; // no display shows these colors, so nobody has seen that they can be read
    } else if (controller_.desktopFace() == nullptr) {
        considerAsking();
    } else if (!std::exchange(waitsForPointer_, true)) {
        controller_.desktopFace()->whenPointerIsReleased([this] {
            waitsForPointer_ = false;
            considerAsking();
        });
    }
}

void KeepColors::considerAsking() {
    const State state = now();
    const std::optional<bool> unreadable = controller_.everyAffectedDisplayIsUnreadable();
    if (kept_ || unreadable == false) {
        withdraw();
    }
    if (kept_ || unreadable != true) {
        return;
    }
    questioned_ = state;
    if (!isAsking()) {
        ask();
    }
}

void KeepColors::ask() {
    logInfo(kLogApp, "The screens are hard to read now; they go back by themselves in " +
                         std::to_string(kSeconds) + " s unless these colors are kept.");
    secondsLeft_ = kSeconds;
    tellRules(true);
    countdown_ = runLoop_.scheduleRepeatingTimer(1s, [this] { tick(); });
    showSeconds();
}

void KeepColors::showSeconds() {
    if (DesktopFace* desktop = controller_.desktopFace()) {
        desktop->askToKeepColors(secondsLeft_, [this](bool keepThem) { answer(keepThem); });
    }
}

void KeepColors::tick() {
    if (--secondsLeft_ == 0) {
        goBack();
    } else {
        showSeconds();
    }
}

void KeepColors::answer(bool keepThem) {
    if (!isAsking()) {
        return;
    }
    keepThem ? keep() : goBack();
}

void KeepColors::goBack() {
    const bool asAsked = questioned_ == now(); // otherwise somebody else helped
    withdraw();
    if (!asAsked) {
        return;
    }
    const auto atOnce = controller_.changeOver(Fades::Length::zero()); // nobody sees anything
    // Colors are of no use against the look of a rule or the schedule, which the user never chose
    // for the time after it.
    if (controller_.refuseRuledLooks() && controller_.everyAffectedDisplayIsUnreadable() == false) {
        return;
    }
    const bool hasColors = accepted_ && accepted_->active && *accepted_ != now();
    if (hasColors) {
        setScreenColors(defaults_, accepted_->colors);
    }
    // Nor are they against looks of the displays' own.
    if (!hasColors || controller_.everyAffectedDisplayIsUnreadable() == true) {
        controller_.setEffectActive(false, true);
    }
}

void KeepColors::tellRules(bool asking) {
    if (Automation* automation = controller_.automation()) {
        automation->rules().setAsking(asking);
    }
}

void KeepColors::withdraw() {
    countdown_.reset();
    questioned_.reset();
    tellRules(false);
    if (DesktopFace* desktop = controller_.desktopFace()) {
        desktop->withdrawKeepColors();
    }
}

} // namespace nocturo
