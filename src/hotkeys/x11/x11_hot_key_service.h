#pragma once

#include "hotkeys/hot_key_service.h"
#include "hotkeys/x11/real_modifiers.h"
#include "x11/x_connection.h"

#include <memory>
#include <vector>

namespace nocturo {

/// Hot keys on an X server, on every screen of it, whichever window has the keyboard. Caps Lock,
/// Num Lock, Scroll Lock and the layout's group never matter. A combination is claimed at most
/// once.
///
/// A release is told of whatever modifiers are held by then, and goes to the registration that the
/// combination has by then: a hot key registered anew while it is held down gets its release, one
/// that was given up or changed stays silent.
///
/// After the server went away every registration fails; nothing else happens.
class X11HotKeyService final : public HotKeyService {
  public:
    /// Over a connection, which must outlive it, and on which nobody else grabs keys. Null when the
    /// server has no keyboard extension (XKB).
    static std::unique_ptr<X11HotKeyService> open(XConnection& server);

    std::optional<HotKeyHandle> registerHotKey(std::uint16_t keyCode, std::uint32_t modifiers,
                                               EventHotKeyID hotKeyID) override;
    void unregisterHotKey(HotKeyHandle handle) override;
    void setHandlers(Handler released, Handler pressed) override;

  private:
    struct Combination {
        std::uint8_t keyCode = 0;    // the server's
        std::uint32_t modifiers = 0; // cmdKey, shiftKey, optionKey, controlKey
        bool operator==(const Combination&) const = default;
    };
    struct Registration {
        HotKeyHandle handle{};
        Combination combination;
        EventHotKeyID hotKeyID;
    };

    X11HotKeyService(XConnection& server, std::uint8_t firstKeyboardEvent);

    template <class Visit>
    void forEachGrab(const Combination& combination, Visit visit) const;
    bool grab(const Combination& combination);
    void ungrab(const Combination& combination);
    void listen(std::uint8_t firstKeyboardEvent);
    void handlePress(const xcb_key_press_event_t& event);
    void handleRelease(const xcb_key_release_event_t& event);
    void tell(const Handler& handler, const Combination& combination,
              const xcb_key_press_event_t& event) const;
    void followMapping();

    XConnection& server_;
    std::vector<XListener> listeners_;
    RealModifiers realModifiers_;
    bool mappingChanged_ = false; // and was not followed yet
    std::vector<Registration> registrations_;
    std::vector<Combination> held_; // pressed and not released yet
    std::uint64_t lastHandle_ = 0;
    Handler released_;
    Handler pressed_;
};

} // namespace nocturo
