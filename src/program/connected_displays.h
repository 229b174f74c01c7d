#pragma once

#include "displays/display_factory.h"

namespace nocturo {

struct NotificationCenters;

/// The displays in use: what they announce is posted on the centers. They are the ones that the
/// display functions reach while this object lives.
class ConnectedDisplays {
  public:
    ConnectedDisplays(OpenedDisplays opened, const NotificationCenters& centers);
    ~ConnectedDisplays();
    ConnectedDisplays(const ConnectedDisplays&) = delete;
    ConnectedDisplays& operator=(const ConnectedDisplays&) = delete;

    bool areOfXServer() const { return opened_.services->name() == "randr"; }

  private:
    OpenedDisplays opened_;
};

} // namespace nocturo
