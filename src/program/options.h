#pragma once

#include "displays/display_factory.h"

#include <string>
#include <variant>
#include <vector>

namespace nocturo {

/// What the command line asks for: to run, to print a text and end with success, or a sentence on
/// what is wrong with it.
struct RunOptions {
    DisplayChoice displays;
    bool switchedOff = false;           // whatever the settings say
    bool atLogin = false;               // started by the desktop
    std::vector<std::string> documents; // paths, as they were given
};
struct PrintAndExit {
    std::string text;
};
struct UsageError {
    std::string sentence;
};
using Options = std::variant<RunOptions, PrintAndExit, UsageError>;

/// `arguments` without the program's name.
Options parseOptions(const std::vector<std::string>& arguments);

} // namespace nocturo
