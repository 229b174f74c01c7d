#include "hotkeys/keyboard/wayland_keyboard_layout.h"

#include "base/run_loop.h"
#include "wayland/wayland_connection.h"

#include <chrono>
#include <cstring>
#include <optional>
#include <utility>

#include <unistd.h>
#include <wayland-client-protocol.h>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 500ms;
constexpr std::uint32_t kSeatVersion = 7;
constexpr std::uint32_t kLargestKeymap = 4 << 20;

using KeymapHandle = std::unique_ptr<xkb_keymap, Keymap::Release>;

/// Read rather than mapped: a file that is shorter than was said, or becomes so, ends nothing.
std::optional<std::string> textIn(const FileDescriptor& file, std::uint32_t size) {
    if (size > kLargestKeymap) {
        return std::nullopt;
    }
    std::string text(size, '\0');
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t got =
            pread(file.get(), text.data() + done, text.size() - done, static_cast<off_t>(done));
        if (got <= 0) {
            return std::nullopt;
        }
        done += static_cast<std::size_t>(got);
    }
    text.resize(std::strlen(text.c_str()));
    return text;
}

KeymapHandle keymapOf(const FileDescriptor& file, std::uint32_t size) {
    const auto text = textIn(file, size);
    const std::unique_ptr<xkb_context, Keymap::Release> context(
        xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    return KeymapHandle(text && context
                            ? xkb_keymap_new_from_buffer(context.get(), text->data(), text->size(),
                                                         XKB_KEYMAP_FORMAT_TEXT_V1,
                                                         XKB_KEYMAP_COMPILE_NO_FLAGS)
                            : nullptr);
}

KeymapHandle usualKeymap() {
    const std::unique_ptr<xkb_context, Keymap::Release> context(
        xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    return KeymapHandle(
        context ? xkb_keymap_new_from_names(context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS)
                : nullptr);
}

} // namespace

/// What libwayland calls. `data` is the layout.
struct WaylandKeyboardLayout::Listeners {
    static void capabilities(void* data, wl_seat* /*seat*/, std::uint32_t capabilities) {
        static_cast<WaylandKeyboardLayout*>(data)->seatHasKeyboard(
            (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0);
    }
    static void seatName(void* /*data*/, wl_seat* /*seat*/, const char* /*name*/) {}

    static void keymap(void* data, wl_keyboard* /*keyboard*/, std::uint32_t format, int descriptor,
                       std::uint32_t size) {
        FileDescriptor file(descriptor);
        if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1) {
            auto* layout = static_cast<WaylandKeyboardLayout*>(data);
            layout->sent_ = std::move(file);
            layout->sentSize_ = size;
        }
    }
    static void enter(void* /*data*/, wl_keyboard* /*keyboard*/, std::uint32_t /*serial*/,
                      wl_surface* /*surface*/, wl_array* /*keys*/) {}
    static void leave(void* /*data*/, wl_keyboard* /*keyboard*/, std::uint32_t /*serial*/,
                      wl_surface* /*surface*/) {}
    static void key(void* /*data*/, wl_keyboard* /*keyboard*/, std::uint32_t /*serial*/,
                    std::uint32_t /*time*/, std::uint32_t /*key*/, std::uint32_t /*state*/) {}
    static void modifiers(void* /*data*/, wl_keyboard* /*keyboard*/, std::uint32_t /*serial*/,
                          std::uint32_t /*pressed*/, std::uint32_t /*latched*/,
                          std::uint32_t /*locked*/, std::uint32_t /*group*/) {}
    static void repeatInfo(void* /*data*/, wl_keyboard* /*keyboard*/, std::int32_t /*rate*/,
                           std::int32_t /*delay*/) {}

    static constexpr wl_seat_listener kSeat = {capabilities, seatName};
    static constexpr wl_keyboard_listener kKeyboard = {keymap, enter,     leave,
                                                       key,    modifiers, repeatInfo};
};

WaylandKeyboardLayout::WaylandKeyboardLayout(std::string display, RunLoop& loop)
    : display_(std::move(display)), loop_(loop) {}

WaylandKeyboardLayout::~WaylandKeyboardLayout() {
    seatHasKeyboard(false);
    if (seat_ != nullptr) {
        wl_seat_destroy(seat_);
    }
}

void WaylandKeyboardLayout::connect() {
    compositor_ = WaylandConnection::open(display_);
    auto* seat =
        compositor_ != nullptr ? compositor_->bind(wl_seat_interface, kSeatVersion) : nullptr;
    if (seat == nullptr) {
        compositor_.reset();
        return;
    }
    seat_ = reinterpret_cast<wl_seat*>(seat);
    wl_seat_add_listener(seat_, &Listeners::kSeat, this);
    // The first answer brings what the seat has, the second the keymap.
    if (!compositor_->sync(kPatience) || !compositor_->sync(kPatience)) {
        return;
    }
    watch_ = loop_.watch(compositor_->descriptor(), [this] {
        compositor_->processEvents();
        if (compositor_->isLost()) {
            watch_.reset();
        }
    });
}

void WaylandKeyboardLayout::seatHasKeyboard(bool has) {
    if (has && keyboard_ == nullptr) {
        keyboard_ = wl_seat_get_keyboard(seat_);
        wl_keyboard_add_listener(keyboard_, &Listeners::kKeyboard, this);
    } else if (!has && keyboard_ != nullptr) {
        wl_keyboard_destroy(std::exchange(keyboard_, nullptr));
    }
}

const Keymap& WaylandKeyboardLayout::keymap() {
    if (!std::exchange(isPrepared_, true)) {
        connect();
    }
    if (sent_.get() >= 0) {
        const FileDescriptor file = std::exchange(sent_, FileDescriptor());
        keymap_.set(keymapOf(file, sentSize_));
    }
    if (keymap_.isEmpty()) {
        keymap_.set(usualKeymap());
    }
    return keymap_;
}

std::string WaylandKeyboardLayout::textForKeyDown(std::uint16_t keyCode,
                                                  std::uint32_t modifierKeyState) {
    return keymap().text(keyCode, modifierKeyState, 0);
}

std::string WaylandKeyboardLayout::keySymName(std::uint16_t keyCode) {
    return keymap().keySymName(keyCode, 0);
}

bool WaylandKeyboardLayout::isServers(std::uint16_t keyCode, std::uint32_t modifierKeyState) {
    return keymap().isServers(keyCode, modifierKeyState, 0);
}

} // namespace nocturo
