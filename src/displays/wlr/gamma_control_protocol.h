#pragma once

#include <wayland-client-core.h>
#include <wayland-client-protocol.h>

namespace nocturo {

// The protocol wlr-gamma-control-unstable-v1, as libwayland wants it. A control is made for an
// output; from then on nobody else can have that output's ramp until the control is destroyed,
// whereupon the compositor puts its own ramp back.

enum GammaControlManagerRequest : std::uint32_t { kGetGammaControl, kDestroyGammaControlManager };
enum GammaControlRequest : std::uint32_t { kSetGamma, kDestroyGammaControl };

/// The events of zwlr_gamma_control_v1, in their order.
struct GammaControlListener {
    /// Entries per channel; sent once, after the control was made.
    void (*gammaSize)(void* data, wl_proxy* control, std::uint32_t size);
    /// The control is of no use any more: another has the output, or it has no ramp.
    void (*failed)(void* data, wl_proxy* control);
};

namespace gamma_control_tables {

inline const wl_interface* kNoTypes[] = {nullptr};
inline const wl_message kRequests[] = {{"set_gamma", "h", kNoTypes}, {"destroy", "", kNoTypes}};
inline const wl_message kEvents[] = {{"gamma_size", "u", kNoTypes}, {"failed", "", kNoTypes}};

} // namespace gamma_control_tables

inline const wl_interface kGammaControlInterface = {
    "zwlr_gamma_control_v1",         1, 2,
    gamma_control_tables::kRequests, 2, gamma_control_tables::kEvents};

namespace gamma_control_tables {

inline const wl_interface* kGetTypes[] = {&kGammaControlInterface, &wl_output_interface};
inline const wl_message kManagerRequests[] = {{"get_gamma_control", "no", kGetTypes},
                                              {"destroy", "", kNoTypes}};

} // namespace gamma_control_tables

inline const wl_interface kGammaControlManagerInterface = {
    "zwlr_gamma_control_manager_v1", 1, 2, gamma_control_tables::kManagerRequests, 0, nullptr};

} // namespace nocturo
