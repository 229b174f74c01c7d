#pragma once

#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/keymap.h"
#include "x11/x_connection.h"

#include <memory>
#include <string>

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
    std::string keySymName(std::uint16_t keyCode) override;
    bool isServers(std::uint16_t keyCode, std::uint32_t modifierKeyState) override;

  private:
    void prepare();
    void subscribe();
    void note(const xcb_generic_event_t& event);
    void readLayout();
    bool isThere();

    XConnection& server_;
    bool isPrepared_ = false;
    XListener events_; // null until it is prepared, and without the extension
    std::unique_ptr<xkb_context, Keymap::Release> context_;
    Keymap keymap_;
    xkb_layout_index_t group_ = 0;
    bool outdated_ = true;
};

} // namespace nocturo
