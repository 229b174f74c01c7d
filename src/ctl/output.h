#pragma once

#include <string>
#include <string_view>

namespace nocturo {

/// Writes to standard output what visible() makes of the text. Throws Failure where that fails, as
/// on a full disk.
void print(std::string_view text);

/// The text with every control character but the end of a line, and every one that turns the
/// direction of writing, in the manner of JSON ("\u001b"): names come from anywhere, and a terminal
/// would obey them. The text is UTF-8.
std::string visible(std::string_view text);

} // namespace nocturo
