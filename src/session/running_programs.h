#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace nocturo {

/// The first of `names` (of at most 15 letters) under which a program of this user runs; empty when
/// none does. `processes` is the directory of all processes.
std::string runningProgram(std::span<const std::string_view> names,
                           const std::filesystem::path& processes = "/proc");

} // namespace nocturo
