#include "app/disturbance_watch.h"

#include "app/app_controller.h"
#include "base/log.h"
#include "displays/display_functions.h"

#include <utility>
#include <vector>

namespace nocturo {

DisturbanceWatch::DisturbanceWatch(const NDAppController& controller,
                                   NotificationCenter& localCenter, Lookup lookUp)
    : controller_(controller), localCenter_(localCenter), lookUp_(std::move(lookUp)) {
    localCenter_.addObserver(this, kReapplicationNotification, [this] { lookAtDisplays(); });
}

DisturbanceWatch::~DisturbanceWatch() {
    localCenter_.removeObserver(this);
}

void DisturbanceWatch::lookAtDisplays() {
    DisplayServices* services = displayServices();
    const auto& controllers = controller_.screenControllers();
    if (services == nullptr || !controllers) {
        return;
    }
    std::vector<CGDirectDisplayID> displays;
    for (const auto& controller : *controllers) {
        displays.push_back(controller->screenID());
    }
    const std::uint32_t found = services->takeBackDisturbedDisplays(displays);
    if (found == 0) {
        return;
    }
    if (count_ == 0) {
        logInfo(kLogDisplays, "Another program changes the colors of the displays too.");
    }
    count_ += found;
    localCenter_.post(kDisturbanceNotification);
    lookUp_([this](const std::string& name) { setDisturber(name); });
}

void DisturbanceWatch::setDisturber(const std::string& name) {
    if (name != disturber_) {
        disturber_ = name;
        localCenter_.post(kDisturbanceNotification);
    }
}

} // namespace nocturo
