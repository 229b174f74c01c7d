#include "automation/display_looks_setting.h"

#include "automation/word_list.h"
#include "base/texts/translated.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/display_looks.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace nocturo {

std::map<CGDirectDisplayID, std::string>
looksOfDisplays(const DefaultsStore& defaults, Looks& looks,
                const std::function<void(const std::string& words)>& leftOut) {
    std::map<CGDirectDisplayID, std::string> found;
    std::vector<std::string> words = wordsOf(defaults, kDisplayLooks);
    words.resize(std::min(words.size(), kMostDisplayLooks));
    for (const std::string& each : words) {
        const auto own = displayLookFromWords(each);
        const Look* look = own ? looks.named(own->look) : nullptr;
        if (look != nullptr) {
            found.insert_or_assign(own->display, look->name);
        } else {
            leftOut(each);
        }
    }
    return found;
}

Result<void> setLookOfDisplay(DefaultsStore& defaults, Looks& looks, CGDirectDisplayID display,
                              std::string_view look) {
    const Look* known = look.empty() ? nullptr : looks.named(look);
    if (known == nullptr && !look.empty()) {
        return failed(translated("There is no look \"%@\".", {std::string(look)}));
    }
    PropertyArray list;
    for (std::string& words : wordsOf(defaults, kDisplayLooks)) {
        const auto own = displayLookFromWords(words);
        if (!own || own->display != display) {
            list.emplace_back(std::move(words));
        }
    }
    if (known != nullptr) {
        list.emplace_back(textOf(DisplayLook{display, known->name}));
    }
    if (list.size() > kMostDisplayLooks) {
        return failed(tooManyDisplayLooksSentence());
    }
    defaults.setObject(std::move(list), kDisplayLooks);
    return {};
}

} // namespace nocturo
