#pragma once

#include "hotkeys/hot_key_service.h"
#include "hotkeys/x11/real_modifiers.h"
#include "x11/xcb_handles.h"

#include <memory>
#include <string>
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
/// A server that goes away makes connectionLost() true and every registration fail; nothing else
/// happens.
class X11HotKeyService final : public HotKeyService {
  public:
    /// Connects to the server of a display name such as ":0". Null when it cannot be reached or has
    /// no keyboard extension (XKB).
    static std::unique_ptr<X11HotKeyService> open(const std::string& displayName);

    std::optional<HotKeyHandle> registerHotKey(std::uint16_t keyCode, std::uint32_t modifiers,
                                               EventHotKeyID hotKeyID) override;
    void unregisterHotKey(HotKeyHandle handle) override;
    void setHandlers(Handler released, Handler pressed) override;

    /// Readable whenever there may be something for processEvents() to take in, also what arrived
    /// during other members, and when the server is gone. It stays the service's.
    int descriptor() const;

    /// Takes in what the server has sent, without waiting for more, and calls the handlers.
    void processEvents();

    bool connectionLost() const;

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

    X11HotKeyService(XcbConnection connection, std::uint8_t firstKeyboardEvent);

    template <class Visit>
    void forEachGrab(const Combination& combination, Visit visit) const;
    bool grab(const Combination& combination);
    void ungrab(const Combination& combination);
    void flushAndWake();

    void handle(const xcb_generic_event_t& event);
    void handlePress(const xcb_key_press_event_t& event);
    void handleRelease(const xcb_key_release_event_t& event);
    void tell(const Handler& handler, const Combination& combination,
              const xcb_key_press_event_t& event) const;
    void followMapping();

    XcbConnection connection_;
    std::uint8_t firstKeyboardEvent_;
    std::vector<xcb_window_t> roots_;
    RealModifiers realModifiers_;
    bool mappingChanged_ = false;
    std::vector<Registration> registrations_;
    std::vector<Combination> held_; // pressed and not released yet
    std::uint64_t lastHandle_ = 0;
    Handler released_;
    Handler pressed_;
};

} // namespace nocturo
