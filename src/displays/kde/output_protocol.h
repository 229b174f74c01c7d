#pragma once

#include <wayland-client-core.h>
#include <wayland-client-protocol.h>

#include <cstdint>
#include <iterator>

namespace nocturo {

// The parts of KDE's protocols kde_output_device_v2 and kde_output_management_v2 that are used
// here, as libwayland wants them. A device is an output with its settings. Until Plasma 6.6 each is
// a global; from 6.7 on the global kde_output_device_registry_v2 announces them.
//
// Settings are changed by a configuration object: what is to be, then `apply`, once.

enum OutputDeviceEvent : std::uint32_t {
    kDeviceMode = 2,
    kDeviceDone = 3,
    kDeviceEdid = 5, // in base64
    kDeviceUuid = 7,
    kDeviceCapabilities = 10,
    kDeviceName = 14,
    kDeviceHighDynamicRange = 15,
    kDeviceWideColorGamut = 17,
    kDeviceProfilePath = 19,
    kDeviceProfileSource = 23,
    kDeviceRemoved = 36,
};
enum OutputDeviceRequest : std::uint32_t { kReleaseDevice };
enum OutputModeEvent : std::uint32_t { kModeRemoved = 3 };
enum OutputRegistryEvent : std::uint32_t { kRegistryFinished, kRegistryOutput };
enum OutputManagementRequest : std::uint32_t { kCreateConfiguration };
enum OutputConfigurationRequest : std::uint32_t {
    kApply = 5,
    kDestroyConfiguration = 6,
    kSetProfilePath = 16,
    kSetProfileSource = 19,
};
enum OutputConfigurationEvent : std::uint32_t { kApplied, kFailed, kFailureReason };

/// Set in a device's capabilities where it can have a colour profile.
inline constexpr std::uint32_t kTakesProfiles = 0x40;

inline constexpr std::uint32_t kAnnouncedDeviceVersion = 7; // of globals: the last one needed
inline constexpr std::uint32_t kRegistryVersion = 21;       // the first that there is
inline constexpr std::uint32_t kManagementVersion = 12;
inline constexpr std::uint32_t kManagementWithProfiles = 6;
inline constexpr std::uint32_t kManagementWithSources = 8;

namespace output_tables {

inline const wl_interface* kNoTypes[] = {nullptr, nullptr, nullptr, nullptr,
                                         nullptr, nullptr, nullptr, nullptr};

inline const wl_message kModeEvents[] = {{"size", "ii", kNoTypes},
                                         {"refresh", "i", kNoTypes},
                                         {"preferred", "", kNoTypes},
                                         {"removed", "", kNoTypes},
                                         {"flags", "19u", kNoTypes}};

} // namespace output_tables

inline const wl_interface kOutputModeInterface = {"kde_output_device_mode_v2", 21, 0, nullptr, 5,
                                                  output_tables::kModeEvents};

namespace output_tables {

inline const wl_interface* kModeTypes[] = {&kOutputModeInterface};
inline const wl_message kDeviceRequests[] = {{"release", "21", kNoTypes}};
inline const wl_message kDeviceEvents[] = {
    {"geometry", "iiiiissi", kNoTypes},
    {"current_mode", "o", kModeTypes},
    {"mode", "n", kModeTypes},
    {"done", "", kNoTypes},
    {"scale", "f", kNoTypes},
    {"edid", "s", kNoTypes},
    {"enabled", "i", kNoTypes},
    {"uuid", "s", kNoTypes},
    {"serial_number", "s", kNoTypes},
    {"eisa_id", "s", kNoTypes},
    {"capabilities", "u", kNoTypes},
    {"overscan", "u", kNoTypes},
    {"vrr_policy", "u", kNoTypes},
    {"rgb_range", "u", kNoTypes},
    {"name", "2s", kNoTypes},
    {"high_dynamic_range", "3u", kNoTypes},
    {"sdr_brightness", "3u", kNoTypes},
    {"wide_color_gamut", "3u", kNoTypes},
    {"auto_rotate_policy", "4u", kNoTypes},
    {"icc_profile_path", "5s", kNoTypes},
    {"brightness_metadata", "6uuu", kNoTypes},
    {"brightness_overrides", "6iii", kNoTypes},
    {"sdr_gamut_wideness", "6u", kNoTypes},
    {"color_profile_source", "7u", kNoTypes},
    {"brightness", "8u", kNoTypes},
    {"color_power_tradeoff", "10u", kNoTypes},
    {"dimming", "11u", kNoTypes},
    {"replication_source", "13s", kNoTypes},
    {"ddc_ci_allowed", "14u", kNoTypes},
    {"max_bits_per_color", "15u", kNoTypes},
    {"max_bits_per_color_range", "15uu", kNoTypes},
    {"automatic_max_bits_per_color_limit", "15u", kNoTypes},
    {"edr_policy", "16u", kNoTypes},
    {"sharpness", "17u", kNoTypes},
    {"priority", "18u", kNoTypes},
    {"auto_brightness", "20u", kNoTypes},
    {"removed", "21", kNoTypes},
};

} // namespace output_tables

inline const wl_interface kOutputDeviceInterface = {"kde_output_device_v2",
                                                    kRegistryVersion,
                                                    1,
                                                    output_tables::kDeviceRequests,
                                                    std::size(output_tables::kDeviceEvents),
                                                    output_tables::kDeviceEvents};

namespace output_tables {

inline const wl_interface* kDeviceTypes[] = {&kOutputDeviceInterface, nullptr, nullptr, nullptr};
inline const wl_message kRegistryRequests[] = {{"stop", "", kNoTypes}};
inline const wl_message kRegistryEvents[] = {{"finished", "", kNoTypes},
                                             {"output", "n", kDeviceTypes}};

inline const wl_interface* kDeviceAndModeTypes[] = {&kOutputDeviceInterface, &kOutputModeInterface};
inline const wl_message kConfigurationRequests[] = {
    {"enable", "oi", kDeviceTypes},
    {"mode", "oo", kDeviceAndModeTypes},
    {"transform", "oi", kDeviceTypes},
    {"position", "oii", kDeviceTypes},
    {"scale", "of", kDeviceTypes},
    {"apply", "", kNoTypes},
    {"destroy", "", kNoTypes},
    {"overscan", "ou", kDeviceTypes},
    {"set_vrr_policy", "ou", kDeviceTypes},
    {"set_rgb_range", "ou", kDeviceTypes},
    {"set_primary_output", "2o", kDeviceTypes},
    {"set_priority", "3ou", kDeviceTypes},
    {"set_high_dynamic_range", "4ou", kDeviceTypes},
    {"set_sdr_brightness", "4ou", kDeviceTypes},
    {"set_wide_color_gamut", "4ou", kDeviceTypes},
    {"set_auto_rotate_policy", "5ou", kDeviceTypes},
    {"set_icc_profile_path", "6os", kDeviceTypes},
    {"set_brightness_overrides", "7oiii", kDeviceTypes},
    {"set_sdr_gamut_wideness", "7ou", kDeviceTypes},
    {"set_color_profile_source", "8ou", kDeviceTypes},
};
inline const wl_message kConfigurationEvents[] = {
    {"applied", "", kNoTypes}, {"failed", "", kNoTypes}, {"failure_reason", "12s", kNoTypes}};

} // namespace output_tables

inline const wl_interface kOutputRegistryInterface = {
    "kde_output_device_registry_v2", kRegistryVersion, 1, output_tables::kRegistryRequests, 2,
    output_tables::kRegistryEvents};

inline const wl_interface kOutputConfigurationInterface = {
    "kde_output_configuration_v2",
    kManagementVersion,
    std::size(output_tables::kConfigurationRequests),
    output_tables::kConfigurationRequests,
    std::size(output_tables::kConfigurationEvents),
    output_tables::kConfigurationEvents};

namespace output_tables {

inline const wl_interface* kConfigurationTypes[] = {&kOutputConfigurationInterface};
inline const wl_message kManagementRequests[] = {
    {"create_configuration", "n", kConfigurationTypes}};

} // namespace output_tables

inline const wl_interface kOutputManagementInterface = {"kde_output_management_v2",
                                                        kManagementVersion,
                                                        1,
                                                        output_tables::kManagementRequests,
                                                        0,
                                                        nullptr};

} // namespace nocturo
