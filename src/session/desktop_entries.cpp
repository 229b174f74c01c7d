#include "session/desktop_entries.h"

#include <glib.h>

#include <array>
#include <memory>

namespace nocturo {

namespace {

struct PackagedName {
    std::string_view identifier;
    std::string_view entry;
};

constexpr std::array<PackagedName, 3> kPackagedNames = {{
    {"org.herf.Flux", "fluxgui"},
    {"org.herf.Flux", "f.lux"},
    {"org.herf.Flux", "f.lux-indicator-applet"},
}};

struct KeyFileDeleter {
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, KeyFileDeleter>;

struct TextDeleter {
    void operator()(char* text) const { g_free(text); }
};
using Text = std::unique_ptr<char, TextDeleter>;

std::string localText(const KeyFile& entry, const char* key) {
    const Text text(
        g_key_file_get_locale_string(entry.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr, nullptr));
    return text != nullptr ? text.get() : "";
}

// An entry may outlive its program, and says by which file that is to be seen.
bool isThere(const KeyFile& entry) {
    const auto* group = G_KEY_FILE_DESKTOP_GROUP;
    if (g_key_file_get_boolean(entry.get(), group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr)) {
        return false;
    }
    const Text program(
        g_key_file_get_string(entry.get(), group, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, nullptr));
    return program == nullptr || Text(g_find_program_in_path(program.get())) != nullptr;
}

} // namespace

DesktopEntries::DesktopEntries(std::vector<std::filesystem::path> dataDirectories)
    : dataDirectories_(std::move(dataDirectories)) {}

std::vector<std::filesystem::path> DesktopEntries::dataDirectories() {
    std::vector<std::filesystem::path> directories = {g_get_user_data_dir()};
    for (const char* const* each = g_get_system_data_dirs(); *each != nullptr; ++each) {
        directories.emplace_back(*each);
    }
    return directories;
}

std::optional<InstalledApplication>
DesktopEntries::applicationWithBundleIdentifier(std::string_view identifier) const {
    if (auto application = entryNamed(std::string(identifier))) {
        return application;
    }
    for (const PackagedName& name : kPackagedNames) {
        if (name.identifier == identifier) {
            if (auto application = entryNamed(std::string(name.entry))) {
                return application;
            }
        }
    }
    return std::nullopt;
}

std::optional<InstalledApplication> DesktopEntries::entryNamed(const std::string& name) const {
    for (const auto& directory : dataDirectories_) {
        const std::string path = directory / "applications" / (name + ".desktop");
        const KeyFile entry(g_key_file_new());
        // A file that is no desktop entry hides none further on.
        if (!g_key_file_load_from_file(entry.get(), path.c_str(), G_KEY_FILE_KEEP_TRANSLATIONS,
                                       nullptr) ||
            !g_key_file_has_group(entry.get(), G_KEY_FILE_DESKTOP_GROUP)) {
            continue;
        }
        if (!isThere(entry)) {
            return std::nullopt;
        }
        std::string shown = localText(entry, G_KEY_FILE_DESKTOP_KEY_NAME);
        if (shown.empty()) {
            shown = name;
        }
        return InstalledApplication{std::move(shown),
                                    localText(entry, G_KEY_FILE_DESKTOP_KEY_ICON)};
    }
    return std::nullopt;
}

} // namespace nocturo
