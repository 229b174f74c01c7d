#include "desktop/menus/status_item.h"

#include "desktop/menus/status_image.h"

#include <QCursor>
#include <QMenu>
#include <QRgba64>

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
    trayColor_.reset();
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
    trayColor_ = std::make_unique<TrayColor>(surroundings_.xDisplay, [this] { setImage(); });
    setImage();
    if (waitingDidChange) {
        waitingDidChange();
    }
}

void StatusItem::setImage() {
    if (icon_ != nullptr) {
        const auto* name = active_ ? kStatusActiveTemplate : kStatusTemplate;
        icon_->setIcon(statusImage(QLatin1String(name), imageColor()));
    }
}

// Only a tray window knows where it has the item. Beside one there may be a tray on the bus, which
// then has the item, on a panel whose color nobody tells.
std::optional<QColor> StatusItem::imageColor() const {
    const auto color = trayColor_ != nullptr ? trayColor_->color() : std::nullopt;
    if (!color || !icon_->geometry().isValid()) {
        return std::nullopt;
    }
    return QColor(qRgba64((*color)[0], (*color)[1], (*color)[2], UINT16_MAX));
}

void StatusItem::wasActivated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger) {
        menu_.popup(QCursor::pos());
    } else if (reason == QSystemTrayIcon::MiddleClick) {
        middleClicked_();
    }
}

} // namespace nocturo
