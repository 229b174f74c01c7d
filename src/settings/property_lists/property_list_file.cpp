#include "settings/property_lists/property_list_file.h"

#include "base/file_descriptor.h"
#include "settings/property_lists/property_list.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

// Hundreds of times what the settings need, and still read without a noticeable wait.
constexpr std::size_t kLargestFile = std::size_t{1} << 20;

FileStamp stampOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

int errorOfWhatIsNoFile(const struct stat& status) {
    return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
}

/// The whole content, or the error. Reading stops shortly beyond the largest size.
int readAll(int descriptor, std::string& content) {
    std::array<char, 16384> buffer;
    while (content.size() <= kLargestFile) {
        const ssize_t got = ::read(descriptor, buffer.data(), buffer.size());
        if (got == 0) {
            return 0;
        }
        if (got > 0) {
            content.append(buffer.data(), static_cast<std::size_t>(got));
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

/// Makes a file of a name of its own, which `name` becomes, in the directory of `target`. mkstemp
/// would not do: what it makes is the user's alone, and a process cannot look its umask up.
int createBeside(const std::filesystem::path& target, mode_t mode, std::string& name) {
    std::random_device random;
    int descriptor = -1;
    do {
        name = target.parent_path() / (".nocturo-" + std::to_string(random()));
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

    /// The content and the permissions are on the disk when this returns without an error.
    int fill(std::string_view content, std::optional<mode_t> mode) const {
        if (mode && ::fchmod(file_.get(), *mode) != 0) {
            return errno;
        }
        if (const int error = writeAll(file_.get(), content)) {
            return error;
        }
        return ::fsync(file_.get()) == 0 ? 0 : errno;
    }

    FileStamp stamp() const {
        struct stat status {};
        ::fstat(file_.get(), &status);
        return stampOf(status);
    }

    int putInPlaceOf(const std::filesystem::path& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0) {
            return errno;
        }
        exists_ = false;
        // The new file is complete either way: a directory that cannot be synchronized only means
        // that a power cut may bring the old one back.
        const std::filesystem::path parent = target.parent_path();
        const FileDescriptor directory(
            ::open(parent.empty() ? "." : parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        ::fsync(directory.get());
        return 0;
    }

  private:
    std::string name_;
    FileDescriptor file_;
    bool exists_;
};

} // namespace

std::optional<FileStamp> fileStamp(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return stampOf(status);
}

PropertyListFileContents readPropertyListFile(const std::filesystem::path& path) {
    using State = PropertyListFileContents::State;
    PropertyListFileContents contents;
    const auto unreadable = [&](int errorNumber) {
        contents.state = State::unreadable;
        contents.errorNumber = errorNumber;
        return contents;
    };

    // Opening a pipe would wait for its writer.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file.get() < 0) {
        return errno == ENOENT ? contents : unreadable(errno);
    }
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        return unreadable(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return unreadable(errorOfWhatIsNoFile(status));
    }
    contents.stamp = stampOf(status);
    std::string content;
    if (const int error = readAll(file.get(), content)) {
        return unreadable(error);
    }
    std::optional<PropertyDictionary> dictionary;
    if (content.size() <= kLargestFile) {
        dictionary = parsePropertyList(content);
    }
    contents.state = dictionary ? State::loaded : State::damaged;
    contents.dictionary = std::move(dictionary).value_or(PropertyDictionary{});
    return contents;
}

PropertyListFileWrite writePropertyListFile(const std::filesystem::path& path,
                                            const PropertyDictionary& dictionary,
                                            mode_t newFileMode) {
    const std::filesystem::path target = followLinks(path);
    std::optional<mode_t> oldMode;
    if (struct stat old{}; ::stat(target.c_str(), &old) == 0) {
        if (!S_ISREG(old.st_mode)) {
            return {errorOfWhatIsNoFile(old), std::nullopt};
        }
        oldMode = old.st_mode & mode_t{07777};
    }
    ReplacementFile replacement(target, newFileMode);
    if (!replacement.exists()) {
        return {errno, std::nullopt};
    }
    if (const int error = replacement.fill(propertyListXml(dictionary), oldMode)) {
        return {error, std::nullopt};
    }
    // Taken before the new file is where others can write to it.
    const FileStamp stamp = replacement.stamp();
    if (const int error = replacement.putInPlaceOf(target)) {
        return {error, std::nullopt};
    }
    return {0, stamp};
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

} // namespace nocturo
