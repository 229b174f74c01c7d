#include "automation/rules_setting.h"

#include "automation/word_list.h"
#include "base/texts/shortened.h"
#include "base/texts/translated.h"
#include "documents/looks.h"
#include "settings/rule_words.h"
#include "settings/settings_keys.h"

#include <algorithm>
#include <string>

namespace nocturo {

Result<void> addRule(DefaultsStore& defaults, Looks& looks, std::string_view words) {
    auto rule = ruleFromWords(words);
    if (!rule) {
        return failed(noRuleSentence(std::string(words)));
    }
    if (!rule->look.empty()) {
        const Look* look = looks.named(rule->look);
        if (look == nullptr && rule->look.find(' ') != std::string::npos &&
            rule->when == Rule::When::program && rule->program.find(' ') == std::string::npos) {
            return failed(translated("There is no look \"%@\"; the name of a program with spaces "
                                     "stands between quotation marks.",
                                     {shortened(rule->look)}));
        }
        if (look == nullptr) {
            return failed(translated("There is no look \"%@\".", {shortened(rule->look)}));
        }
        rule->look = look->name;
    }
    if (!addWords(defaults, kRules, textOf(*rule), kMostRules)) {
        return failed(translated("\"%1$@\" takes a list of %2$@ rules at most.",
                                 {std::string(kRules), std::to_string(kMostRules)}));
    }
    return {};
}

Result<void> moveRule(DefaultsStore& defaults, std::size_t from, std::size_t to) {
    if (!moveWords(defaults, kRules, from, to)) {
        return failed(translated("There is no rule %@.", {std::to_string(std::max(from, to) + 1)}));
    }
    return {};
}

Result<void> removeRule(DefaultsStore& defaults, std::size_t index) {
    if (!removeWords(defaults, kRules, index)) {
        return failed(translated("There is no rule %@.", {std::to_string(index + 1)}));
    }
    return {};
}

} // namespace nocturo
