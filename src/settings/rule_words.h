#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// One rule, as the setting holds it in words: "fullscreen off", "program mpv Warm evening". The
/// name of a program that has spaces stands between quotation marks.
struct Rule {
    /// While a window fills a display, for that display; while the program is in front, and while a
    /// game asks for it, for all.
    enum class When { fullscreen, program, game };

    When when = When::fullscreen;
    std::string program; // the class of its windows; empty but for a program
    std::string look;    // its name; empty where the effect goes off
    bool operator==(const Rule&) const = default;
};

/// Longer ones are none.
inline constexpr std::size_t kLongestProgram = 200; // bytes

/// More are left alone.
inline constexpr std::size_t kMostRules = 100;

/// Nothing for other words.
std::optional<Rule> ruleFromWords(std::string_view words);

/// Whether the words are those of a rule with a look.
bool switchesOn(std::string_view words);

/// Says so, in the user's language.
std::string noRuleSentence(const std::string& words);

/// "program mpv"; and with the look.
std::string conditionText(const Rule& rule);
std::string textOf(const Rule& rule);

} // namespace nocturo
