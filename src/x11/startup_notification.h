#pragma once

#include <string>

namespace nocturo {

/// Tells the desktop on that X server that the start it gave this identifier
/// (DESKTOP_STARTUP_ID) is over, so that it stops showing that something is about to come up.
/// Nothing happens without an identifier, or when the server cannot be reached.
void finishStartup(const std::string& displayName, const std::string& startupIdentifier);

} // namespace nocturo
