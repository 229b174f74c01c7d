#pragma once

#include <string>

namespace nocturo {

class XConnection;

/// Tells the desktop on that X server that the start it gave this identifier
/// (DESKTOP_STARTUP_ID) is over, so that it stops showing that something is about to come up.
/// Waits until the server knows. Nothing happens without an identifier or a server.
void finishStartup(XConnection* connection, const std::string& startupIdentifier);

} // namespace nocturo
