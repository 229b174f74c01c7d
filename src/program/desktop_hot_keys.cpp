#include "program/desktop_hot_keys.h"

#include "base/log.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/keyboard/xkb_keyboard_layout.h"
#include "hotkeys/x11/x11_hot_key_service.h"

namespace nocturo {

DesktopHotKeys::DesktopHotKeys(XConnection* server) {
    if (server != nullptr) {
        service_ = X11HotKeyService::open(*server);
        layout_ = std::make_unique<XkbKeyboardLayout>(*server);
    }
    if (service_ != nullptr) {
        HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(service_.get());
    } else {
        logInfo(kLogHotKeys, "There is no X server that could offer a global hot key.");
    }
}

DesktopHotKeys::~DesktopHotKeys() {
    HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(nullptr);
}

KeyboardLayout* DesktopHotKeys::layout() const {
    return layout_.get();
}

} // namespace nocturo
