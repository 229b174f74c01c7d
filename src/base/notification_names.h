#pragma once

#include <string_view>

namespace nocturo {

// Posted on the local center.

/// Displays were plugged, unplugged, moved, switched on or off.
inline constexpr std::string_view NSApplicationDidChangeScreenParametersNotification =
    "NSApplicationDidChangeScreenParametersNotification";

// Posted on the workspace center.

/// The computer woke up.
inline constexpr std::string_view NSWorkspaceDidWakeNotification = "NSWorkspaceDidWakeNotification";

/// The user's session came to the front again.
inline constexpr std::string_view NSWorkspaceSessionDidBecomeActiveNotification =
    "NSWorkspaceSessionDidBecomeActiveNotification";

/// Some application quit.
inline constexpr std::string_view NSWorkspaceDidTerminateApplicationNotification =
    "NSWorkspaceDidTerminateApplicationNotification";

// Posted on the distributed center.

inline constexpr std::string_view kScreenSaverDidStartNotification =
    "com.apple.screensaver.didstart";
inline constexpr std::string_view kScreenSaverDidStopNotification = "com.apple.screensaver.didstop";

/// Another colour profile was assigned to a display.
inline constexpr std::string_view NSScreenColorSpaceDidChangeNotification =
    "NSScreenColorSpaceDidChangeNotification";

} // namespace nocturo
