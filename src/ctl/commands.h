#pragma once

#include "base/texts/translated.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace nocturo {

using Arguments = std::span<const std::string>;

/// What was typed without quotation marks.
std::string joined(Arguments words);

/// The index, from 0, of what a user counts from 1. Throws Failure for other texts.
std::uint32_t indexFrom(const std::string& text);

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
