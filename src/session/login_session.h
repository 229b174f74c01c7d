#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <string>

namespace nocturo {

/// What the login manager (logind) tells about the computer and the session this process belongs
/// to. Follows a login manager that starts later; silent where there is none.
class LoginSession : public QObject {
    Q_OBJECT

  public:
    struct Handlers {
        std::function<void()> wokeUp;
        std::function<void()> becameActive; // came to the front again
        std::function<void(bool locked)> lockChanged;
    };

    /// `sessionId` as the environment names it ($XDG_SESSION_ID), or empty. Handlers are called
    /// from the event loop.
    LoginSession(const QDBusConnection& systemBus, const std::string& sessionId, Handlers handlers);

  private Q_SLOTS:
    void prepareForSleep(bool start);
    void propertiesChanged(const QString& interface, const QVariantMap& changed);

  private:
    void findSession();
    void findSessionOfProcess();
    void findSessionOfUser();
    void follow(const QString& sessionPath);
    void take(const QVariantMap& properties);

    QDBusConnection bus_;
    QString sessionId_;
    Handlers handlers_;
    QDBusServiceWatcher watcher_;
    QString sessionPath_;
    bool active_ = true; // until told otherwise, so that the first answer is no change
    bool locked_ = false;
};

} // namespace nocturo
