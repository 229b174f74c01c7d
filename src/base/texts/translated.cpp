#include "base/texts/translated.h"

#include "base/texts/texts_in_language.h"

#include <algorithm>
#include <cstddef>

namespace nocturo {

namespace {

std::span<const Translation>& textsInUse() {
    static std::span<const Translation> texts;
    return texts;
}

std::string_view lookedUp(std::string_view english) {
    const auto texts = textsInUse();
    const auto found = std::lower_bound(
        texts.begin(), texts.end(), english,
        [](const Translation& each, std::string_view wanted) { return each.english < wanted; });
    return found != texts.end() && found->english == english ? found->text : english;
}

} // namespace

void setLanguageOfTexts(std::string_view language) {
    textsInUse() = {};
    for (const TextTable& table : textTables()) {
        if (table.language == language) {
            textsInUse() = table.texts;
        }
    }
}

TextsInLanguage::TextsInLanguage(std::string_view language) : before_(textsInUse()) {
    setLanguageOfTexts(language);
}

TextsInLanguage::~TextsInLanguage() {
    textsInUse() = before_;
}

std::string filledText(std::string_view format, std::span<const std::string> arguments) {
    std::string text;
    std::size_t next = 0;
    for (std::size_t at = 0; at < format.size();) {
        const std::string_view rest = format.substr(at);
        const bool isNumbered =
            rest.size() > 3 && rest[1] >= '1' && rest[1] <= '9' && rest[2] == '$';
        const std::size_t kindAt = isNumbered ? 3 : 1;
        const char kind = rest[0] == '%' && rest.size() > kindAt ? rest[kindAt] : '\0';
        if (kind == '@' || kind == 'd') {
            const std::size_t index = isNumbered ? static_cast<std::size_t>(rest[1] - '1') : next++;
            text += index < arguments.size() ? arguments[index] : "(null)";
            at += kindAt + 1;
        } else {
            text += rest[0];
            at += kind == '%' && !isNumbered ? 2 : 1;
        }
    }
    return text;
}

std::string translated(const char* english, std::initializer_list<std::string> arguments) {
    return filledText(lookedUp(english), {arguments.begin(), arguments.size()});
}

} // namespace nocturo
