#include "documents/effect_document_file.h"

#include "settings/property_lists/property_list_file.h"

#include <sys/stat.h>
#include <sys/xattr.h>

namespace nocturo {

namespace {

// Its presence is what counts.
constexpr const char* kHiddenAttribute = "user.nocturo.extension-hidden";

constexpr mode_t kReadableToWhomTheUmaskLets = 0666;

} // namespace

std::optional<EffectDocument> readEffectDocument(const std::filesystem::path& path) {
    const PropertyListFileContents contents = readPropertyListFile(path);
    // What was not loaded has an empty dictionary, which is no document.
    return effectDocument(contents.dictionary);
}

Result<void> writeEffectDocument(const std::filesystem::path& path,
                                 const EffectDocument& document) {
    const bool hidden = isExtensionHidden(path); // on the file that goes
    const auto written =
        writePropertyListFile(path, propertyDictionary(document), kReadableToWhomTheUmaskLets);
    if (!written) {
        return tl::unexpected(written.error());
    }
    if (hidden) {
        setExtensionHidden(path, true);
    }
    return {};
}

bool isExtensionHidden(const std::filesystem::path& path) {
    return ::getxattr(path.c_str(), kHiddenAttribute, nullptr, 0) >= 0;
}

void setExtensionHidden(const std::filesystem::path& path, bool hidden) {
    if (hidden) {
        ::setxattr(path.c_str(), kHiddenAttribute, "1", 1, 0);
    } else {
        ::removexattr(path.c_str(), kHiddenAttribute);
    }
}

std::string documentDisplayName(const std::filesystem::path& path) {
    return (isExtensionHidden(path) ? path.stem() : path.filename()).string();
}

} // namespace nocturo
