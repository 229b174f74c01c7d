#pragma once

#include "wayland/wayland_connection.h"

#include <filesystem>
#include <optional>
#include <string>

namespace nocturo {

enum class ProfileRepair {
    notNeeded, // no output was left with an effect
    restored,  // every output that was has its own profile again, or none where that is not known
    failed,    // the compositor did not take it
};

/// Gives outputs their own profiles back that a Nocturo left with an effect. Waits for the
/// compositor, which offers OutputDevices, for a few seconds at most.
///
/// With a run, that one has ended just now, and its last changes may still be under way: what the
/// journal has is put back whatever the outputs seem to have, unless a newer run has begun.
ProfileRepair restoreProfiles(WaylandConnection& compositor,
                              const std::filesystem::path& stateDirectory,
                              const std::optional<std::string>& run = std::nullopt);

/// Asks the running Nocturo that has changed outputs' profiles to switch off; false where there is
/// none.
bool askProfileChanger(const std::filesystem::path& stateDirectory);

/// Waits until no output has an effect's profile any more; false when it took more than a second.
bool waitUntilProfilesAreBack(WaylandConnection& compositor);

} // namespace nocturo
