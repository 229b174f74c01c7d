#pragma once

#include <functional>
#include <string>
#include <vector>

namespace nocturo {

/// The language of our texts for whoever runs this process: that of the first of the languages of
/// LANGUAGE, or else of the locale that LC_ALL, LC_MESSAGES or LANG names, for which there are
/// texts, "pt_BR" for instance. A variety of another country will do unless it is written in
/// another script. Empty when the texts are to be in English, which is also where English comes
/// first, and where the locale is "C" or "POSIX", as scripts ask for.
std::string usersLanguage();

/// The same by the variables of another process, whose value `variable` gives; empty where one is
/// not set.
std::string languageBy(const std::function<std::string(const char* name)>& variable);

/// What whoever runs this process names by LANGUAGE, or else by LC_ALL, LC_MESSAGES or LANG, best
/// first: "de_AT.UTF-8" for instance. One of them is empty where nothing is named.
std::vector<std::string> wantedLocales();

} // namespace nocturo
