#include "program/connected_displays.h"

#include "base/notification_center.h"
#include "base/notification_names.h"
#include "displays/display_functions.h"

#include <utility>

namespace nocturo {

ConnectedDisplays::ConnectedDisplays(OpenedDisplays opened, const NotificationCenters& centers)
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
}

ConnectedDisplays::~ConnectedDisplays() {
    setDisplayServices(nullptr);
}

} // namespace nocturo
