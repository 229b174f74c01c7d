#include "program/desktop_hot_keys.h"

#include "base/environment.h"
#include "base/log.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/keyboard/wayland_keyboard_layout.h"
#include "hotkeys/keyboard/xkb_keyboard_layout.h"
#include "hotkeys/portal/portal_hot_key_service.h"
#include "hotkeys/saved_hot_key.h"
#include "hotkeys/x11/x11_hot_key_service.h"
#include "settings/defaults_store.h"

namespace nocturo {

DesktopHotKeys::DesktopHotKeys(const Surroundings& around) : localCenter_(around.localCenter) {
    // A grab on the X server of a Wayland session would never see a key.
    if (!around.waylandDisplay.empty()) {
        openPortal(around);
    } else if (around.server != nullptr) {
        service_ = X11HotKeyService::open(*around.server);
        layout_ = std::make_unique<XkbKeyboardLayout>(*around.server);
    }
    if (service_ != nullptr) {
        HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(service_.get());
    } else {
        logInfo(kLogHotKeys, "There is no X server that could offer a global hot key.");
    }
}

DesktopHotKeys::~DesktopHotKeys() {
    localCenter_.removeObserver(this);
    HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(nullptr);
}

void DesktopHotKeys::openPortal(const Surroundings& around) {
    layout_ = std::make_unique<WaylandKeyboardLayout>(around.waylandDisplay, around.runLoop);
    auto portal = std::make_unique<PortalHotKeyService>(PortalHotKeyService::Surroundings{
        around.sessionBus, around.runLoop, layout_.get(),
        GrantedHotKeys(stateDirectory() / "hot-keys.plist", around.desktop),
        [this] { localCenter_.post(kHotKeyGrantNotification); }});
    portal_ = portal.get();
    service_ = std::move(portal);
}

void DesktopHotKeys::launchDidFinish() {
    if (portal_ == nullptr) {
        return;
    }
    portal_->launchDidFinish();
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [this](const Subjects& settings) {
                                 if (settings.containAnyOf(kHotKeySettings)) {
                                     portal_->hotKeyWasSet();
                                 }
                             });
}

} // namespace nocturo
