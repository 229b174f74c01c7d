#include "platform/settings/settings_file.h"

#include "platform/settings/property_list.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

// Hundreds of times what the settings need, and still read without a noticeable wait.
constexpr std::size_t kLargestFile = std::size_t{1} << 20;

class FileDescriptor {
  public:
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    ~FileDescriptor() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const { return descriptor_; }

  private:
    int descriptor_;
};

FileStamp stampOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
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

int writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written >= 0) {
            content.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

/// A file beside `target` under a name of its own, which vanishes unless it is put in its place.
class ReplacementFile {
  public:
    explicit ReplacementFile(const std::filesystem::path& target)
        : name_((target.parent_path() / ("." + target.filename().string() + ".XXXXXX")).string()),
          file_(::mkostemp(name_.data(), O_CLOEXEC)), exists_(file_.get() >= 0) {}
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
        const FileDescriptor directory(
            ::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        ::fsync(directory.get());
        return 0;
    }

  private:
    std::string name_;
    FileDescriptor file_;
    bool exists_;
};

int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // Network file systems do not know that flag, but a link never replaces either.
    if (::link(from.c_str(), to.c_str()) != 0 || ::unlink(from.c_str()) != 0) {
        return errno;
    }
    return 0;
}

std::string localTimestamp(std::chrono::system_clock::time_point when) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
    std::tm local{};
    ::localtime_r(&seconds, &local);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &local)};
}

} // namespace

std::optional<FileStamp> fileStamp(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return stampOf(status);
}

SettingsFileContents readSettingsFile(const std::filesystem::path& path) {
    using State = SettingsFileContents::State;
    SettingsFileContents contents;
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
        return unreadable(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    }
    contents.stamp = stampOf(status);
    std::string xml;
    if (const int error = readAll(file.get(), xml)) {
        return unreadable(error);
    }
    std::optional<PropertyDictionary> dictionary;
    if (xml.size() <= kLargestFile) {
        dictionary = parsePropertyListXml(xml);
    }
    contents.state = dictionary ? State::loaded : State::damaged;
    contents.dictionary = std::move(dictionary).value_or(PropertyDictionary{});
    return contents;
}

SettingsFileWrite writeSettingsFile(const std::filesystem::path& path,
                                    const PropertyDictionary& dictionary) {
    makePrivateDirectories(path.parent_path());
    const std::filesystem::path target = followLinks(path);
    std::optional<mode_t> mode;
    if (struct stat old{}; ::stat(target.c_str(), &old) == 0) {
        mode = old.st_mode & mode_t{07777};
    }
    ReplacementFile replacement(target);
    if (!replacement.exists()) {
        return {errno, std::nullopt};
    }
    if (const int error = replacement.fill(propertyListXml(dictionary), mode)) {
        return {error, std::nullopt};
    }
    // Taken before the new file is where others can write to it.
    const FileStamp stamp = replacement.stamp();
    if (const int error = replacement.putInPlaceOf(target)) {
        return {error, std::nullopt};
    }
    return {0, stamp};
}

SetAsideFile setAsideDamagedFile(const std::filesystem::path& path,
                                 std::chrono::system_clock::time_point when) {
    const std::filesystem::path file = followLinks(path);
    const std::string name = file.string() + ".damaged-" + localTimestamp(when);
    std::string candidate = name;
    for (int number = 2;; ++number) {
        const int error = renameWithoutReplacing(file, candidate);
        if (error != EEXIST) {
            return {error, candidate};
        }
        candidate = name + '-' + std::to_string(number);
    }
}

void makePrivateDirectories(const std::filesystem::path& directory) {
    std::error_code ignored;
    if (directory.empty() || std::filesystem::exists(directory, ignored)) {
        return;
    }
    makePrivateDirectories(directory.parent_path());
    ::mkdir(directory.c_str(), S_IRWXU);
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
