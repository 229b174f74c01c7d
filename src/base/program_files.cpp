#include "base/program_files.h"

#include <system_error>
#include <unistd.h>

namespace nocturo {

std::filesystem::path programFile(const char* name, const char* installedFromProgram) {
    std::error_code failed;
    const auto directory = std::filesystem::read_symlink("/proc/self/exe", failed).parent_path();
    const auto beside = directory / name;
    const auto installed = directory / installedFromProgram / name;
    return access(beside.c_str(), R_OK) != 0 && access(installed.c_str(), R_OK) == 0 ? installed
                                                                                     : beside;
}

} // namespace nocturo
