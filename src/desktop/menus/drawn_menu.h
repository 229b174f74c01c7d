#pragma once

#include "app/menu.h"

#include <QMenu>
#include <QPointer>

#include <map>

namespace nocturo {

/// Shows a menu of the core as a QMenu, with its submenus: items are changed in place, and picked
/// ones passed on.
/// Needs a QApplication.
class DrawnMenu : public QObject {
  public:
    /// `menu` must outlive this; `drawn`, which should be empty, need not.
    DrawnMenu(Menu& menu, QMenu& drawn);
    ~DrawnMenu() override;

    /// Null where there is no such item, or the QMenu is gone.
    QAction* action(Menu::Id id) const;

  private:
    void draw();
    QMenu& drawnUnder(Menu::Id id);
    void removeGone();
    QAction* added(Menu::Id id);
    void wasPicked(Menu::Id id);

    Menu& menu_;
    QPointer<QMenu> drawn_;
    std::map<Menu::Id, QPointer<QAction>> actions_;
};

} // namespace nocturo
