#pragma once

#include <optional>
#include <string>

#include <systemd/sd-bus.h>

namespace nocturo {

/// The language of our texts for whoever runs the program that sent the call, as usersLanguage() is
/// for this one; nothing where the bus or the system does not tell. Waits for the bus for a tenth
/// of a second at most.
std::optional<std::string> languageOfCaller(sd_bus_message* call);

} // namespace nocturo
