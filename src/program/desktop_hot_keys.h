#pragma once

#include "base/run_loop.h"

#include <memory>
#include <string>

namespace nocturo {

class KeyboardLayout;
class X11HotKeyService;
class XkbKeyboardLayout;

/// The hot key service and the keyboard layout of the desktop, in the event loop. Where the desktop
/// offers neither, everything works without. The shared hot key center uses the service while this
/// object lives.
class DesktopHotKeys {
  public:
    /// `xDisplay` is empty where there is no X server.
    DesktopHotKeys(const std::string& xDisplay, RunLoop& runLoop);
    ~DesktopHotKeys();
    DesktopHotKeys(const DesktopHotKeys&) = delete;
    DesktopHotKeys& operator=(const DesktopHotKeys&) = delete;

    /// Null where there is none.
    KeyboardLayout* layout() const;

  private:
    std::unique_ptr<X11HotKeyService> service_;
    std::unique_ptr<XkbKeyboardLayout> layout_;
    std::unique_ptr<Watch> serviceWatch_;
    std::unique_ptr<Watch> layoutWatch_;
};

} // namespace nocturo
