#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// That a display has a look of its own, as the setting holds it in words: the display's
/// identifier and the look, "71524911 Night reading".
struct DisplayLook {
    std::uint32_t display = 0; // 31 bits, never 0
    std::string look;          // its name
    bool operator==(const DisplayLook&) const = default;
};

/// More are left alone.
inline constexpr std::size_t kMostDisplayLooks = 100;

/// Nothing for other words.
std::optional<DisplayLook> displayLookFromWords(std::string_view words);

std::string textOf(const DisplayLook& look);

// Say so, in the user's language.
std::string noDisplayLookSentence(const std::string& words);
std::string tooManyDisplayLooksSentence();

} // namespace nocturo
