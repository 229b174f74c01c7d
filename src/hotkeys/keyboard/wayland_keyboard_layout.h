#pragma once

#include "base/file_descriptor.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/keymap.h"

#include <cstdint>
#include <memory>
#include <string>

struct wl_keyboard;
struct wl_seat;

namespace nocturo {

class RunLoop;
class Watch;
class WaylandConnection;

/// The layout of a Wayland compositor's first keyboard, as its seat sends it to every client. It
/// is looked at, over a connection of its own, when a key is first named, and followed from then
/// on. Where there is no keyboard it is what compositors take without configuration.
///
/// Which group of it is in force only a window with the focus is told: keys are named by the first.
class WaylandKeyboardLayout final : public KeyboardLayout {
  public:
    /// `display` is the socket's name, as in $WAYLAND_DISPLAY. The loop must outlive the layout.
    WaylandKeyboardLayout(std::string display, RunLoop& loop);
    ~WaylandKeyboardLayout() override;

    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t modifierKeyState) override;
    std::string keySymName(std::uint16_t keyCode) override;
    bool isServers(std::uint16_t keyCode, std::uint32_t modifierKeyState) override;

  private:
    struct Listeners;

    const Keymap& keymap();
    void connect();
    void seatHasKeyboard(bool has);

    std::string display_;
    RunLoop& loop_;
    bool isPrepared_ = false;
    std::unique_ptr<WaylandConnection> compositor_; // null until it is prepared, and without one
    std::unique_ptr<Watch> watch_;
    wl_seat* seat_ = nullptr;
    wl_keyboard* keyboard_ = nullptr;
    FileDescriptor sent_; // a keymap that was not read yet
    std::uint32_t sentSize_ = 0;
    Keymap keymap_;
};

} // namespace nocturo
