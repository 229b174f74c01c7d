#pragma once

#include <chrono>
#include <map>
#include <string>

#include <systemd/sd-bus.h>

namespace nocturo {

/// Everybody who waits for an answer before calling again has one call here, so what one caller
/// sends in a row says how far it runs ahead of the answers. Who wants no answer waits for none,
/// and has twenty calls in a second.
class CallersAhead {
  public:
    /// True while the caller of this message may go on; otherwise it has been refused.
    bool admits(sd_bus_message* call);

  private:
    struct Calls {
        std::chrono::steady_clock::time_point since;
        std::map<std::string, int> bySender;
    };

    Calls answered_; // since nothing waited to be read
    Calls unanswered_;
};

} // namespace nocturo
