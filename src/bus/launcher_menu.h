#pragma once

#include "bus/menu_exporter.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QMenu>

namespace nocturo {

/// The menu of the application's icon in a dock, for docks that take one from a running application
/// (com.canonical.Unity.LauncherEntry). Needs a QApplication.
class LauncherMenu : public QObject {
  public:
    explicit LauncherMenu(const QDBusConnection& bus);

    QMenu& menu() { return menu_; }

    /// Offers the menu, now and to every dock that starts later.
    void offer();

  private:
    void announce();

    QDBusConnection bus_;
    QMenu menu_;
    MenuExporter exporter_;
    QDBusServiceWatcher docks_;
};

} // namespace nocturo
