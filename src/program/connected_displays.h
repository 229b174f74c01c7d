#pragma once

#include "base/run_loop.h"
#include "displays/display_factory.h"

#include <memory>
#include <vector>

namespace nocturo {

class EventLoop;
struct NotificationCenters;

/// The displays in the event loop: what they announce is posted on the centers, and the application
/// ends with an exit code when they are lost. They are the ones that the display functions reach
/// while this object lives.
class ConnectedDisplays {
  public:
    /// `opened` has services.
    ConnectedDisplays(OpenedDisplays opened, const NotificationCenters& centers, EventLoop& loop,
                      int exitCodeWhenLost);
    ~ConnectedDisplays();
    ConnectedDisplays(const ConnectedDisplays&) = delete;
    ConnectedDisplays& operator=(const ConnectedDisplays&) = delete;

    bool areOfXServer() const { return opened_.services->name() == "randr"; }

  private:
    OpenedDisplays opened_;
    std::vector<std::unique_ptr<Watch>> watches_;
};

} // namespace nocturo
