#include "base/program_files.h"

#include <sys/auxv.h>
#include <system_error>
#include <unistd.h>

namespace nocturo {

namespace {

/// As it was started where there is no /proc.
std::filesystem::path ownPlace() {
    std::error_code failed;
    const auto link = std::filesystem::read_symlink("/proc/self/exe", failed);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the C library hands the address out as a number
    const auto* started = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
    return failed && started != nullptr ? std::filesystem::path(started) : link;
}

} // namespace

std::filesystem::path programFile(const char* name, const char* installedFromProgram) {
    const auto directory = ownPlace().parent_path();
    if (!directory.is_absolute()) {
        return {}; // the current directory's files are anybody's
    }
    const auto beside = directory / name;
    const auto installed = directory / installedFromProgram / name;
    return access(beside.c_str(), R_OK) != 0 && access(installed.c_str(), R_OK) == 0 ? installed
                                                                                     : beside;
}

} // namespace nocturo
