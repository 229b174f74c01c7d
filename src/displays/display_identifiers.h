#pragma once

#include "displays/gamma_hardware.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace nocturo {

/// Gives each monitor an identifier that is the same after re-plugging, restarts and reboots:
/// derived from its EDID where that carries a serial (then the connector does not matter),
/// otherwise from EDID and connector name, otherwise from the connector name. Of two that would be
/// equal, the later one in the list takes the next free number and keeps it while this object
/// lives.
class DisplayIdentifiers {
  public:
    /// One identifier per head: 31 bits, never 0, all different.
    std::vector<CGDirectDisplayID> identifiersFor(const std::vector<Head>& heads);

  private:
    struct Place {
        std::string identity;
        std::string connector;
        auto operator<=>(const Place&) const = default;
    };

    bool isTakenByAnother(CGDirectDisplayID id, const std::string& identity) const;

    std::map<Place, CGDirectDisplayID> assigned_;
};

} // namespace nocturo
