#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QHash>
#include <QMenu>

#include <optional>

namespace nocturo {

/// Shows a menu on the bus (com.canonical.dbusmenu), for a dock to show as its own. Items keep
/// their numbers as long as they live. Menus within the menu are left out.
class MenuExporter : public QDBusVirtualObject {
  public:
    /// The menu must outlive the exporter.
    MenuExporter(QMenu& menu, QDBusConnection bus, const QString& path);
    ~MenuExporter() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    int idOf(const QAction* item);
    QAction* itemOf(int id) const;
    QVariantMap propertiesOf(const QAction& item) const;
    QVariant layoutOf(const QAction& item);
    std::optional<QList<QVariant>> answerTo(const QDBusMessage& message);
    QList<QVariant> layout(int parent);
    QVariant groupProperties(const QList<int>& ids);
    bool handleEvent(int id, const QString& event); // false for an unknown item
    QList<int> handleEvents(const QDBusArgument& events);
    void tellLayout();

    QMenu& menu_;
    QDBusConnection bus_;
    QString path_;
    QHash<const QAction*, int> ids_;
    int lastId_ = 0; // 0 is the menu itself
    uint revision_ = 1;
    bool changed_ = false; // and not told yet
};

} // namespace nocturo
