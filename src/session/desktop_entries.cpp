#include "session/desktop_entries.h"

#include "base/environment.h"
#include "base/files.h"
#include "base/texts/users_language.h"

#include <algorithm>
#include <array>
#include <map>
#include <unistd.h>

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

/// The keys of an entry's main group, translations among them: "Name[de]".
using Entry = std::map<std::string, std::string>;

constexpr std::size_t kMostBytes = 1 << 20;

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string unescaped(std::string_view value) {
    constexpr std::string_view kLetters = "sntr";
    constexpr std::string_view kMeant = " \n\t\r";
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) {
            ++i;
            const auto place = kLetters.find(value[i]);
            text += place == std::string_view::npos ? value[i] : kMeant[place];
        } else {
            text += value[i];
        }
    }
    return text;
}

/// Nothing where the file is no desktop entry.
std::optional<Entry> readEntry(const std::filesystem::path& path) {
    const auto content = openRegularFile(path).and_then(
        [](const OpenedFile& file) { return readAll(file.descriptor, kMostBytes); });
    if (!content) {
        return std::nullopt;
    }
    std::optional<Entry> entry;
    bool isInMainGroup = false;
    for (std::string_view rest = *content; !rest.empty();) {
        const auto end = std::min(rest.find('\n'), rest.size());
        const std::string_view line = trimmed(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        const auto equals = line.find('=');
        if (line.starts_with('[')) {
            isInMainGroup = line == "[Desktop Entry]";
            entry = isInMainGroup && !entry ? Entry() : std::move(entry);
        } else if (isInMainGroup && !line.starts_with('#') && equals != std::string_view::npos) {
            entry->insert_or_assign(std::string(trimmed(line.substr(0, equals))),
                                    unescaped(trimmed(line.substr(equals + 1))));
        }
    }
    return entry;
}

std::string textOf(const Entry& entry, const std::string& key) {
    const auto found = entry.find(key);
    return found != entry.end() ? found->second : std::string();
}

/// In the user's language where the entry has it: "de_AT@euro", "de_AT", "de@euro", then "de".
std::string localText(const Entry& entry, const std::string& key) {
    for (const std::string& locale : wantedLocales()) {
        const std::string name = locale.substr(0, locale.find_first_of(".@"));
        const std::string language = name.substr(0, name.find('_'));
        const auto at = std::min(locale.find('@'), locale.size());
        const std::string variety = locale.substr(at);
        for (const auto& each : {name + variety, name, language + variety, language}) {
            std::string translation = key;
            translation.append("[").append(each).append("]");
            if (std::string text = textOf(entry, translation); !text.empty()) {
                return text;
            }
        }
    }
    return textOf(entry, key);
}

bool isProgram(const std::filesystem::path& program) {
    const auto runs = [](const std::filesystem::path& path) {
        std::error_code error;
        return access(path.c_str(), X_OK) == 0 && std::filesystem::is_regular_file(path, error);
    };
    if (program.string().find('/') != std::string::npos) {
        return runs(program);
    }
    const auto directories = partsOfList(environment("PATH"));
    return std::any_of(directories.begin(), directories.end(),
                       [&](const std::filesystem::path& each) { return runs(each / program); });
}

/// An entry may outlive its program, and says by which file that is to be seen.
bool isThere(const Entry& entry) {
    const std::string program = textOf(entry, "TryExec");
    return textOf(entry, "Hidden") != "true" && (program.empty() || isProgram(program));
}

} // namespace

DesktopEntries::DesktopEntries(std::vector<std::filesystem::path> dataDirectories)
    : dataDirectories_(std::move(dataDirectories)) {}

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
        const auto entry = readEntry(directory / "applications" / (name + ".desktop"));
        if (!entry) {
            continue; // a file that is no desktop entry hides none further on
        }
        if (!isThere(*entry)) {
            return std::nullopt;
        }
        std::string shown = localText(*entry, "Name");
        if (shown.empty()) {
            shown = name;
        }
        return InstalledApplication{std::move(shown), localText(*entry, "Icon")};
    }
    return std::nullopt;
}

} // namespace nocturo
