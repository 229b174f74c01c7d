#pragma once

#include "base/texts/translated.h"

#include <span>
#include <string>
#include <string_view>

namespace nocturo {

using Arguments = std::span<const std::string>;

/// What was typed without quotation marks.
std::string joined(Arguments words);

/// One verb of the command line.
struct Command {
    std::string_view verb;
    std::string_view usage; // what follows the verb, "[--json]"
    ListedText summary;     // one line
    ListedText details;     // more for `nocturoctl VERB --help`; may be empty

    /// Runs the verb with what follows it. Throws Failure; a Failure without a sentence means that
    /// the arguments do not fit the usage.
    void (*run)(Arguments arguments);

    /// Whether it may change what the screens look like, and takes --keep.
    bool changesColors = false;
};

/// Has Nocturo keep the colors that are in force. Throws Failure.
void keepColors();

std::span<const Command> commands();

} // namespace nocturo
