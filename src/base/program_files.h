#pragma once

#include <filesystem>

namespace nocturo {

/// Where a file that belongs to the running program is: beside it, as in a build, or else where it
/// is installed, in `installedFromProgram` seen from the program's directory, so that the whole
/// installation may be moved. Beside the program where it is in neither place; empty where
/// the program's own place cannot be told.
std::filesystem::path programFile(const char* name, const char* installedFromProgram);

} // namespace nocturo
