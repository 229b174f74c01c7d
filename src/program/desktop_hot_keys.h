#pragma once

#include "base/notification_center.h"

#include <memory>
#include <string>

namespace nocturo {

class Bus;
class HotKeyService;
class KeyboardLayout;
class PortalHotKeyService;
class RunLoop;
class XConnection;

/// The hot key service and the keyboard layout of the desktop, in the event loop: those of the X
/// server, or in a Wayland session the portal's and the compositor's. Where the desktop offers
/// neither, everything works without. The shared hot key center uses the service while this
/// object lives.
class DesktopHotKeys {
  public:
    /// What is pointed to must outlive this.
    struct Surroundings {
        XConnection* server; // null where there is no X server
        std::string waylandDisplay;
        std::string desktop;
        const Bus* sessionBus; // null where there is none
        RunLoop& runLoop;
        NotificationCenter& localCenter;
    };
    explicit DesktopHotKeys(const Surroundings& around);
    ~DesktopHotKeys();
    DesktopHotKeys(const DesktopHotKeys&) = delete;
    DesktopHotKeys& operator=(const DesktopHotKeys&) = delete;

    /// From now on it is the user who sets hot keys.
    void launchDidFinish();

    /// Null where there is none.
    KeyboardLayout* layout() const { return layout_.get(); }

  private:
    void openPortal(const Surroundings& around);

    std::unique_ptr<KeyboardLayout> layout_;
    std::unique_ptr<HotKeyService> service_;
    PortalHotKeyService* portal_ = nullptr; // the service, where it is that
    NotificationCenter& localCenter_;
};

} // namespace nocturo
