#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nocturo {

inline bool isControl(char letter) {
    return static_cast<unsigned char>(letter) < ' ' || letter == '\x7F';
}

/// What somebody typed, on one line and with no more of it than a sentence has room for.
inline std::string shortened(std::string_view words) {
    constexpr std::size_t kMost = 80; // bytes of UTF-8
    std::string text(words.substr(0, kMost));
    if (words.size() > kMost) {
        constexpr unsigned kMask = 0xC0;
        constexpr unsigned kContinues = 0x80;
        for (std::size_t end = kMost;
             (static_cast<unsigned char>(words[end]) & kMask) == kContinues && end > 0;) {
            text.resize(--end);
        }
        text += "\u2026";
    }
    for (char& letter : text) {
        letter = isControl(letter) ? ' ' : letter;
    }
    return text;
}

} // namespace nocturo
