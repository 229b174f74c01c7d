#include "program/window_restoration.h"

#include "app/app_controller.h"
#include "base/log.h"
#include "settings/settings_file.h"

#include <utility>

namespace nocturo {

WindowRestoration::WindowRestoration(NDAppController& controller, std::filesystem::path file)
    : controller_(controller), file_(std::move(file)) {}

void WindowRestoration::restore() {
    const PropertyListFileContents contents = readPropertyListFile(file_);
    controller_.didDecodeRestorableState(contents.dictionary);
}

void WindowRestoration::save() const {
    if (!keeping_) {
        return;
    }
    PropertyDictionary state;
    controller_.willEncodeRestorableState(state);
    if (const auto written = writeSettingsFile(file_, state); !written) {
        logWarning(kLogApp, "Which windows are open cannot be kept in " + file_.string() + ": " +
                                written.error().text + ".");
    }
}

} // namespace nocturo
