#include "displays/guard/journal_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

// More than the ramps of any machine; a file beyond is not worth reading.
constexpr std::size_t kLongestFile = 64U << 20U;

constexpr mode_t kWritableByOthers = S_IWGRP | S_IWOTH;

// Once it is this user's alone, nobody else can change what its names stand for.
Result<void> checkDirectory(const std::filesystem::path& directory) {
    const FileDescriptor opened(
        ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status {};
    if (opened.get() < 0 || ::fstat(opened.get(), &status) != 0) {
        return failedWith(errno);
    }
    if (status.st_uid != ::geteuid()) {
        return failed("its directory is another user's");
    }
    if ((status.st_mode & kWritableByOthers) != 0) {
        return failed("others may write to its directory");
    }
    return {};
}

} // namespace

JournalFile::JournalFile(std::filesystem::path directory, const std::string& name)
    : directory_(std::move(directory)), path_(directory_ / name) {}

Result<void> JournalFile::write(std::string_view bytes, Durability durability) const {
    return checkDirectory(directory_).and_then([&]() -> Result<void> {
        const auto written = replaceFile(path_, bytes, S_IRUSR | S_IWUSR, durability);
        return written.map([](const auto&) {});
    });
}

Result<std::string> JournalFile::read() const {
    return checkDirectory(directory_)
        .and_then([&] { return openRegularFile(path_, O_NOFOLLOW); })
        .and_then([](const OpenedFile& opened) -> Result<std::string> {
            if (opened.status.st_uid != ::geteuid()) {
                return failed("it is another user's");
            }
            return readAll(opened.descriptor, kLongestFile);
        });
}

Result<void> JournalFile::remove() const {
    return checkDirectory(directory_).and_then([&]() -> Result<void> {
        if (::unlink(path_.c_str()) != 0 && errno != ENOENT) {
            return failedWith(errno);
        }
        return {};
    });
}

void JournalFile::setAside() const {
    if (checkDirectory(directory_)) {
        ::rename(path_.c_str(), (path_.native() + ".damaged").c_str());
    }
}

} // namespace nocturo
