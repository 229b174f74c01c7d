#pragma once

#include "hotkeys/keyboard/keyboard_layout.h"
#include "x11/xcb_handles.h"

#include <array>
#include <memory>
#include <string>

#include <xkbcommon/xkbcommon.h>

namespace nocturo {

/// The layout of an X server's keyboard. It follows layout and group by the server's events, so
/// that naming a key asks the server nothing, except once after the layout itself has changed.
///
/// The connection is its own: events are read where they are needed, at each naming, and a layout
/// that is read anew disturbs nobody else's events.
///
/// A server that goes away makes connectionLost() true and every text empty.
class XkbKeyboardLayout final : public KeyboardLayout {
  public:
    /// Connects to the server of a display name such as ":0". Null when it cannot be reached or has
    /// no keyboard extension (XKB). The layout itself is read when first needed.
    static std::unique_ptr<XkbKeyboardLayout> open(const std::string& displayName);

    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t modifierKeyState) override;

    /// Readable whenever the server sent something, and when it is gone. It stays the layout's.
    int descriptor() const;

    /// Takes in what the server has sent without waiting for more. Naming does the same; an event
    /// loop calls it so that a program that names nothing for days does not let events pile up.
    void processEvents();

    bool connectionLost() const;

  private:
    struct Release {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };
    static constexpr std::size_t kModifierCount = 5;

    XkbKeyboardLayout(XcbConnection connection, std::uint8_t firstEvent);

    bool subscribe();
    void readLayout();
    xkb_mod_mask_t modifierMask(std::uint32_t modifierKeyState) const;

    XcbConnection connection_;
    std::uint8_t firstEvent_;
    std::unique_ptr<xkb_context, Release> context_;
    std::unique_ptr<xkb_state, Release> state_; // holds its keymap; null when none could be read
    std::array<xkb_mod_mask_t, kModifierCount> modifierMasks_{};
    xkb_mod_mask_t numLockMask_ = 0;
    xkb_layout_index_t group_ = 0;
    bool outdated_ = true;
};

} // namespace nocturo
