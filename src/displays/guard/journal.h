#pragma once

#include "displays/ramp.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

/// What the CRTCs are to be given back, kept for whoever has to do it when the Nocturo that changed
/// them cannot.
struct Journal {
    struct Entry {
        std::uint32_t crtc = 0;
        Ramp ramp;
        bool operator==(const Entry&) const = default;
    };

    std::uint64_t token = 0; // of the run that changes the displays
    std::vector<Entry> entries;
    bool operator==(const Journal&) const = default;
};

/// As it is kept. The byte order is the machine's: it never leaves it.
std::string journalBytes(const Journal& journal);

/// The reverse, for bytes of any origin. Nothing for those that are not exactly what journalBytes
/// made of some journal.
std::optional<Journal> journalFromBytes(std::string_view bytes);

} // namespace nocturo
