#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <string>

namespace nocturo {

class NDAppController;

/// What launchers and file managers see of the application on the session bus: the interface
/// org.freedesktop.Application on the object that it is given. Platform data is not looked at.
///
/// A launcher starts the application by asking for one of these. What was asked before the launch
/// was done is therefore the launch itself, and switches nothing.
class LauncherFace : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    /// `object` owns the face; it must be made before the object is put on the bus.
    LauncherFace(QObject* object, QDBusConnection bus, NDAppController& controller);

    /// The launch is done. Whatever reached the bus before still counts as part of it.
    void launchDidFinish();

  public Q_SLOTS:
    /// The user starts the application: what starting it a second time does.
    void Activate(const QVariantMap& platformData);

    /// Opens effect documents and shows no window for them. Those that are refused are named in one
    /// sentence (org.nocturo.Error.Failed) and a message; the others are opened nevertheless.
    void Open(const QStringList& uris, const QVariantMap& platformData,
              const QDBusMessage& message);

    /// "toggle", "preferences", "about" or "quit"; others are ignored, and so are parameters.
    void ActivateAction(const QString& name, const QVariantList& parameter,
                        const QVariantMap& platformData);

  private:
    QDBusConnection bus_;
    NDAppController& controller_;
    bool launched_ = false;
};

/// Opens the documents at these paths; names those that were refused in one sentence, which is
/// empty when there are none, and shows them to the user.
std::string openDocuments(NDAppController& controller, const QStringList& paths);

/// Has the application that owns its name on the bus open the documents at these absolute paths; a
/// sentence when it refuses some, empty when all is well, nothing when it does not answer.
std::optional<std::string> openInRunningApplication(const QDBusConnection& bus,
                                                    const QStringList& paths);

} // namespace nocturo
