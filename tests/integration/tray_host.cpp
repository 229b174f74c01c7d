// A panel's tray for tests: owns the name of the StatusNotifierItem watcher and says on standard
// output on which connection an item is shown.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>

#include <cstdio>

class TrayHost : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

  public:
    bool isHostRegistered() const { return true; }
    QStringList items() const { return items_; }
    int protocolVersion() const { return 0; }

  public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& /*service*/, const QDBusMessage& message) {
        items_.append(message.service());
        std::printf("%s\n", message.service().toUtf8().constData());
        std::fflush(stdout);
    }

  private:
    QStringList items_;
};

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    TrayHost host;
    auto bus = QDBusConnection::sessionBus();
    bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &host,
                       QDBusConnection::ExportAllContents);
    bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    return QCoreApplication::exec();
}

#include "tray_host.moc"
