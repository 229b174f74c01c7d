#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <string>

namespace nocturo {

class DefaultsStore;
class DisturbanceWatch;
class KeyboardLayout;
class LauncherFace;
class NDAppController;
class NotificationCenter;
class UserInterface;
struct Setting;

/// The application's object on the session bus; its interface and what each member does stand in
/// org.nocturo.Nocturo1.xml.
class BusFace : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(bool Active READ active)
    Q_PROPERTY(QString DisplayServices READ displayServicesName)
    Q_PROPERTY(QList<QVariantMap> Displays READ displays)
    Q_PROPERTY(QStringList Effects READ effects)
    Q_PROPERTY(double DimLevel READ dimLevel)
    Q_PROPERTY(double ColorFilterHue READ colorFilterHue)
    Q_PROPERTY(double ColorFilterVividness READ colorFilterVividness)
    Q_PROPERTY(QList<qlonglong> AffectedScreenSet READ affectedScreens)
    Q_PROPERTY(QVariantMap HotKey READ hotKey)
    Q_PROPERTY(QVariantMap Settings READ settings)
    Q_PROPERTY(uint Disturbances READ disturbances)
    Q_PROPERTY(QString Disturber READ disturber)

  public:
    /// All must outlive the face.
    BusFace(NDAppController& controller, DefaultsStore& defaults, NotificationCenter& localCenter,
            const DisturbanceWatch& disturbances, UserInterface& userInterface);
    ~BusFace() override;

    /// Puts the object on the bus and takes the application's name. False when another process has
    /// it; then it may be tried again. Calls wait until the event loop runs.
    bool takeName(const QDBusConnection& bus);

    /// Names and reads keys by this layout, which must outlive the face; null for none.
    void setKeyboardLayout(KeyboardLayout* layout) { layout_ = layout; }

    /// Announces changes from now on. Each is announced from the event loop, once everybody else
    /// who follows it has acted.
    void announceChanges();

    /// Launchers' calls are more than the launch from now on.
    void launchDidFinish();

    bool active() const;
    QString displayServicesName() const;
    QList<QVariantMap> displays() const;
    QStringList effects() const;
    double dimLevel() const;
    double colorFilterHue() const;
    double colorFilterVividness() const;
    QList<qlonglong> affectedScreens() const;
    QVariantMap hotKey() const;
    QVariantMap settings() const;
    uint disturbances() const;
    QString disturber() const;

  public Q_SLOTS:
    void SetActive(bool active);
    void Toggle();
    void AddEffects(const QStringList& names);
    void RemoveEffects(const QStringList& names);
    void SetSetting(const QString& key, const QDBusVariant& value);
    void ResetSetting(const QString& key);
    void ToggleScreen(uint id);
    void AffectAllScreens();
    void SetHotKey(const QString& text);
    void OpenFile(const QString& path);
    void SaveFile(const QString& path);
    void ShowPreferences();
    void ShowAboutBox();
    QByteArray RenderPreview(uint id);
    void Reopen();
    void Quit();

  private:
    QVariantMap snapshot() const;
    void announceSoon();
    void announce();

    /// The setting of that key; otherwise null, and the call is refused.
    const Setting* knownSetting(const QString& key);

    // Answer the call being handled with an error.
    void refuse(const std::string& sentence);
    void fail(const std::string& sentence);

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    const DisturbanceWatch& disturbances_;
    UserInterface& userInterface_;
    KeyboardLayout* layout_ = nullptr;
    LauncherFace* launcherFace_ = nullptr; // a child of this object
    std::optional<QDBusConnection> bus_;
    QVariantMap announced_;
    bool announcing_ = false; // soon
};

/// Has the application that owns its name on the bus be re-opened; false when it does not answer.
bool reopenRunningApplication(const QDBusConnection& bus);

} // namespace nocturo
