#pragma once

#include <cstddef>
#include <string>

namespace nocturo {

/// How many columns of a terminal the text takes: two for each Chinese or Japanese character, none
/// for an accent that joins the letter before it. Text that is no UTF-8 takes one for each byte.
std::size_t columnsOf(const std::string& text);

} // namespace nocturo
