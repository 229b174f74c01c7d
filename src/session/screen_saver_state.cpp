#include "session/screen_saver_state.h"

#include "base/notification_center.h"
#include "base/notification_names.h"

#include <algorithm>

namespace nocturo {

ScreenSaverState::ScreenSaverState(NotificationCenter& distributedCenter)
    : distributedCenter_(distributedCenter) {}

void ScreenSaverState::setActive(std::string_view name, bool active) {
    sources_.insert_or_assign(std::string(name), active);
    tell();
}

void ScreenSaverState::forget(std::string_view name) {
    const auto source = sources_.find(name);
    if (source != sources_.end()) {
        sources_.erase(source);
        tell();
    }
}

void ScreenSaverState::setSessionLocked(bool locked) {
    sessionLocked_ = locked;
    tell();
}

void ScreenSaverState::tell() {
    const bool active = sources_.empty()
                            ? sessionLocked_
                            : std::any_of(sources_.begin(), sources_.end(),
                                          [](const auto& source) { return source.second; });
    if (active != toldActive_) {
        toldActive_ = active;
        distributedCenter_.post(active ? kScreenSaverDidStartNotification
                                       : kScreenSaverDidStopNotification);
    }
}

} // namespace nocturo
