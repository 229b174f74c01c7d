#include "program/surroundings.h"

#include "x11/xcb_handles.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace nocturo {

namespace {

/// Whether Qt, which ends the process where it finds no desktop, has one to show windows on.
bool hasDesktop() {
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return true;
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY") &&
           xcb_connection_has_error(XcbConnection(xcb_connect(nullptr, nullptr)).get()) == 0;
}

} // namespace

void choosePlatform() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !hasDesktop()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

std::string xDisplayName() {
    return qEnvironmentVariable("DISPLAY").toStdString();
}

std::string loginSession() {
    return qEnvironmentVariable("XDG_SESSION_ID").toStdString();
}

std::filesystem::path settingsPath() {
    return std::filesystem::path(
               QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                   .toStdString()) /
           "nocturo" / "settings.plist";
}

std::filesystem::path stateDirectory() {
    std::filesystem::path directory = qEnvironmentVariable("XDG_STATE_HOME").toStdString();
    if (!directory.is_absolute()) {
        directory =
            std::filesystem::path(qEnvironmentVariable("HOME").toStdString()) / ".local" / "state";
    }
    return directory / "nocturo";
}

QStringList absolutePaths(const std::vector<std::string>& paths) {
    QStringList absolute;
    for (const std::string& path : paths) {
        absolute.append(QFileInfo(QString::fromStdString(path)).absoluteFilePath());
    }
    return absolute;
}

} // namespace nocturo
