#include "settings/display_looks.h"

#include "base/texts/translated.h"
#include "settings/longest_words.h"
#include "settings/settings_keys.h"

#include <charconv>
#include <limits>

namespace nocturo {

std::optional<DisplayLook> displayLookFromWords(std::string_view words) {
    DisplayLook look;
    const char* end = words.data() + words.size();
    const auto [rest, error] = std::from_chars(words.data(), end, look.display);
    constexpr std::uint32_t kMost = std::numeric_limits<std::int32_t>::max();
    if (error != std::errc() || look.display == 0 || look.display > kMost || end - rest < 2 ||
        *rest != ' ' || words.size() > kLongestWords) {
        return std::nullopt;
    }
    look.look.assign(rest + 1, end);
    return look;
}

std::string textOf(const DisplayLook& look) {
    return std::to_string(look.display) + ' ' + look.look;
}

std::string noDisplayLookSentence(const std::string& words) {
    return translated("\"%@\" is no identifier of a display with a look, such as 71524911 Night "
                      "reading.",
                      {words});
}

std::string tooManyDisplayLooksSentence() {
    return translated("\"%1$@\" takes a list of %2$@ looks at most.",
                      {std::string(kDisplayLooks), std::to_string(kMostDisplayLooks)});
}

} // namespace nocturo
