#include "desktop/menus/drawn_menu.h"

#include <QAction>
#include <QTextDocument>

namespace nocturo {

namespace {

/// By itself a tool tip that looks like markup would be taken as such.
QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

void show(const MenuItem& item, QAction& action) {
    action.setSeparator(item.isSeparator);
    action.setVisible(item.isVisible);
    action.setCheckable(item.isCheckable);
    action.setChecked(item.isChecked);
    action.setText(QString::fromStdString(indentedText(item)));
    action.setToolTip(plainToolTip(QString::fromStdString(item.toolTip)));
}

} // namespace

DrawnMenu::DrawnMenu(Menu& menu, QMenu& drawn) : menu_(menu), drawn_(&drawn) {
    drawn.setToolTipsVisible(true);
    connect(&drawn, &QMenu::aboutToShow, this,
            [this] { menu_.changes().post(kMenuWillOpenNotification); });
    draw();
    menu_.changes().addObserver(this, kMenuDidChangeNotification, [this] { draw(); });
}

DrawnMenu::~DrawnMenu() {
    menu_.changes().removeObserver(this);
}

QAction* DrawnMenu::action(Menu::Id id) const {
    const auto found = actions_.find(id);
    return found != actions_.end() ? found->second.data() : nullptr;
}

void DrawnMenu::draw() {
    if (drawn_ == nullptr) {
        return;
    }
    removeGone();
    std::map<Menu::Id, qsizetype> places; // the next one in each menu
    for (const auto& [id, item] : menu_.entries()) {
        QAction* present = action(id);
        if (present == nullptr) {
            present = added(id);
        }
        show(item, *present);
        QMenu& menu = drawnUnder(item.under);
        QAction* there = menu.actions().value(places[item.under]++);
        if (there != present) {
            menu.insertAction(there, present);
        }
    }
}

QMenu& DrawnMenu::drawnUnder(Menu::Id id) {
    QAction* parent = action(id);
    if (parent == nullptr) {
        return *drawn_;
    }
    if (parent->menu() == nullptr) {
        parent->setMenu(new QMenu(drawn_));
    }
    return *parent->menu();
}

void DrawnMenu::removeGone() {
    std::erase_if(actions_, [this](const auto& each) {
        const auto& [id, action] = each;
        if (menu_.item(id) != nullptr) {
            return false;
        }
        if (action != nullptr) {
            for (QObject* menu : action->associatedObjects()) {
                qobject_cast<QWidget*>(menu)->removeAction(action);
            }
            action->deleteLater(); // it may be the one whose pick is under way
        }
        return true;
    });
}

QAction* DrawnMenu::added(Menu::Id id) {
    auto* action = new QAction(drawn_);
    connect(action, &QAction::triggered, this, [this, id] { wasPicked(id); });
    actions_[id] = action;
    return action;
}

void DrawnMenu::wasPicked(Menu::Id id) {
    const QPointer<DrawnMenu> self(this);
    menu_.pick(id);
    if (self != nullptr) {
        draw(); // an item that can be checked has toggled by itself
    }
}

} // namespace nocturo
