#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace nocturo {

// Texts in the user's language, for whoever does without Qt: nocturoctl is bound to keys, and
// loading Qt would take as long as all else that it does. They are compiled in from the table
// "Localizable" of resources/translations, in which localized() looks, too.

/// Has all texts read in that language from now on, "pt_BR" for instance. English, which they are
/// in until then, where there are none in it.
void setLanguageOfTexts(std::string_view language);

/// A format with its arguments filled in. "%@" and "%d" take the arguments in order, "%1$@" and
/// "%2$@" the one of that number, and "%%" is a per cent sign. A missing argument reads "(null)".
std::string filledText(std::string_view format, std::span<const std::string> arguments);

/// The text in the user's language, filled; English where it has no other.
std::string translated(const char* english, std::initializer_list<std::string> arguments = {});

/// A text that is listed before it is said. Made of literals alone, so that all can be found for
/// the tables.
class ListedText {
  public:
    constexpr ListedText() = default;
    explicit consteval ListedText(const char* english) : english_(english) {}

    bool isEmpty() const { return *english_ == '\0'; }
    std::string translated() const { return nocturo::translated(english_); }

  private:
    const char* english_ = "";
};

} // namespace nocturo
