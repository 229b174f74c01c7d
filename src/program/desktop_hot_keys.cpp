#include "program/desktop_hot_keys.h"

#include "base/log.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/keyboard/xkb_keyboard_layout.h"
#include "hotkeys/x11/x11_hot_key_service.h"

namespace nocturo {

namespace {

// Takes in what the server sends; the descriptor of one that has gone would be readable for ever.
template <typename Source>
std::unique_ptr<Watch> watch(RunLoop& runLoop, Source& source, std::unique_ptr<Watch>& keptIn) {
    return runLoop.watch(source.descriptor(), [&source, &keptIn] {
        source.processEvents();
        if (source.connectionLost()) {
            keptIn.reset();
        }
    });
}

} // namespace

DesktopHotKeys::DesktopHotKeys(const std::string& xDisplay, RunLoop& runLoop) {
    if (!xDisplay.empty()) {
        service_ = X11HotKeyService::open(xDisplay);
        layout_ = XkbKeyboardLayout::open(xDisplay);
    }
    if (service_ != nullptr) {
        serviceWatch_ = watch(runLoop, *service_, serviceWatch_);
        HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(service_.get());
    } else {
        logInfo(kLogHotKeys, "There is no X server that could offer a global hot key.");
    }
    if (layout_ != nullptr) {
        layoutWatch_ = watch(runLoop, *layout_, layoutWatch_);
    }
}

DesktopHotKeys::~DesktopHotKeys() {
    HXHotKeyCenter::sharedHotKeyCenter().setHotKeyService(nullptr);
}

KeyboardLayout* DesktopHotKeys::layout() const {
    return layout_.get();
}

} // namespace nocturo
