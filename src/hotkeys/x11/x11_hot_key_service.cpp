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
// A held key repeats. The connection asks for repeats without releases in between, which concerns
// nothing else on it: keys arrive here alone.

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

std::unique_ptr<X11HotKeyService> X11HotKeyService::open(XConnection& server) {
    const auto* extension = xcb_get_extension_data(server.handle(), &xcb_xkb_id);
    if (extension == nullptr || !extension->present || !prepareKeyboard(server.handle())) {
        return nullptr;
    }
    return std::unique_ptr<X11HotKeyService>(new X11HotKeyService(server, extension->first_event));
}

X11HotKeyService::X11HotKeyService(XConnection& server, std::uint8_t firstKeyboardEvent)
    : server_(server), realModifiers_(lookUpRealModifiers(server.handle())) {
    listen(firstKeyboardEvent);
}

void X11HotKeyService::listen(std::uint8_t firstKeyboardEvent) {
    listeners_ = {
        server_.onEvent(XCB_KEY_PRESS,
                        [this](const xcb_generic_event_t& event) {
                            handlePress(reinterpret_cast<const xcb_key_press_event_t&>(event));
                        }),
        server_.onEvent(XCB_KEY_RELEASE,
                        [this](const xcb_generic_event_t& event) {
                            handleRelease(reinterpret_cast<const xcb_key_release_event_t&>(event));
                        }),
    };
    // Such changes come in bursts, of which the first handler follows all that was read.
    for (const unsigned type : {unsigned{XCB_MAPPING_NOTIFY}, unsigned{firstKeyboardEvent}}) {
        listeners_.push_back(server_.noteEvent(type, [this, type](const auto& event) {
            // All keyboard events have one number; which it is stands where others have details.
            mappingChanged_ = mappingChanged_ || type == XCB_MAPPING_NOTIFY ||
                              event.pad0 == XCB_XKB_NEW_KEYBOARD_NOTIFY ||
                              event.pad0 == XCB_XKB_MAP_NOTIFY;
        }));
        listeners_.push_back(server_.onEvent(type, [this](const auto&) {
            if (std::exchange(mappingChanged_, false)) {
                followMapping();
            }
        }));
    }
}

std::optional<HotKeyHandle> X11HotKeyService::registerHotKey(std::uint16_t keyCode,
                                                             std::uint32_t modifiers,
                                                             EventHotKeyID hotKeyID) {
    const auto key = serverKeyCode(keyCode);
    if (!key || server_.isLost()) {
        return std::nullopt;
    }
    const Combination combination{*key, modifiers & kAllModifiers};
    if (std::ranges::find(registrations_, combination, &Registration::combination) !=
        registrations_.end()) {
        return std::nullopt;
    }
    const bool claimed = grab(combination);
    xcb_flush(server_.handle());
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
    xcb_flush(server_.handle());
}

void X11HotKeyService::setHandlers(Handler released, Handler pressed) {
    released_ = std::move(released);
    pressed_ = std::move(pressed);
}

template <class Visit>
void X11HotKeyService::forEachGrab(const Combination& combination, Visit visit) const {
    const unsigned wanted = modifierStateFromMask(realModifiers_, combination.modifiers);
    const unsigned locks = realModifiers_.locks;
    for (const auto root : server_.roots()) {
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
        cookies.push_back(xcb_grab_key_checked(server_.handle(), false, root, state,
                                               combination.keyCode, XCB_GRAB_MODE_ASYNC,
                                               XCB_GRAB_MODE_ASYNC));
    });
    bool claimed = true;
    for (const auto cookie : cookies) {
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(server_.handle(), cookie));
        claimed = claimed && !error;
    }
    if (!claimed) {
        ungrab(combination);
    }
    return claimed && !server_.isLost();
}

void X11HotKeyService::ungrab(const Combination& combination) {
    forEachGrab(combination, [&](xcb_window_t root, std::uint16_t state) {
        xcb_ungrab_key(server_.handle(), combination.keyCode, root, state);
    });
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
    const RealModifiers real = lookUpRealModifiers(server_.handle());
    if (server_.isLost() || real == realModifiers_) {
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
    xcb_flush(server_.handle());
    if (!allClaimed && !server_.isLost()) {
        logWarning(kLogHotKeys, "Since the keyboard's modifier keys were changed, another "
                                "program holds the hot key; choose another one.");
    }
}

} // namespace nocturo
