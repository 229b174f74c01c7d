#include "app/hooks.h"

#include "app/app_controller.h"
#include "automation/automation.h"
#include "base/notification_center.h"
#include "base/run_loop.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"

#include <utility>

namespace nocturo {

namespace {

std::string onOrOff(bool on) {
    return on ? "on" : "off";
}

} // namespace

Hooks::Hooks(NDAppController& controller, ChosenLook& chosenLook, NotificationCenter& localCenter,
             RunLoop& runLoop, std::filesystem::path directory)
    : controller_(controller), chosenLook_(chosenLook), localCenter_(localCenter),
      runLoop_(runLoop), runner_(std::move(directory), runLoop) {
    for (const auto name :
         {kEffectActivationNotification, kRulingNotification, kLooksDidChangeNotification}) {
        localCenter_.addObserver(this, name, [this] { tellSoon(); });
    }
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [this](const Subjects& settings) {
                                 if (settings.containAnyOf(kEffectSettings)) {
                                     tellSoon();
                                 }
                             });
}

Hooks::~Hooks() {
    localCenter_.removeObserver(this);
}

// Looks are files, which nobody is to read for hooks that are not there.
void Hooks::launchDidFinish() {
    if (runner_.hasHooks()) {
        look_ = chosenLook_.nameInForce();
        knowsLook_ = true;
    }
}

void Hooks::tellSoon() {
    if (!std::exchange(isToTell_, true)) {
        runLoop_.callSoon([this] { tell(); });
    }
}

void Hooks::tell() {
    if (!std::exchange(isToTell_, false)) {
        return;
    }
    tell("active-changed", active_, onOrOff(controller_.effectActive()));
    tell("paused", paused_, onOrOff(controller_.isPaused()));
    if (!std::exchange(knowsLook_, runner_.hasHooks())) {
        look_ = knowsLook_ ? chosenLook_.nameInForce() : std::string();
    } else if (knowsLook_) {
        tell("look-changed", look_, chosenLook_.nameInForce());
    }
}

void Hooks::tell(const char* event, std::string& known, std::string now) {
    if (known != now) {
        runner_.run(event, known, now);
        known = std::move(now);
    }
}

} // namespace nocturo
