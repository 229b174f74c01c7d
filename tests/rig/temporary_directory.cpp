#include "rig/temporary_directory.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace nocturo::rig {

TemporaryDirectory::TemporaryDirectory() {
    std::string name = std::filesystem::temp_directory_path() / "nocturo-test-XXXXXX";
    if (!mkdtemp(name.data())) {
        throw std::system_error(errno, std::generic_category(), "mkdtemp");
    }
    path_ = name;
}

TemporaryDirectory::~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace nocturo::rig
