#include "base/files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

int errorOfWhatIsNoFile(const struct stat& status) {
    return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
}

/// Makes a file of a name of its own, which `name` becomes, in the directory of `target`. mkstemp
/// would not do: what it makes is the user's alone, and a process cannot look its umask up.
int createBeside(const std::filesystem::path& target, mode_t mode, std::string& name) {
    const std::string start =
        target.parent_path() / (".nocturo-" + std::to_string(::getpid()) + '-');
    int descriptor = -1;
    unsigned number = 0;
    do {
        name = start + std::to_string(number++); // a process of that number may have left some
        descriptor = ::open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
    } while (descriptor < 0 && errno == EEXIST);
    return descriptor;
}

/// A file beside `target`, which vanishes unless it is put in its place.
class ReplacementFile {
  public:
    ReplacementFile(const std::filesystem::path& target, mode_t mode)
        : file_(createBeside(target, mode, name_)), exists_(file_.get() >= 0) {}
    ~ReplacementFile() {
        if (exists_) {
            ::unlink(name_.c_str());
        }
    }
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    bool exists() const { return exists_; }

    /// 0 or the error number, as with all that follow.
    int fill(std::string_view content, std::optional<mode_t> mode) const {
        if (mode && ::fchmod(file_.get(), *mode) != 0) {
            return errno;
        }
        return writeAll(file_.get(), content);
    }

    int synchronize() const { return ::fsync(file_.get()) == 0 ? 0 : errno; }

    struct stat status() const {
        struct stat status {};
        ::fstat(file_.get(), &status);
        return status;
    }

    int putInPlaceOf(const std::filesystem::path& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0) {
            return errno;
        }
        exists_ = false;
        return 0;
    }

  private:
    std::string name_;
    FileDescriptor file_;
    bool exists_;
};

// The new file is complete either way: a directory that cannot be synchronized only means that a
// power cut may bring the old one back.
void synchronizeDirectory(const std::filesystem::path& path) {
    const FileDescriptor directory(
        ::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::fsync(directory.get());
}

} // namespace

Result<OpenedFile> openRegularFile(const std::filesystem::path& path, int flags) {
    OpenedFile file{
        FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | flags))};
    if (file.descriptor.get() < 0 || ::fstat(file.descriptor.get(), &file.status) != 0) {
        return failedWith(errno);
    }
    if (!S_ISREG(file.status.st_mode)) {
        return failedWith(errorOfWhatIsNoFile(file.status));
    }
    return file;
}

Result<std::string> readAll(const FileDescriptor& file, std::size_t limit) {
    std::string content;
    std::array<char, 16384> buffer;
    for (;;) {
        const ssize_t got = ::read(file.get(), buffer.data(), buffer.size());
        if (got == 0) {
            return content;
        }
        if (got > 0) {
            content.append(buffer.data(), static_cast<std::size_t>(got));
        } else if (errno != EINTR) {
            return failedWith(errno);
        }
        if (content.size() > limit) {
            return failedWith(EFBIG);
        }
    }
}

Result<struct stat> replaceFile(const std::filesystem::path& path, std::string_view content,
                                mode_t newFileMode, Durability durability) {
    std::optional<mode_t> oldMode;
    if (struct stat old{}; ::stat(path.c_str(), &old) == 0) {
        if (!S_ISREG(old.st_mode)) {
            return failedWith(errorOfWhatIsNoFile(old));
        }
        oldMode = old.st_mode & mode_t{07777};
    }
    ReplacementFile replacement(path, newFileMode);
    if (!replacement.exists()) {
        return failedWith(errno);
    }
    const bool durable = durability == Durability::survivesPowerCuts;
    int error = replacement.fill(content, oldMode);
    if (error == 0 && durable) {
        error = replacement.synchronize();
    }
    // Taken before the new file is where others can write to it.
    const struct stat status = replacement.status();
    if (error == 0) {
        error = replacement.putInPlaceOf(path);
    }
    if (error != 0) {
        return failedWith(error);
    }
    if (durable) {
        synchronizeDirectory(path.parent_path());
    }
    return status;
}

std::filesystem::path followLinks(std::filesystem::path path) {
    constexpr int kLongestChain = 40; // as the kernel counts
    for (int links = 0; links < kLongestChain; ++links) {
        std::error_code notALink;
        const std::filesystem::path next = std::filesystem::read_symlink(path, notALink);
        if (notALink) {
            break;
        }
        path = path.parent_path() / next;
    }
    return path;
}

int makePrivateDirectories(const std::filesystem::path& directory) {
    std::error_code ignored;
    if (directory.empty() || std::filesystem::exists(directory, ignored)) {
        return 0;
    }
    if (const int error = makePrivateDirectories(directory.parent_path())) {
        return error;
    }
    return ::mkdir(directory.c_str(), S_IRWXU) == 0 || errno == EEXIST ? 0 : errno;
}

} // namespace nocturo
