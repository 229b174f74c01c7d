#include "displays/calibration/profile_file.h"

#include "base/files.h"

namespace nocturo {

Result<std::vector<std::uint8_t>> readProfileFile(const std::filesystem::path& path) {
    const auto bytes = openRegularFile(path).and_then(
        [](const OpenedFile& file) { return readAll(file.descriptor, kMaxProfileSize); });
    if (!bytes) {
        return failed("it cannot be read (" + bytes.error().text + ")");
    }
    return std::vector<std::uint8_t>(bytes->begin(), bytes->end());
}

} // namespace nocturo
