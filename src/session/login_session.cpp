#include "session/login_session.h"

#include "desktop/qt/bus_call.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <unistd.h>
#include <utility>

// A process finds its session by the number in its environment; without one by asking whose it is;
// and when it belongs to none, because the user's service manager started it, the user's graphical
// session is meant.

namespace nocturo {

namespace {

const QString kService = QStringLiteral("org.freedesktop.login1");
const QString kManagerPath = QStringLiteral("/org/freedesktop/login1");
const QString kManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString kSession = QStringLiteral("org.freedesktop.login1.Session");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

QDBusMessage managerCall(const QString& method, const QVariant& argument) {
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kManagerPath, kManager, method);
    call << argument;
    return call;
}

bool isReply(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty();
}

QString pathIn(const QVariant& value) {
    return value.value<QDBusObjectPath>().path();
}

} // namespace

LoginSession::LoginSession(const QDBusConnection& systemBus, const std::string& sessionId,
                           Handlers handlers)
    : bus_(systemBus), sessionId_(QString::fromStdString(sessionId)),
      handlers_(std::move(handlers)),
      watcher_(kService, bus_, QDBusServiceWatcher::WatchForRegistration) {
    bus_.connect(kService, kManagerPath, kManager, QStringLiteral("PrepareForSleep"), this,
                 SLOT(prepareForSleep(bool)));
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, [this] { findSession(); });
    findSession();
}

void LoginSession::prepareForSleep(bool start) {
    if (!start) {
        handlers_.wokeUp();
    }
}

void LoginSession::findSession() {
    if (sessionId_.isEmpty()) {
        findSessionOfProcess();
        return;
    }
    callLater(bus_, managerCall(QStringLiteral("GetSession"), sessionId_), this,
              [this](const QDBusMessage& answer) {
                  if (isReply(answer)) {
                      follow(pathIn(answer.arguments().constFirst()));
                  } else {
                      findSessionOfProcess();
                  }
              });
}

void LoginSession::findSessionOfProcess() {
    const auto process = static_cast<unsigned>(getpid());
    callLater(bus_, managerCall(QStringLiteral("GetSessionByPID"), process), this,
              [this](const QDBusMessage& answer) {
                  if (isReply(answer)) {
                      follow(pathIn(answer.arguments().constFirst()));
                  } else {
                      findSessionOfUser();
                  }
              });
}

void LoginSession::findSessionOfUser() {
    callLater(bus_,
              propertyCall(kService, kManagerPath + QStringLiteral("/user/self"),
                           QStringLiteral("org.freedesktop.login1.User"),
                           QStringLiteral("Display")),
              this, [this](const QDBusMessage& answer) {
                  if (!isReply(answer)) {
                      return;
                  }
                  const auto value = answer.arguments().constFirst().value<QDBusVariant>();
                  const auto display = value.variant().value<QDBusArgument>();
                  QString id;
                  QDBusObjectPath path;
                  if (display.currentSignature() == QLatin1String("(so)")) {
                      display.beginStructure();
                      display >> id >> path;
                      display.endStructure();
                      follow(path.path());
                  }
              });
}

void LoginSession::follow(const QString& sessionPath) {
    const QString changed = QStringLiteral("PropertiesChanged");
    const char* slot = SLOT(propertiesChanged(QString, QVariantMap));
    if (!sessionPath_.isEmpty()) {
        bus_.disconnect(kService, sessionPath_, kProperties, changed, this, slot);
    }
    sessionPath_ = sessionPath;
    bus_.connect(kService, sessionPath_, kProperties, changed, this, slot);
    QDBusMessage call = QDBusMessage::createMethodCall(kService, sessionPath_, kProperties,
                                                       QStringLiteral("GetAll"));
    call << kSession;
    callLater(bus_, call, this, [this](const QDBusMessage& answer) {
        if (isReply(answer)) {
            take(qdbus_cast<QVariantMap>(answer.arguments().constFirst()));
        }
    });
}

void LoginSession::propertiesChanged(const QString& interface, const QVariantMap& changed) {
    if (interface == kSession) {
        take(changed);
    }
}

void LoginSession::take(const QVariantMap& properties) {
    const bool wasActive =
        std::exchange(active_, properties.value(QStringLiteral("Active"), active_).toBool());
    const bool wasLocked =
        std::exchange(locked_, properties.value(QStringLiteral("LockedHint"), locked_).toBool());
    if (active_ && !wasActive) {
        handlers_.becameActive();
    }
    if (locked_ != wasLocked) {
        handlers_.lockChanged(locked_);
    }
}

} // namespace nocturo
