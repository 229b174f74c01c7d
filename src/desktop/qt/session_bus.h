#pragma once

#include <QDBusConnection>

#include <optional>

namespace nocturo {

/// The session bus that the environment names, or the one at its usual place in the runtime
/// directory; nothing when there is none. Never starts one, as the library would by itself.
std::optional<QDBusConnection> connectToSessionBus();

/// The system bus; nothing when there is none.
std::optional<QDBusConnection> connectToSystemBus();

} // namespace nocturo
