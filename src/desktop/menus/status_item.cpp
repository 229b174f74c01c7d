#include "desktop/menus/status_item.h"

#include "desktop/menus/status_image.h"

#include <QCursor>
#include <QMenu>
#include <QRgba64>

#include <utility>

namespace nocturo {

StatusItem::StatusItem(QMenu& menu, std::string xDisplay, RunLoop& runLoop,
                       std::function<void()> middleClicked)
    : menu_(menu), xDisplay_(std::move(xDisplay)), runLoop_(runLoop),
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
        trayWatch_ = std::make_unique<TrayWatch>(
            xDisplay_, runLoop_, [this] { trayAppeared(); }, [this] { setWaiting(true); });
    }
    setWaiting(false);
}

void StatusItem::setWaiting(bool noTray) {
    if (std::exchange(noTray_, noTray) != noTray && waitingDidChange) {
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
    trayColor_ = std::make_unique<TrayColor>(xDisplay_, runLoop_, [this] { setImage(); });
    setImage();
    setWaiting(false);
}

void StatusItem::setImage() {
    if (icon_ != nullptr) {
        icon_->setIcon(statusIcon(active_ ? kStatusActiveTemplate : kStatusTemplate, imageColor()));
    }
}

/// Not valid where the tray does not say.
QColor StatusItem::imageColor() const {
    const auto color = trayColor_ != nullptr ? trayColor_->color() : std::nullopt;
    if (!color) {
        return {};
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
