#include "hotkeys/portal/granted_hot_keys.h"

#include "base/log.h"
#include "settings/settings_file.h"

#include <utility>

namespace nocturo {

GrantedHotKeys::GrantedHotKeys(std::filesystem::path file, std::string desktop)
    : file_(std::move(file)), desktop_(std::move(desktop)) {
    const auto contents = readPropertyListFile(file_);
    const auto found = contents.dictionary.find(desktop_);
    const bool* granted = found != contents.dictionary.end() ? found->second.as<bool>() : nullptr;
    granted_ = granted != nullptr && *granted;
}

void GrantedHotKeys::setGranted(bool granted) {
    if (std::exchange(granted_, granted) == granted) {
        return;
    }
    PropertyDictionary dictionary = readPropertyListFile(file_).dictionary;
    dictionary.insert_or_assign(desktop_, granted);
    if (const auto written = writeSettingsFile(file_, dictionary); !written) {
        logWarning(kLogHotKeys, "That the desktop has granted the hot key cannot be kept in " +
                                    file_.string() + ": " + written.error().text + ".");
    }
}

} // namespace nocturo
