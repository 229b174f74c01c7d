#pragma once

#include <string_view>

namespace nocturo {

// The keys that several rooms share; every other key is its one owner's.
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

} // namespace nocturo
