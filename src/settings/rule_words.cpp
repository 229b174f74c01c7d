#include "settings/rule_words.h"

#include "base/texts/shortened.h"
#include "base/texts/translated.h"
#include "settings/longest_words.h"
#include "settings/schedule_points.h"

#include <algorithm>

namespace nocturo {

namespace {

constexpr std::string_view kFullscreen = "fullscreen";
constexpr std::string_view kProgram = "program";
constexpr std::string_view kGame = "game";

/// Takes the first word away, and the space after it.
std::string_view takeWord(std::string_view& words) {
    const auto space = std::min(words.find(' '), words.size());
    const std::string_view word = words.substr(0, space);
    words.remove_prefix(std::min(space + 1, words.size()));
    return word;
}

/// The same with a name; empty where a quotation mark has no other.
std::string_view takeName(std::string_view& words) {
    if (!words.starts_with('"')) {
        return takeWord(words);
    }
    const auto end = words.find('"', 1);
    const bool isWhole = end != std::string_view::npos && words.substr(end + 1).starts_with(' ');
    const std::string_view name = isWhole ? words.substr(1, end - 1) : std::string_view();
    words.remove_prefix(isWhole ? end + 2 : words.size());
    return name;
}

} // namespace

std::optional<Rule> ruleFromWords(std::string_view words) {
    if (words.size() > kLongestWords || std::any_of(words.begin(), words.end(), isControl)) {
        return std::nullopt;
    }
    Rule rule;
    const std::string_view when = takeWord(words);
    if (when == kProgram) {
        rule.when = Rule::When::program;
        rule.program = takeName(words);
    } else if (when == kGame) {
        rule.when = Rule::When::game;
    } else if (when != kFullscreen) {
        return std::nullopt;
    }
    const bool isNamed = !rule.program.empty() && rule.program.size() <= kLongestProgram;
    if (words.empty() || isNamed != (rule.when == Rule::When::program)) {
        return std::nullopt;
    }
    rule.look = isWordForOff(words) ? std::string_view() : words;
    return rule;
}

bool switchesOn(std::string_view words) {
    const auto rule = ruleFromWords(words);
    return rule && !rule->look.empty();
}

std::string noRuleSentence(const std::string& words) {
    return translated("\"%@\" is no rule, such as fullscreen off or program mpv Warm evening.",
                      {shortened(words)});
}

std::string conditionText(const Rule& rule) {
    if (rule.when != Rule::When::program) {
        return std::string(rule.when == Rule::When::game ? kGame : kFullscreen);
    }
    const bool isQuoted = rule.program.find(' ') != std::string::npos;
    const std::string mark = isQuoted ? "\"" : "";
    return std::string(kProgram) + ' ' + mark + rule.program + mark;
}

std::string textOf(const Rule& rule) {
    return conditionText(rule) + ' ' + (rule.look.empty() ? std::string(kWordForOff) : rule.look);
}

} // namespace nocturo
