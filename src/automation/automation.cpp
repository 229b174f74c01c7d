#include "automation/automation.h"

#include "base/notification_center.h"

namespace nocturo {

Automation::Automation(NotificationCenter& localCenter, WallClock& clock,
                       const std::filesystem::path& stateDirectory)
    : localCenter_(localCenter), clock_(clock), pauses_(stateDirectory / "pause.plist") {}

void Automation::start() {
    pauses_.restore(clock_.now());
    follow();
}

Ruling Automation::ruling(bool isSwitchedOn) const {
    Claims claims;
    claims.pause = pauses_.claim();
    claims.isSwitchedOn = isSwitchedOn;
    return whoWins(claims);
}

void Automation::wasSwitchedByHand() {
    pauses_.end();
    follow();
}

Result<void> Automation::pause(std::string_view words) {
    const auto until = endOfPause(words, clock_.now());
    if (!until) {
        return tl::unexpected(until.error());
    }
    pauses_.begin(*until);
    change();
    return {};
}

void Automation::holdPause(bool held) {
    pauses_.setHeld(held);
    change();
}

void Automation::resume() {
    if (pauses_.end()) {
        change();
    }
}

void Automation::follow() {
    const auto pause = pauses_.claim();
    timer_.reset();
    if (pause && pause->until) {
        timer_ = clock_.wakeAt(*pause->until, [this] {
            pauses_.expire(clock_.now());
            change();
        });
    }
}

void Automation::change() {
    follow();
    localCenter_.post(kRulingNotification);
}

} // namespace nocturo
