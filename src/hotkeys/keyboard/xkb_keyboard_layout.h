#pragma once

#include "hotkeys/keyboard/keyboard_layout.h"
#include "x11/x_connection.h"

#include <array>
#include <memory>
#include <string>

#include <xkbcommon/xkbcommon.h>

namespace nocturo {

/// The layout of an X server's keyboard. It is looked at when a key is first named, and followed
/// from then on by the server's events, so that naming a key asks the server nothing, except once
/// after the layout itself has changed. Without a keyboard extension (XKB), and after the server
/// went away, every text is empty.
class XkbKeyboardLayout final : public KeyboardLayout {
  public:
    /// The connection must outlive the layout.
    explicit XkbKeyboardLayout(XConnection& server) : server_(server) {}

    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t modifierKeyState) override;

  private:
    struct Release {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };
    static constexpr std::size_t kModifierCount = 5;

    void prepare();
    void subscribe();
    void note(const xcb_generic_event_t& event);
    void readLayout();
    xkb_mod_mask_t modifierMask(std::uint32_t modifierKeyState) const;

    XConnection& server_;
    bool isPrepared_ = false;
    XListener events_; // null until it is prepared, and without the extension
    std::unique_ptr<xkb_context, Release> context_;
    std::unique_ptr<xkb_state, Release> state_; // holds its keymap; null when none could be read
    std::array<xkb_mod_mask_t, kModifierCount> modifierMasks_{};
    xkb_mod_mask_t numLockMask_ = 0;
    xkb_layout_index_t group_ = 0;
    bool outdated_ = true;
};

} // namespace nocturo
