#pragma once

#include "platform/x11/xcb_handles.h"

#include <cstdint>
#include <string>

namespace nocturo::rig {

/// The keyboard of an X server, and a connection of another program's. Keys are evdev codes, masks
/// are the protocol's (XCB_MOD_MASK_...). Every member returns once the server has done it, and
/// throws std::runtime_error when the server refuses.
class XKeyboard {
  public:
    /// The keyboard has the us layout then, and nothing is locked.
    explicit XKeyboard(const std::string& display);
    /// Lets go of all keys that were pressed, so that the server is not left with keys held.
    ~XKeyboard();
    XKeyboard(const XKeyboard&) = delete;
    XKeyboard& operator=(const XKeyboard&) = delete;

    void press(std::uint16_t key) { fake(key, true); }
    void release(std::uint16_t key) { fake(key, false); }
    void tap(std::uint16_t key) {
        press(key);
        release(key);
    }

    /// The server's state as programs see it.
    std::uint16_t modifiers();

    /// As setxkbmap takes them: "us,ru", "dvorak,".
    void setLayout(const std::string& layouts, const std::string& variants = {});
    /// 0 is the first of the layouts.
    void lockGroup(int group);
    /// Takes the key off the modifier it is on and puts it on another: 3 is Mod1, 7 is Mod5.
    void moveModifier(std::uint16_t key, unsigned modifierIndex);
    void setAutoRepeat(std::uint16_t delayMilliseconds, std::uint16_t intervalMilliseconds);

    /// Claims the key with exactly these modifiers, as another program would; false when it is
    /// taken.
    bool grab(std::uint16_t key, std::uint16_t modifiers);
    void ungrab(std::uint16_t key, std::uint16_t modifiers);

  private:
    void fake(std::uint16_t key, bool down);

    std::string display_;
    XcbConnection connection_;
    std::uint32_t root_ = 0;
};

} // namespace nocturo::rig
