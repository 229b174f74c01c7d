#include "displays/calibration/profile_file.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nocturo {

namespace {

class Descriptor {
  public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    ~Descriptor() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return descriptor_; }

  private:
    int descriptor_;
};

ProfileFile unreadable() {
    return {{}, std::string("it cannot be read (") + std::strerror(errno) + ")"};
}

} // namespace

ProfileFile readProfileFile(const std::filesystem::path& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    if (file.get() < 0 || fstat(file.get(), &status) != 0) {
        return unreadable();
    }
    if (!S_ISREG(status.st_mode)) {
        return {{}, "it is not a regular file"};
    }
    if (status.st_size > static_cast<off_t>(kMaxProfileSize)) {
        return {{}, "it is larger than 16 MB"};
    }
    ProfileFile result;
    result.bytes.resize(static_cast<std::size_t>(status.st_size));
    std::size_t filled = 0;
    while (filled < result.bytes.size()) {
        const ssize_t count =
            read(file.get(), result.bytes.data() + filled, result.bytes.size() - filled);
        if (count < 0 && errno != EINTR) {
            return unreadable();
        }
        if (count == 0) {
            break;
        }
        filled += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    result.bytes.resize(filled);
    return result;
}

} // namespace nocturo
