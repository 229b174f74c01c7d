#include "bus/launcher_face.h"

#include "app/app_controller.h"
#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "desktop/qt/bus_call.h"

#include <QCoreApplication>
#include <QUrl>

#include <string>
#include <utility>
#include <vector>

namespace nocturo {

namespace {

const QString kApplicationInterface = QStringLiteral("org.freedesktop.Application");

// The one that runs may be asking its user something before it comes to open anything.
constexpr int kOpenTimeoutMs = 5000;

QString pathOf(const QString& uri) {
    const QUrl url(uri);
    return url.isLocalFile() ? url.toLocalFile() : uri;
}

} // namespace

LauncherFace::LauncherFace(QObject* object, QDBusConnection bus, NDAppController& controller)
    : QDBusAbstractAdaptor(object), bus_(std::move(bus)), controller_(controller) {}

void LauncherFace::launchDidFinish() {
    // The bus keeps the order: what it sent before its answer to this is here before the answer.
    callLater(bus_,
              QDBusMessage::createMethodCall(
                  QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                  QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")),
              this, [this](const QDBusMessage& /*answer*/) { launched_ = true; });
}

void LauncherFace::Activate(const QVariantMap& /*platformData*/) {
    if (launched_) {
        controller_.applicationShouldHandleReopen(false);
    }
}

void LauncherFace::Open(const QStringList& uris, const QVariantMap& /*platformData*/,
                        const QDBusMessage& message) {
    QStringList paths;
    for (const QString& uri : uris) {
        paths.append(pathOf(uri));
    }
    const std::string refused = openDocuments(controller_, paths);
    if (!refused.empty()) {
        message.setDelayedReply(true);
        bus_.send(
            message.createErrorReply(QLatin1String(kFailedError), QString::fromStdString(refused)));
    }
}

void LauncherFace::ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                                  const QVariantMap& /*platformData*/) {
    if (name == QLatin1String("toggle") && launched_) {
        controller_.toggleGlobalEffect();
    } else if (name == QLatin1String("preferences")) {
        controller_.openPreferences();
    } else if (name == QLatin1String("about")) {
        controller_.openAboutBox();
    } else if (name == QLatin1String("quit")) {
        QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    }
}

std::string openDocuments(NDAppController& controller, const QStringList& paths) {
    std::vector<std::string> refused;
    for (const QString& path : paths) {
        if (!controller.openFile(path.toStdString())) {
            refused.push_back(path.toStdString());
        }
    }
    if (refused.empty()) {
        return {};
    }
    // Whoever opened them with a click sees no standard error, and launchers drop the answer.
    controller.showRefusedDocuments(refused);
    if (refused.size() == 1) {
        return translated("\"%@\" is not an effect document.", {refused.front()});
    }
    std::string names;
    for (const std::string& path : refused) {
        names += (names.empty() ? "" : ", ") + path;
    }
    return translated("These are not effect documents: %@", {names});
}

std::optional<std::string> openInRunningApplication(const QDBusConnection& bus,
                                                    const QStringList& paths) {
    QStringList uris;
    for (const QString& path : paths) {
        uris.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(QLatin1String(kBusName), QLatin1String(kObjectPath),
                                       kApplicationInterface, QStringLiteral("Open"));
    call << uris << QVariantMap();
    const QDBusMessage answer = bus.call(call, QDBus::Block, kOpenTimeoutMs);
    if (answer.type() != QDBusMessage::ErrorMessage) {
        return std::string();
    }
    if (answer.errorName() == QLatin1String(kFailedError)) {
        return answer.errorMessage().toStdString();
    }
    return std::nullopt;
}

} // namespace nocturo
