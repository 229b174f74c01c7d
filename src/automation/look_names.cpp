#include "automation/look_names.h"

#include "automation/word_list.h"
#include "displays/display_names.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/display_looks.h"
#include "settings/rule_words.h"
#include "settings/schedule_points.h"
#include "settings/settings_keys.h"

#include <cstddef>
#include <map>

namespace nocturo {

namespace {

/// Calls `act` with the key of a list, an index in it and what is there for all that names a look.
template <typename Act>
void forAllNaming(const DefaultsStore& defaults, Looks& looks, const std::string& name, Act act) {
    const auto search = [&](std::string_view key, auto read) {
        const auto list = wordsOf(defaults, key);
        for (std::size_t i = 0; i < list.size(); ++i) {
            const auto naming = read(list[i]);
            const Look* look =
                naming && !naming->look.empty() ? looks.named(naming->look) : nullptr;
            if (look != nullptr && look->name == name) {
                act(key, i, *naming);
            }
        }
    };
    search(kSchedule, &schedulePoint);
    search(kRules, &ruleFromWords);
    search(kDisplayLooks, &displayLookFromWords);
}

template <typename Naming>
std::string shown(const Naming& naming) {
    return textOf(naming);
}

std::string shown(const DisplayLook& naming) {
    return DisplayNames::shared().nameOf(naming.display);
}

} // namespace

Result<void> renameLook(DefaultsStore& defaults, ChosenLook& chosen, std::string_view name,
                        const std::string& to) {
    const Look* look = chosen.looks().named(name);
    const std::string from = look != nullptr ? look->name : std::string(name);
    std::map<std::string_view, PropertyValue> before;
    // The settings first, since whoever hears of the other name reads them.
    const DefaultsStore::Batch oneChange(defaults);
    forAllNaming(defaults, chosen.looks(), from,
                 [&](std::string_view key, std::size_t index, auto naming) {
                     before.emplace(key, *defaults.objectForKey(key));
                     naming.look = to;
                     replaceWords(defaults, key, index, textOf(naming));
                 });
    auto renamed = chosen.rename(from, to);
    if (!renamed) {
        for (auto& [key, value] : before) {
            defaults.setObject(std::move(value), key);
        }
    }
    return renamed;
}

std::vector<std::string> namingLook(const DefaultsStore& defaults, Looks& looks,
                                    std::string_view name) {
    std::vector<std::string> found;
    forAllNaming(defaults, looks, std::string(name),
                 [&](std::string_view /*key*/, std::size_t /*index*/, const auto& naming) {
                     found.push_back(shown(naming));
                 });
    return found;
}

} // namespace nocturo
