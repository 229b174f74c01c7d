#pragma once

#include <wayland-client-core.h>
#include <wayland-client-protocol.h>

namespace nocturo {

// The part of the protocol xdg-output-unstable-v1 that is used here, as libwayland wants it.

enum OutputPlaceManagerRequest : std::uint32_t { kDestroyPlaceManager, kGetPlace };

/// The events of zxdg_output_v1, in their order.
struct OutputPlaceListener {
    void (*logicalPosition)(void* data, wl_proxy* place, std::int32_t x, std::int32_t y);
    void (*logicalSize)(void* data, wl_proxy* place, std::int32_t width, std::int32_t height);
    void (*done)(void* data, wl_proxy* place);
    void (*name)(void* data, wl_proxy* place, const char* name);
    void (*description)(void* data, wl_proxy* place, const char* description);
};

namespace output_place_tables {

inline const wl_interface* kNoTypes[] = {nullptr, nullptr};
inline const wl_message kPlaceRequests[] = {{"destroy", "", kNoTypes}};
inline const wl_message kPlaceEvents[] = {{"logical_position", "ii", kNoTypes},
                                          {"logical_size", "ii", kNoTypes},
                                          {"done", "", kNoTypes},
                                          {"name", "2s", kNoTypes},
                                          {"description", "2s", kNoTypes}};

} // namespace output_place_tables

inline const wl_interface kOutputPlaceInterface = {"zxdg_output_v1",
                                                   3,
                                                   1,
                                                   output_place_tables::kPlaceRequests,
                                                   5,
                                                   output_place_tables::kPlaceEvents};

namespace output_place_tables {

inline const wl_interface* kGetPlaceTypes[] = {&kOutputPlaceInterface, &wl_output_interface};
inline const wl_message kManagerRequests[] = {{"destroy", "", kNoTypes},
                                              {"get_xdg_output", "no", kGetPlaceTypes}};

} // namespace output_place_tables

inline const wl_interface kOutputPlaceManagerInterface = {
    "zxdg_output_manager_v1", 3, 2, output_place_tables::kManagerRequests, 0, nullptr};

} // namespace nocturo
