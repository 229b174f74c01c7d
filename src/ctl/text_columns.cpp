#include "ctl/text_columns.h"

#include <cstdlib>
#include <cwchar>
#include <locale.h>
#include <vector>

namespace nocturo {

namespace {

// Our texts are UTF-8, whatever the user's locale has. Loading it takes longer than a whole table.
locale_t utf8Locale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

} // namespace

std::size_t columnsOf(const std::string& text) {
    if (utf8Locale() == nullptr) {
        return text.size();
    }
    const locale_t before = uselocale(utf8Locale());
    std::vector<wchar_t> characters(text.size() + 1);
    const std::size_t count = std::mbstowcs(characters.data(), text.c_str(), characters.size());
    const int columns = count <= text.size() ? wcswidth(characters.data(), count) : -1;
    uselocale(before);
    return columns >= 0 ? static_cast<std::size_t>(columns) : text.size();
}

} // namespace nocturo
