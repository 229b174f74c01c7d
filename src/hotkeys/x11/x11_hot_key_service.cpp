#include "hotkeys/x11/x11_hot_key_service.h"

#include "base/log.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/keyboard/virtual_key_codes.h"
#include "x11/xcb_xkb.h"

#include <algorithm>
#include <limits>
#include <utility>

// A key grab names the exact modifiers, locks included, so that a combination takes one grab for
// every set of locks that may be on. Pressing it turns the keyboard over to this connection until
// the key is released: whatever key is pressed meanwhile arrives too, and the release arrives also
// when the grab itself has been given back.
//
// A held key repeats. A client of its own connection may ask for repeats without releases in
// between, which is one reason to have one; the other is that nobody else reads our events.

namespace nocturo {

namespace {

constexpr std::uint32_t kAllModifiers = cmdKey | shiftKey | optionKey | controlKey;
constexpr unsigned kAllModifierStates = 0xff; // above are mouse buttons and the group

std::optional<std::uint8_t> serverKeyCode(std::uint16_t virtualKeyCode) {
    const auto evdevCode = evdevFromVirtualKeyCode(virtualKeyCode);
    if (!evdevCode || *evdevCode > std::numeric_limits<std::uint8_t>::max() - kEvdevToX11Offset) {
        return std::nullopt;
    }
    return static_cast<std::uint8_t>(*evdevCode + kEvdevToX11Offset);
}

bool prepareKeyboard(xcb_connection_t* connection) {
    const xcb_xkb_device_spec_t keyboard = XCB_XKB_ID_USE_CORE_KBD;
    const XcbReply<xcb_xkb_use_extension_reply_t> extension(
        xcb_xkb_use_extension_reply(connection, xcb_xkb_use_extension(connection, 1, 0), nullptr));
    if (!extension || !extension->supported) {
        return false;
    }
    constexpr unsigned kMapParts =
        XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS;
    xcb_xkb_select_events(connection, keyboard,
                          XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY, 0,
                          XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY, kMapParts, kMapParts, nullptr);
    constexpr std::uint32_t kRepeats = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection, keyboard, kRepeats, kRepeats, 0, 0, 0);
    const XcbReply<xcb_xkb_per_client_flags_reply_t> flags(
        xcb_xkb_per_client_flags_reply(connection, cookie, nullptr));
    return flags && (flags->value & kRepeats) != 0;
}

} // namespace

std::unique_ptr<X11HotKeyService> X11HotKeyService::open(const std::string& displayName) {
    if (displayName.empty()) {
        return nullptr; // to xcb it would mean the environment's
    }
    XcbConnection connection(xcb_connect(displayName.c_str(), nullptr));
    if (xcb_connection_has_error(connection.get())) {
        return nullptr;
    }
    const auto* extension = xcb_get_extension_data(connection.get(), &xcb_xkb_id);
    if (extension == nullptr || !extension->present || !prepareKeyboard(connection.get())) {
        return nullptr;
    }
    return std::unique_ptr<X11HotKeyService>(
        new X11HotKeyService(std::move(connection), extension->first_event));
}

X11HotKeyService::X11HotKeyService(XcbConnection connection, std::uint8_t firstKeyboardEvent)
    : connection_(std::move(connection)), firstKeyboardEvent_(firstKeyboardEvent),
      realModifiers_(lookUpRealModifiers(connection_.get())) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (; screens.rem > 0; xcb_screen_next(&screens)) {
        roots_.push_back(screens.data->root);
    }
}

std::optional<HotKeyHandle> X11HotKeyService::registerHotKey(std::uint16_t keyCode,
                                                             std::uint32_t modifiers,
                                                             EventHotKeyID hotKeyID) {
    const auto key = serverKeyCode(keyCode);
    if (!key || connectionLost()) {
        return std::nullopt;
    }
    const Combination combination{*key, modifiers & kAllModifiers};
    if (std::ranges::find(registrations_, combination, &Registration::combination) !=
        registrations_.end()) {
        return std::nullopt;
    }
    const bool claimed = grab(combination);
    flushAndWake();
    if (!claimed) {
        return std::nullopt;
    }
    registrations_.push_back({HotKeyHandle{++lastHandle_}, combination, hotKeyID});
    return registrations_.back().handle;
}

void X11HotKeyService::unregisterHotKey(HotKeyHandle handle) {
    const auto found = std::ranges::find(registrations_, handle, &Registration::handle);
    if (found == registrations_.end()) {
        return;
    }
    ungrab(found->combination);
    registrations_.erase(found);
    flushAndWake();
}

void X11HotKeyService::setHandlers(Handler released, Handler pressed) {
    released_ = std::move(released);
    pressed_ = std::move(pressed);
}

template <class Visit>
void X11HotKeyService::forEachGrab(const Combination& combination, Visit visit) const {
    const unsigned wanted = modifierStateFromMask(realModifiers_, combination.modifiers);
    const unsigned locks = realModifiers_.locks;
    for (const auto root : roots_) {
        // Counts down through the sets of locks, the empty one last.
        for (unsigned on = locks;; on = (on - 1) & locks) {
            visit(root, static_cast<std::uint16_t>(wanted | on));
            if (on == 0) {
                break;
            }
        }
    }
}

/// False, with nothing claimed, when the server refuses any of the grabs. All of them take one
/// round trip: only the first check waits.
bool X11HotKeyService::grab(const Combination& combination) {
    std::vector<xcb_void_cookie_t> cookies;
    forEachGrab(combination, [&](xcb_window_t root, std::uint16_t state) {
        cookies.push_back(xcb_grab_key_checked(connection_.get(), false, root, state,
                                               combination.keyCode, XCB_GRAB_MODE_ASYNC,
                                               XCB_GRAB_MODE_ASYNC));
    });
    bool claimed = true;
    for (const auto cookie : cookies) {
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection_.get(), cookie));
        claimed = claimed && !error;
    }
    if (!claimed) {
        ungrab(combination);
    }
    return claimed && !connectionLost();
}

void X11HotKeyService::ungrab(const Combination& combination) {
    forEachGrab(combination, [&](xcb_window_t root, std::uint16_t state) {
        xcb_ungrab_key(connection_.get(), combination.keyCode, root, state);
    });
}

/// Whoever sends may also read, and what is read then waits in xcb's queue while the descriptor has
/// nothing to show. The answer to a question that nobody needs makes it readable once more.
void X11HotKeyService::flushAndWake() {
    const auto cookie = xcb_get_input_focus(connection_.get());
    xcb_discard_reply(connection_.get(), cookie.sequence);
    xcb_flush(connection_.get());
}

int X11HotKeyService::descriptor() const {
    return xcb_get_file_descriptor(connection_.get());
}

bool X11HotKeyService::connectionLost() const {
    return xcb_connection_has_error(connection_.get()) != 0;
}

void X11HotKeyService::processEvents() {
    while (true) {
        if (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
            handle(*event);
        } else if (std::exchange(mappingChanged_, false)) {
            followMapping();
        } else {
            return;
        }
    }
}

void X11HotKeyService::handle(const xcb_generic_event_t& event) {
    const unsigned type = event.response_type & 0x7fu;
    if (type == XCB_KEY_PRESS) {
        handlePress(reinterpret_cast<const xcb_key_press_event_t&>(event));
    } else if (type == XCB_KEY_RELEASE) {
        handleRelease(reinterpret_cast<const xcb_key_release_event_t&>(event));
    } else if (type == XCB_MAPPING_NOTIFY) {
        mappingChanged_ = true;
    } else if (type == firstKeyboardEvent_) {
        // All keyboard events have one number; which it is stands where others have details.
        mappingChanged_ = mappingChanged_ || event.pad0 == XCB_XKB_NEW_KEYBOARD_NOTIFY ||
                          event.pad0 == XCB_XKB_MAP_NOTIFY;
    }
}

void X11HotKeyService::handlePress(const xcb_key_press_event_t& event) {
    if (std::ranges::find(held_, event.detail, &Combination::keyCode) != held_.end()) {
        return; // repeats
    }
    const unsigned state = event.state & kAllModifierStates & ~unsigned(realModifiers_.locks);
    const auto pressed = std::ranges::find_if(registrations_, [&](const Registration& each) {
        return each.combination.keyCode == event.detail &&
               modifierStateFromMask(realModifiers_, each.combination.modifiers) == state;
    });
    if (pressed == registrations_.end()) {
        return;
    }
    const Combination combination = pressed->combination;
    held_.push_back(combination);
    tell(pressed_, combination, event);
}

void X11HotKeyService::handleRelease(const xcb_key_release_event_t& event) {
    const auto found = std::ranges::find(held_, event.detail, &Combination::keyCode);
    if (found == held_.end()) {
        return;
    }
    const Combination combination = *found;
    held_.erase(found);
    tell(released_, combination, event);
}

void X11HotKeyService::tell(const Handler& handler, const Combination& combination,
                            const xcb_key_press_event_t& event) const {
    const auto told = std::ranges::find(registrations_, combination, &Registration::combination);
    if (told == registrations_.end() || !handler) {
        return;
    }
    const Handler kept = handler; // it may set others
    kept(
        {told->hotKeyID, modifierFlagsFromState(realModifiers_, event.state), event.time / 1000.0});
}

void X11HotKeyService::followMapping() {
    const RealModifiers real = lookUpRealModifiers(connection_.get());
    if (connectionLost() || real == realModifiers_) {
        return;
    }
    for (const auto& registration : registrations_) {
        ungrab(registration.combination);
    }
    realModifiers_ = real;
    bool allClaimed = true;
    for (const auto& registration : registrations_) {
        allClaimed = grab(registration.combination) && allClaimed;
    }
    xcb_flush(connection_.get());
    if (!allClaimed && !connectionLost()) {
        logWarning(kLogHotKeys, "Since the keyboard's modifier keys were changed, another "
                                "program holds the hot key; choose another one.");
    }
}

} // namespace nocturo
