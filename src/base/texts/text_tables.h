#pragma once

#include <span>
#include <string_view>

namespace nocturo {

struct Translation {
    std::string_view english;
    std::string_view text;
};

/// The texts in one language, sorted by their English.
struct TextTable {
    std::string_view language; // "pt_BR"
    std::span<const Translation> texts;
};

/// All tables, as tools/compile_texts.py wrote them.
std::span<const TextTable> textTables();

} // namespace nocturo
