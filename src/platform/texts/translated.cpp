#include "platform/texts/translated.h"

#include "platform/texts/text_tables.h"

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

std::string translated(const char* english, std::initializer_list<std::string> arguments) {
    std::string_view rest = lookedUp(english);
    std::string text;
    std::size_t next = 0;
    for (auto percent = rest.find('%'); percent != rest.npos; percent = rest.find('%')) {
        text += rest.substr(0, percent);
        rest.remove_prefix(percent + 1);
        std::size_t index = next;
        if (rest.size() > 2 && rest[1] == '$') {
            index = static_cast<std::size_t>(rest[0] - '1');
            rest.remove_prefix(2);
        } else {
            ++next;
        }
        text += index < arguments.size() ? arguments.begin()[index] : "(null)";
        rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
    }
    return text.append(rest);
}

} // namespace nocturo
