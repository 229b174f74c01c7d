#pragma once

#include "displays/display_services.h"

#include <cstdint>

namespace nocturo {

/// 0 is success; every other value is a failure.
using CGError = std::int32_t;
inline constexpr CGError kCGErrorSuccess = 0;
inline constexpr CGError kCGErrorFailure = 1000;

/// Chooses the services behind the functions below, for the process; null for none, with which
/// every function fails. They must outlive their use here.
void setDisplayServices(DisplayServices* services);
DisplayServices* displayServices();

// Lists fill at most `maxDisplays` identifiers, in the services' order, and say how many.

CGError CGGetOnlineDisplayList(std::uint32_t maxDisplays, CGDirectDisplayID* displays,
                               std::uint32_t* count);

/// Every online display is drawable here, so this is the online list.
CGError CGGetActiveDisplayList(std::uint32_t maxDisplays, CGDirectDisplayID* displays,
                               std::uint32_t* count);

/// The displays that share at least one point with the rectangle.
CGError CGGetDisplaysWithRect(const DisplayRect& rect, std::uint32_t maxDisplays,
                              CGDirectDisplayID* displays, std::uint32_t* count);

/// 0 when there is no display.
CGDirectDisplayID CGMainDisplayID();

/// Fills `count` entries, at most `capacity`, of each table.
CGError CGGetDisplayTransferByTable(CGDirectDisplayID display, std::uint32_t capacity,
                                    float* redTable, float* greenTable, float* blueTable,
                                    std::uint32_t* count);

CGError CGSetDisplayTransferByTable(CGDirectDisplayID display, std::uint32_t count,
                                    const float* redTable, const float* greenTable,
                                    const float* blueTable);

void CGDisplayRestoreColorSyncSettings();

using CGDisplayChangeSummaryFlags = std::uint32_t;
inline constexpr CGDisplayChangeSummaryFlags kCGDisplaySetModeFlag = 8;

/// Called once for each display whose mode was set, with kCGDisplaySetModeFlag.
using CGDisplayReconfigurationCallBack = void (*)(CGDirectDisplayID display,
                                                  CGDisplayChangeSummaryFlags flags,
                                                  void* userInfo);

/// A callback may be registered with several contexts, each once.
CGError CGDisplayRegisterReconfigurationCallback(CGDisplayReconfigurationCallBack callback,
                                                 void* userInfo);

/// Fails when it is not registered with that context.
CGError CGDisplayRemoveReconfigurationCallback(CGDisplayReconfigurationCallBack callback,
                                               void* userInfo);

/// Calls the registered callbacks as the changes ask for; callbacks may register and remove.
void callReconfigurationCallbacks(const DisplayChanges& changes);

} // namespace nocturo
