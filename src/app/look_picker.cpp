#include "app/look_picker.h"

#include "app/app_controller.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"

#include <utility>

namespace nocturo {

std::string LookPicker::shown() {
    const Ruling ruling = controller_.ruling();
    const bool isOfOneDisplay = ruling.by == Ruler::settings; // and no choice for all
    return ruling.look.empty() || isOfOneDisplay ? chosen_.nameInForce() : ruling.look;
}

void LookPicker::pick(const std::string& name) {
    const std::string before = chosen_.nameInForce();
    if (shown() == name && controller_.effectActive()) {
        leave();
        return;
    }
    if (!chosen_.apply(name)) {
        return;
    }
    // From one look to the next it stays what the first one found.
    const bool wasOn = controller_.effectActive();
    switchedOn_ = !wasOn || (switchedOn_ && !before.empty());
    if (!wasOn) {
        controller_.setEffectActive(true, true);
    }
}

void LookPicker::leave() {
    const bool wentBack = chosen_.goBack().has_value();
    if (std::exchange(switchedOn_, false) || !wentBack) {
        controller_.setEffectActive(false, true);
    }
}

} // namespace nocturo
