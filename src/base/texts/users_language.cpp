#include "base/texts/users_language.h"

#include "base/texts/text_tables.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace nocturo {

namespace {

std::string_view variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string_view localeOfMessages() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (!variable(name).empty()) {
            return variable(name);
        }
    }
    return {};
}

std::vector<std::string_view> wantedLanguages() {
    const std::string_view locale = localeOfMessages();
    std::string_view list = variable("LANGUAGE");
    if (list.empty() || locale == "C" || locale == "POSIX") {
        return {locale};
    }
    std::vector<std::string_view> wanted;
    while (!list.empty()) {
        const auto end = std::min(list.find(':'), list.size());
        wanted.push_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return wanted;
}

struct Reader {
    std::string_view language;
    std::string_view script; // empty unless the language is written in several
    std::string_view territory;
};

// From "zh", "zh_TW.UTF-8", "zh-Hant-TW" or "de_DE@euro".
Reader readerOf(std::string_view name) {
    name = name.substr(0, name.find_first_of(".@"));
    Reader reader;
    reader.language = name.substr(0, name.find_first_of("_-"));
    std::string_view script;
    while (name.size() > reader.language.size()) {
        const auto last = name.find_last_of("_-");
        const std::string_view part = name.substr(last + 1);
        (part.size() == 4 ? script : reader.territory) = part;
        name = name.substr(0, last);
    }
    if (reader.language == "zh") {
        const bool isTraditional =
            reader.territory == "TW" || reader.territory == "HK" || reader.territory == "MO";
        reader.script = !script.empty() ? script : isTraditional ? "Hant" : "Hans";
    }
    return reader;
}

std::string languageFor(const Reader& reader) {
    std::string_view found;
    for (const TextTable& table : textTables()) {
        const Reader texts = readerOf(table.language);
        if (texts.language != reader.language || texts.script != reader.script) {
            continue;
        }
        if (found.empty() || texts.territory == reader.territory) {
            found = table.language;
        }
    }
    return std::string(found);
}

} // namespace

std::string usersLanguage() {
    for (const std::string_view name : wantedLanguages()) {
        const Reader reader = readerOf(name);
        if (reader.language == "en" || reader.language == "C" || reader.language == "POSIX") {
            break;
        }
        if (std::string language = languageFor(reader); !language.empty()) {
            return language;
        }
    }
    return {};
}

} // namespace nocturo
