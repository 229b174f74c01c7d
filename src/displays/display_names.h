#pragma once

#include "displays/display_services.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace nocturo {

/// What the monitors behind display identifiers are called, those that are not connected now
/// included. One for the process, as the identifiers are. Main thread only.
class DisplayNames {
  public:
    static DisplayNames& shared();

    /// Notes the monitor that an online display is, and the connector that it is at.
    void note(CGDirectDisplayID display, const std::string& connector,
              const std::vector<std::uint8_t>& edid);

    /// Notes what a display that was seen in a past session was called, unless it was seen since.
    void learn(CGDirectDisplayID display, const std::string& name);

    /// Maker and model, such as "Dell Inc. U2720Q"; empty where the monitor tells neither.
    std::string monitorOf(CGDirectDisplayID display);

    /// The same, or else the connector that it was at last; empty where it was never seen.
    std::string nameOf(CGDirectDisplayID display);

    /// All displays that were ever seen.
    std::vector<CGDirectDisplayID> known() const;

  private:
    struct Monitor {
        std::string connector;
        std::vector<std::uint8_t> edid;
        std::string name; // made of these when it is first asked for
        bool isNamed = false;
    };

    std::map<CGDirectDisplayID, Monitor> monitors_;
};

} // namespace nocturo
