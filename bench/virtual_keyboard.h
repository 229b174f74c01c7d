#pragma once

#include "base/file_descriptor.h"
#include "wayland/wayland_connection.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <linux/input-event-codes.h>
#include <memory>
#include <stdexcept>
#include <string>

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client-protocol.h>

namespace nocturo {

namespace virtual_keyboard_detail {

// The protocol virtual-keyboard-unstable-v1, as far as it is used.
enum KeyboardRequest : std::uint32_t { kKeymap, kKey, kModifiers };

inline const wl_interface* kNoTypes[] = {nullptr, nullptr, nullptr, nullptr};
inline const wl_message kRequests[] = {
    {"keymap", "uhu", kNoTypes}, {"key", "uuu", kNoTypes}, {"modifiers", "uuuu", kNoTypes}};
inline const wl_interface kKeyboard = {"zwp_virtual_keyboard_v1", 1, 3, kRequests, 0, nullptr};
inline const wl_interface* kNewTypes[] = {&wl_seat_interface, &kKeyboard};
inline const wl_message kManagerRequests[] = {{"create_virtual_keyboard", "on", kNewTypes}};
inline const wl_interface kManager = {
    "zwp_virtual_keyboard_manager_v1", 1, 1, kManagerRequests, 0, nullptr};

inline constexpr char kUsKeymap[] =
    "xkb_keymap { xkb_keycodes { include \"evdev\" }; xkb_types { include \"complete\" };"
    "xkb_compat { include \"complete\" }; xkb_symbols { include \"pc+us+inet(evdev)\" }; };";

} // namespace virtual_keyboard_detail

/// A keyboard with a US layout at a compositor's seat. Throws std::runtime_error where there can be
/// none.
class VirtualKeyboard {
  public:
    explicit VirtualKeyboard(const std::string& display)
        : compositor_(WaylandConnection::open(display)) {
        namespace detail = virtual_keyboard_detail;
        wl_proxy* manager =
            compositor_ != nullptr ? compositor_->bind(detail::kManager, 1) : nullptr;
        wl_proxy* seat = manager != nullptr ? compositor_->bind(wl_seat_interface, 1) : nullptr;
        if (seat == nullptr) {
            throw std::runtime_error("the compositor has no seat for a keyboard");
        }
        keyboard_ = wl_proxy_marshal_flags(manager, 0, &detail::kKeyboard, 1, 0, seat, nullptr);
        const FileDescriptor file(memfd_create("keymap", MFD_CLOEXEC));
        if (write(file.get(), detail::kUsKeymap, sizeof detail::kUsKeymap) < 0) {
            throw std::runtime_error("the keymap cannot be written");
        }
        send(detail::kKeymap, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.get(),
             sizeof detail::kUsKeymap);
        compositor_->sync(std::chrono::seconds(1));
    }

    /// A press and a release, with these modifiers of X (8 is Alt).
    void tap(std::uint32_t key, std::uint32_t modifiers = 0) {
        namespace detail = virtual_keyboard_detail;
        send(detail::kModifiers, modifiers, 0, 0, 0);
        for (const auto state : {WL_KEYBOARD_KEY_STATE_PRESSED, WL_KEYBOARD_KEY_STATE_RELEASED}) {
            send(detail::kKey, ++time_, key, state);
        }
        send(detail::kModifiers, 0, 0, 0, 0);
        compositor_->flush();
    }

  private:
    template <typename... Arguments>
    void send(std::uint32_t request, Arguments... arguments) {
        wl_proxy_marshal_flags(keyboard_, request, nullptr, 1, 0, arguments...);
    }

    std::unique_ptr<WaylandConnection> compositor_;
    wl_proxy* keyboard_ = nullptr; // ends with the connection
    std::uint32_t time_ = 0;
};

} // namespace nocturo
