#pragma once

#include <cstdint>

namespace nocturo {

/// Modifier flag words: the bits below, and whatever else an event carried. Settings and documents
/// keep the whole word.
inline constexpr std::uint64_t NSAlphaShiftKeyMask = 0x10000; // caps lock
inline constexpr std::uint64_t NSShiftKeyMask = 0x20000;
inline constexpr std::uint64_t NSControlKeyMask = 0x40000;
inline constexpr std::uint64_t NSAlternateKeyMask = 0x80000; // option: Alt
inline constexpr std::uint64_t NSCommandKeyMask = 0x100000;  // command: Super
/// Set on the events of function, arrow and navigation keys, whatever else is held.
inline constexpr std::uint64_t NSFunctionKeyMask = 0x800000;

/// The modifier mask of the hot key service: four bits, and a fifth for the keyboard layout alone.
inline constexpr std::uint32_t cmdKey = 0x100;
inline constexpr std::uint32_t shiftKey = 0x200;
inline constexpr std::uint32_t alphaLock = 0x400;
inline constexpr std::uint32_t optionKey = 0x800;
inline constexpr std::uint32_t controlKey = 0x1000;

} // namespace nocturo
