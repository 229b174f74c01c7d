#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>

#include <systemd/sd-bus.h>

namespace nocturo {

/// Everybody who waits for an answer before calling again has one call here, so what one caller
/// sends in a row says how far it runs ahead of the answers. Who wants no answer waits for none,
/// and has twenty calls in a second. Who runs so far ahead again and again gets half as many each
/// time, down to one at a time, until ten seconds after the last time.
class CallersAhead {
  public:
    /// True while the caller of this message may go on; otherwise it has been refused.
    bool admits(sd_bus_message* call);

  private:
    struct Calls {
        std::chrono::steady_clock::time_point since;
        std::map<std::string, int> bySender;
    };

    struct Trust {
        int calls; // that are admitted in a row
        std::chrono::steady_clock::time_point until;
    };

    Calls answered_; // since nothing waited to be read
    Calls unanswered_;
    std::map<std::string, Trust, std::less<>> trust_; // in those who were refused
};

} // namespace nocturo
