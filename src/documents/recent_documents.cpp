#include "documents/recent_documents.h"

#include "settings/settings_file.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kPaths = "Paths";

void write(const std::filesystem::path& file, const std::vector<std::string>& paths) {
    PropertyArray list;
    list.assign(paths.begin(), paths.end());
    writeSettingsFile(file, {{kPaths, std::move(list)}});
}

} // namespace

RecentDocuments::RecentDocuments(std::filesystem::path file) : file_(std::move(file)) {}

std::vector<std::string> RecentDocuments::paths() const {
    const PropertyListFileContents contents = readPropertyListFile(file_);
    const auto found = contents.dictionary.find(kPaths);
    const auto* list =
        found != contents.dictionary.end() ? found->second.as<PropertyArray>() : nullptr;
    std::vector<std::string> paths;
    if (list == nullptr) {
        return paths;
    }
    for (const PropertyValue& each : *list) {
        const auto* path = each.as<std::string>();
        std::error_code error;
        if (path != nullptr && std::filesystem::exists(*path, error)) {
            paths.push_back(*path);
        }
    }
    return paths;
}

std::filesystem::path RecentDocuments::folder() const {
    const std::vector<std::string> latest = paths();
    return latest.empty() ? std::filesystem::path()
                          : std::filesystem::path(latest.front()).parent_path();
}

void RecentDocuments::note(const std::string& path) const {
    std::vector<std::string> list = paths();
    std::erase(list, path);
    list.insert(list.begin(), path);
    list.resize(std::min(list.size(), kMost));
    write(file_, list);
}

void RecentDocuments::clear() const {
    write(file_, {});
}

} // namespace nocturo
