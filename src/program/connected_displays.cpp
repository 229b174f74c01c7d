#include "program/connected_displays.h"

#include "base/notification_center.h"
#include "base/notification_names.h"
#include "desktop/qt/socket_watch.h"
#include "displays/display_functions.h"

#include <QCoreApplication>

#include <utility>

namespace nocturo {

ConnectedDisplays::ConnectedDisplays(OpenedDisplays opened, const NotificationCenters& centers,
                                     int exitCodeWhenLost)
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
        watches_.push_back(whenReadable(descriptor, [this, exitCodeWhenLost] {
            opened_.processEvents();
            if (opened_.connectionLost()) {
                QCoreApplication::exit(exitCodeWhenLost);
            }
        }));
    }
    watches_.push_back(whenReadable(opened_.guardEndDescriptor, opened_.processGuardEnd));
}

ConnectedDisplays::~ConnectedDisplays() {
    setDisplayServices(nullptr);
}

} // namespace nocturo
