#include "program/kept_display_names.h"

#include "base/notification_center.h"
#include "base/notification_names.h"
#include "displays/display_names.h"
#include "settings/settings_file.h"

#include <charconv>
#include <utility>

namespace nocturo {

namespace {

constexpr std::size_t kMost = 100;

} // namespace

KeptDisplayNames::KeptDisplayNames(std::filesystem::path file, NotificationCenter& localCenter)
    : file_(std::move(file)), localCenter_(localCenter) {
    for (const auto& [digits, value] : readPropertyListFile(file_).dictionary) {
        CGDirectDisplayID display = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), display);
        const auto* name = value.as<std::string>();
        if (display != 0 && name != nullptr && names_.size() < kMost) {
            names_[digits] = *name;
            DisplayNames::shared().learn(display, *name);
        }
    }
    keep();
    localCenter_.addObserver(this, NSApplicationDidChangeScreenParametersNotification,
                             [this] { keep(); });
}

KeptDisplayNames::~KeptDisplayNames() {
    localCenter_.removeObserver(this);
}

void KeptDisplayNames::keep() {
    PropertyDictionary names = names_;
    for (const CGDirectDisplayID display : DisplayNames::shared().known()) {
        if (names.size() < kMost || names.contains(std::to_string(display))) {
            names[std::to_string(display)] = DisplayNames::shared().nameOf(display);
        }
    }
    if (names != names_ && writeSettingsFile(file_, names)) {
        names_ = std::move(names);
    }
}

} // namespace nocturo
