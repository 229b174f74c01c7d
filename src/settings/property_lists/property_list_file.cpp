#include "settings/property_lists/property_list_file.h"

#include "base/files.h"
#include "settings/property_lists/property_list.h"

#include <cerrno>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace nocturo {

namespace {

FileStamp stampOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

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

    const auto file = openRegularFile(path);
    if (!file) {
        return file.error().errorNumber == ENOENT ? contents : unreadable(file.error().errorNumber);
    }
    contents.stamp = stampOf(file->status);
    const auto content = readAll(file->descriptor, kLongestPropertyList);
    if (!content && content.error().errorNumber != EFBIG) {
        return unreadable(content.error().errorNumber);
    }
    std::optional<PropertyDictionary> dictionary;
    if (content) {
        dictionary = parsePropertyList(*content);
    }
    contents.state = dictionary ? State::loaded : State::damaged;
    contents.dictionary = std::move(dictionary).value_or(PropertyDictionary{});
    return contents;
}

Result<FileStamp> writePropertyListFile(const std::filesystem::path& path,
                                        const PropertyDictionary& dictionary, mode_t newFileMode) {
    const std::string xml = propertyListXml(dictionary);
    if (!isWithinLimits(xml)) {
        return failedWith(EFBIG); // it would be taken for a damaged one
    }
    return replaceFile(followLinks(path), xml, newFileMode, Durability::survivesPowerCuts)
        .map(stampOf);
}

} // namespace nocturo
