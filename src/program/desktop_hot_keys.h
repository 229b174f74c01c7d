#pragma once

#include <memory>

namespace nocturo {

class KeyboardLayout;
class X11HotKeyService;
class XConnection;
class XkbKeyboardLayout;

/// The hot key service and the keyboard layout of the desktop, in the event loop. Where the desktop
/// offers neither, everything works without. The shared hot key center uses the service while this
/// object lives.
class DesktopHotKeys {
  public:
    /// `server` is null where there is no X server.
    explicit DesktopHotKeys(XConnection* server);
    ~DesktopHotKeys();
    DesktopHotKeys(const DesktopHotKeys&) = delete;
    DesktopHotKeys& operator=(const DesktopHotKeys&) = delete;

    /// Null where there is none.
    KeyboardLayout* layout() const;

  private:
    std::unique_ptr<X11HotKeyService> service_;
    std::unique_ptr<XkbKeyboardLayout> layout_;
};

} // namespace nocturo
