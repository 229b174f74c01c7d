#include "session/autostart.h"

#include "base/files.h"
#include "base/texts/translated.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kEntry = "org.nocturo.Nocturo.desktop";

/// The group that every entry begins with says whether it counts.
bool isSwitchedOff(const std::filesystem::path& entry) {
    constexpr std::size_t kLargest = 65536; // bytes
    const auto file = openRegularFile(entry);
    std::istringstream text(file ? readAll(file->descriptor, kLargest).value_or("") : "");
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("[") && line != "[Desktop Entry]") {
            return false;
        }
        std::erase(line, ' ');
        if (line == "Hidden=true" || line == "X-GNOME-Autostart-enabled=false") {
            return true;
        }
    }
    return false;
}

/// As the key "Exec" has a path: in quotation marks, with what means something in them escaped.
std::string quoted(const std::string& path) {
    std::string text = "\"";
    for (const char character : path) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) {
            text += "\\\\";
        }
        text += character == '%' ? "%%" : std::string(1, character);
    }
    return text + '"';
}

} // namespace

Autostart::Autostart(const std::filesystem::path& own,
                     const std::vector<std::filesystem::path>& configuration,
                     std::filesystem::path program)
    : own_(own / kEntry),
      isInstalled_(std::ranges::any_of(configuration,
                                       [](const std::filesystem::path& directory) {
                                           std::error_code unknown;
                                           return std::filesystem::exists(
                                               directory / "autostart" / kEntry, unknown);
                                       })),
      program_(std::move(program)) {}

bool Autostart::isOn() const {
    std::error_code unknown;
    return std::filesystem::exists(own_, unknown) ? !isSwitchedOff(own_) : isInstalled_;
}

Result<void> Autostart::setOn(bool on) const {
    std::string problem;
    if (on == isInstalled_) {
        std::error_code error;
        std::filesystem::remove(own_, error); // what is installed holds
        problem = error ? error.message() : "";
    } else {
        makePrivateDirectories(own_.parent_path());
        std::string entry = "[Desktop Entry]\nType=Application\nName=Nocturo\n";
        entry += on ? "Exec=" + quoted(program_) + " --at-login\nIcon=org.nocturo.Nocturo\n"
                    : "Hidden=true\n";
        constexpr mode_t kMode = 0644;
        if (const auto replaced = replaceFile(own_, entry, kMode, Durability::survivesPowerCuts);
            !replaced) {
            problem = replaced.error().text;
        }
    }
    if (!problem.empty()) {
        return failed(
            translated("Could not save settings at \"%@\": %@.", {own_.string(), problem}));
    }
    return {};
}

} // namespace nocturo
