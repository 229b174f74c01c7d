#pragma once

#include <wayland-client-core.h>
#include <wayland-client-protocol.h>

namespace nocturo {

// The part of the protocol wlr-foreign-toplevel-management-unstable-v1 that is used here, as
// libwayland wants it: the compositor tells of every window and of its state.

enum ToplevelManagerRequest : std::uint32_t { kStopTelling };
enum ToplevelRequest : std::uint32_t { kDestroyToplevel = 7 };
enum ToplevelState : std::uint32_t {
    kToplevelMaximized,
    kToplevelMinimized,
    kToplevelActivated,
    kToplevelFullscreen
};

/// Who knows full screens, and no parents yet.
inline constexpr std::uint32_t kToplevelVersion = 2;

/// The events of zwlr_foreign_toplevel_manager_v1, in their order.
struct ToplevelManagerListener {
    void (*toplevel)(void* data, wl_proxy* manager, wl_proxy* toplevel);
    void (*finished)(void* data, wl_proxy* manager);
};

/// The events of zwlr_foreign_toplevel_handle_v1, in their order. All but the last two only count
/// once `done` has come.
struct ToplevelListener {
    void (*title)(void* data, wl_proxy* toplevel, const char* title);
    void (*appId)(void* data, wl_proxy* toplevel, const char* appId);
    void (*outputEnter)(void* data, wl_proxy* toplevel, wl_output* output);
    void (*outputLeave)(void* data, wl_proxy* toplevel, wl_output* output);
    void (*state)(void* data, wl_proxy* toplevel, wl_array* states);
    void (*done)(void* data, wl_proxy* toplevel);
    void (*closed)(void* data, wl_proxy* toplevel);
};

namespace toplevel_tables {

inline const wl_interface* kNoTypes[] = {nullptr, nullptr, nullptr, nullptr, nullptr};
inline const wl_interface* kSeatTypes[] = {&wl_seat_interface};
inline const wl_interface* kOutputTypes[] = {&wl_output_interface};
inline const wl_interface* kRectangleTypes[] = {&wl_surface_interface, nullptr, nullptr, nullptr,
                                                nullptr};
inline const wl_message kRequests[] = {{"set_maximized", "", kNoTypes},
                                       {"unset_maximized", "", kNoTypes},
                                       {"set_minimized", "", kNoTypes},
                                       {"unset_minimized", "", kNoTypes},
                                       {"activate", "o", kSeatTypes},
                                       {"close", "", kNoTypes},
                                       {"set_rectangle", "oiiii", kRectangleTypes},
                                       {"destroy", "", kNoTypes},
                                       {"set_fullscreen", "2?o", kOutputTypes},
                                       {"unset_fullscreen", "2", kNoTypes}};
inline const wl_message kEvents[] = {{"title", "s", kNoTypes},
                                     {"app_id", "s", kNoTypes},
                                     {"output_enter", "o", kOutputTypes},
                                     {"output_leave", "o", kOutputTypes},
                                     {"state", "a", kNoTypes},
                                     {"done", "", kNoTypes},
                                     {"closed", "", kNoTypes}};

} // namespace toplevel_tables

inline const wl_interface kToplevelInterface = {
    "zwlr_foreign_toplevel_handle_v1", 2, 10,
    toplevel_tables::kRequests,        7, toplevel_tables::kEvents};

namespace toplevel_tables {

inline const wl_interface* kToplevelTypes[] = {&kToplevelInterface};
inline const wl_message kManagerRequests[] = {{"stop", "", kNoTypes}};
inline const wl_message kManagerEvents[] = {{"toplevel", "n", kToplevelTypes},
                                            {"finished", "", kNoTypes}};

} // namespace toplevel_tables

inline const wl_interface kToplevelManagerInterface = {
    "zwlr_foreign_toplevel_manager_v1", 2, 1,
    toplevel_tables::kManagerRequests,  2, toplevel_tables::kManagerEvents};

} // namespace nocturo
