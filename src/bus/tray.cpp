#include "bus/tray.h"

#include <utility>

namespace nocturo {

Tray::Tray(Menu& menu, EventLoop& loop, std::string busAddress, Toolkit toolkit, Actions actions)
    : menu_(menu), loop_(loop), busAddress_(std::move(busAddress)), toolkit_(std::move(toolkit)),
      actions_(std::move(actions)) {}

void Tray::setShown(bool shown) {
    if (shown == (item_ != nullptr)) {
        return;
    }
    if (shown) {
        item_ = std::make_unique<StatusNotifierItem>(
            menu_, loop_, busAddress_,
            StatusNotifierItem::Handlers{toolkit_.popUpMenu, actions_.middleClicked,
                                         actions_.scrolled, [this] { hostingDidChange(); }});
        item_->setActive(active_);
        item_->setToolTip(toolTip_);
    } else {
        item_.reset();
    }
    hostingDidChange();
}

void Tray::setActive(bool active) {
    active_ = active;
    if (item_ != nullptr) {
        item_->setActive(active);
    }
}

void Tray::setToolTip(const std::string& sentence) {
    toolTip_ = sentence;
    if (item_ != nullptr) {
        item_->setToolTip(sentence);
    }
}

// A toolkit is slow to come up, so it is not called before it is known that the bus has no tray.
void Tray::hostingDidChange() {
    const bool embedded =
        item_ != nullptr && item_->hosting() == StatusNotifierItem::Hosting::nobody;
    if (std::exchange(embedded_, embedded) != embedded) {
        toolkit_.setEmbedded(embedded);
    }
}

} // namespace nocturo
