#include "desktop/menus/status_item.h"

#include "desktop/menus/status_image.h"

#include <QCursor>
#include <QMenu>
#include <QRgba64>

#include <utility>

namespace nocturo {

StatusItem::StatusItem(QMenu& menu, XConnection* server, std::function<void()> middleClicked)
    : menu_(menu), server_(server), middleClicked_(std::move(middleClicked)) {}

void StatusItem::setShown(bool shown) {
    if (shown == shown_) {
        return;
    }
    shown_ = shown;
    icon_.reset();
    tray_.reset();
    if (shown && server_ != nullptr) {
        tray_ = std::make_unique<TrayWindow>(*server_, [this] { trayDidChange(); });
        trayDidChange();
    }
    setWaiting(shown && icon_ == nullptr);
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

void StatusItem::setToolTip(const QString& sentence) {
    toolTip_ = sentence;
    if (icon_ != nullptr) {
        icon_->setToolTip(sentence);
    }
}

// Qt decides once, when the first tray icon is made or a tray asked for, which kind of tray this
// process has, and "none" is for good. At login an application may well be there before the panel,
// so nobody may ask Qt before there is a tray. From then on Qt follows trays that come and go.
void StatusItem::trayDidChange() {
    if (icon_ != nullptr) {
        setImage();
    } else if (tray_->isThere()) {
        makeIcon();
        setWaiting(false);
    }
}

void StatusItem::makeIcon() {
    icon_ = std::make_unique<QSystemTrayIcon>();
    icon_->setToolTip(toolTip_);
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, &StatusItem::wasActivated);
    setImage();
    icon_->show();
}

void StatusItem::setImage() {
    if (icon_ != nullptr) {
        icon_->setIcon(statusIcon(active_ ? kStatusActiveTemplate : kStatusTemplate, imageColor()));
    }
}

/// Not valid where the tray does not say.
QColor StatusItem::imageColor() const {
    const auto color = tray_ != nullptr ? tray_->color() : std::nullopt;
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
