#pragma once

#include <string_view>

namespace nocturo {

// The keys of all settings. What each may hold stands in the table (settings_table.h).

inline constexpr std::string_view kActivateAtLaunch = "ActivateAtLaunch";
inline constexpr std::string_view kActivateOnClick = "ActivateOnClick";
inline constexpr std::string_view kContinuouslyApply = "ContinuouslyApply";
inline constexpr std::string_view kAffectedScreens = "AffectedScreens";
inline constexpr std::string_view kAffectedScreenSet = "AffectedScreenSet";
inline constexpr std::string_view kDeactivateForScreenSaver = "NDDeactivateForScreenSaver";
inline constexpr std::string_view kUseHotKey = "UseHotKey";
inline constexpr std::string_view kHotKeyCode = "HotKeyCode";
inline constexpr std::string_view kHotKeyModifiers = "HotKeyModifiers";
inline constexpr std::string_view kShowStatusItem = "ShowStatusItem";
inline constexpr std::string_view kEffectActive = "EffectActive"; // as last saved
inline constexpr std::string_view kFluxWarned = "ZQFluxWarned";
inline constexpr std::string_view kGroupEffect = "NDGroupEffect";

// What happens by itself.

inline constexpr std::string_view kUseSchedule = "UseSchedule";
inline constexpr std::string_view kSchedule = "Schedule";   // of points in words
inline constexpr std::string_view kPlace = "SchedulePlace"; // empty: the time zone's
inline constexpr std::string_view kUseRules = "UseRules";
inline constexpr std::string_view kRules = "Rules";               // in words
inline constexpr std::string_view kDisplayLooks = "DisplayLooks"; // in words

/// A setting that is a real number. Users may choose from `lowest` to `highest`; what a file or a
/// document holds beyond is used as it stands.
struct RealSetting {
    std::string_view key;
    float whenAbsent; // what holds while the user has no value
    float lowest;
    float highest;
};
inline constexpr RealSetting kDimLevel{"NDDimEffectLevel", -0.5F, -1.0F, 1.0F};
inline constexpr RealSetting kColorFilterHue{"NDColorFilterEffectHue", 0.0F, 0.0F, 360.0F};
inline constexpr RealSetting kColorFilterVividness{"NDColorFilterEffectVividness", 1.0F, 0.0F,
                                                   1.0F};
inline constexpr RealSetting kFadeSeconds{"FadeSeconds", 0.0F, 0.0F, 5.0F};
inline constexpr RealSetting kScheduleFadeMinutes{"ScheduleFadeMinutes", 0.0F, 0.0F, 60.0F};

} // namespace nocturo
