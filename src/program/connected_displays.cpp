#include "program/connected_displays.h"

#include "base/event_loop.h"
#include "base/notification_center.h"
#include "base/notification_names.h"
#include "displays/display_functions.h"

#include <utility>

namespace nocturo {

ConnectedDisplays::ConnectedDisplays(OpenedDisplays opened, const NotificationCenters& centers,
                                     EventLoop& loop, int exitCodeWhenLost)
    : opened_(std::move(opened)) {
    setDisplayServices(opened_.services.get());
    opened_.services->setChangeHandler([centers](const DisplayChanges& changes) {
        callReconfigurationCallbacks(changes);
        if (changes.arrangementChanged) {
            centers.local.post(NSApplicationDidChangeScreenParametersNotification);
        }
        if (!changes.profilesChanged.empty()) {
            centers.distributed.post(NSScreenColorSpaceDidChangeNotification);
        }
    });
    for (const int descriptor : opened_.eventDescriptors) {
        const auto takeIn = [this, &loop, exitCodeWhenLost] {
            opened_.processEvents();
            if (opened_.connectionLost()) {
                loop.quit(exitCodeWhenLost);
            }
        };
        watches_.push_back(loop.watch(descriptor, takeIn, EventLoop::kDisplays));
    }
    watches_.push_back(loop.watch(opened_.guardEndDescriptor, opened_.processGuardEnd));
}

ConnectedDisplays::~ConnectedDisplays() {
    setDisplayServices(nullptr);
}

} // namespace nocturo
