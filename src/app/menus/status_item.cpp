#include "app/menus/status_item.h"

#include "app/menus/status_image.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QPalette>

#include <utility>

namespace nocturo {

StatusItem::StatusItem(QMenu& menu, Surroundings surroundings, std::function<void()> middleClicked)
    : menu_(menu), surroundings_(std::move(surroundings)),
      middleClicked_(std::move(middleClicked)) {}

void StatusItem::setShown(bool shown) {
    if (shown == shown_) {
        return;
    }
    shown_ = shown;
    icon_.reset();
    trayWatch_.reset();
    if (shown) {
        trayWatch_ = std::make_unique<TrayWatch>(surroundings_.bus, surroundings_.xDisplay,
                                                 [this] { trayAppeared(); });
    }
    if (waitingDidChange) {
        waitingDidChange();
    }
}

void StatusItem::setActive(bool active) {
    active_ = active;
    setImage();
}

void StatusItem::trayAppeared() {
    trayWatch_.reset(); // from here on Qt follows trays that come and go
    icon_ = std::make_unique<QSystemTrayIcon>();
    icon_->setToolTip(QStringLiteral("Nocturo"));
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, &StatusItem::wasActivated);
    setImage();
    icon_->show();
    if (waitingDidChange) {
        waitingDidChange();
    }
}

void StatusItem::setImage() {
    if (icon_ != nullptr) {
        const auto* name = active_ ? kStatusActiveTemplate : kStatusTemplate;
        icon_->setIcon(statusImage(QLatin1String(name),
                                   QGuiApplication::palette().color(QPalette::WindowText)));
    }
}

void StatusItem::wasActivated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger) {
        menu_.popup(QCursor::pos());
    } else if (reason == QSystemTrayIcon::MiddleClick) {
        middleClicked_();
    }
}

} // namespace nocturo
