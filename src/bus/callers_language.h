#pragma once

#include "base/texts/texts_in_language.h"

#include <optional>
#include <string>

#include <systemd/sd-bus.h>

namespace nocturo {

/// The language of our texts for whoever runs the program that sent the call, as usersLanguage() is
/// for this one; nothing where the bus or the system does not tell, or while more than that call
/// waits to be read. Waits for the bus for a tenth of a second at most.
std::optional<std::string> languageOfCaller(sd_bus_message* call);

/// What `tell` answers while all texts are read in that language, where it is known.
template <typename Tell>
auto inLanguageOfCaller(sd_bus_message* call, const Tell& tell) {
    std::optional<TextsInLanguage> theirs;
    if (const auto language = languageOfCaller(call)) {
        theirs.emplace(*language);
    }
    return tell();
}

} // namespace nocturo
