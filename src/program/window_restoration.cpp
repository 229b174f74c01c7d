#include "program/window_restoration.h"

#include "app/app_controller.h"
#include "base/log.h"
#include "settings/settings_file.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <utility>

namespace nocturo {

WindowRestoration::WindowRestoration(NDAppController& controller, std::filesystem::path file)
    : controller_(controller), file_(std::move(file)) {
    // The desktop starts Nocturo by its autostart entry; a second start would be a toggle.
    const auto startNothing = [](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
    };
    connect(qGuiApp, &QGuiApplication::saveStateRequest, this, startNothing);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, startNothing);
}

void WindowRestoration::restore() {
    const PropertyListFileContents contents = readPropertyListFile(file_);
    controller_.didDecodeRestorableState(contents.dictionary);
}

void WindowRestoration::startKeeping() {
    keeping_ = true;
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { save(); });
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
