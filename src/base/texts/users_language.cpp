#include "base/texts/users_language.h"

#include "base/environment.h"
#include "base/texts/text_tables.h"

#include <string_view>
#include <utility>

namespace nocturo {

namespace {

using Variables = std::function<std::string(const char* name)>;

std::string localeOfMessages(const Variables& variable) {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (std::string locale = variable(name); !locale.empty()) {
            return locale;
        }
    }
    return {};
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

std::vector<std::string> localesWantedBy(const Variables& variable) {
    std::string locale = localeOfMessages(variable);
    std::vector<std::string> list = partsOfList(variable("LANGUAGE"));
    if (list.empty() || locale == "C" || locale == "POSIX") {
        return {std::move(locale)};
    }
    return list;
}

} // namespace

std::vector<std::string> wantedLocales() {
    return localesWantedBy(environment);
}

std::string usersLanguage() {
    return languageBy(environment);
}

std::string languageBy(const std::function<std::string(const char* name)>& variable) {
    for (const std::string& name : localesWantedBy(variable)) {
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
