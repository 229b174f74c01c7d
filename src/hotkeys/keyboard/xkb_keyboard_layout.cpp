#include "hotkeys/keyboard/xkb_keyboard_layout.h"

#include "x11/xcb_xkb.h"

#include <utility>

#include <xkbcommon/xkbcommon-x11.h>

namespace nocturo {

namespace {

constexpr xcb_xkb_device_spec_t kKeyboard = XCB_XKB_ID_USE_CORE_KBD;

} // namespace

void XkbKeyboardLayout::prepare() {
    std::uint8_t firstEvent = 0;
    if (std::exchange(isPrepared_, true) ||
        !xkb_x11_setup_xkb_extension(
            server_.handle(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
            XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent, nullptr)) {
        return;
    }
    context_.reset(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    events_ = server_.noteEvent(firstEvent, [this](const auto& event) { note(event); });
    subscribe();
}

// Of the state only the group is asked for: the modifiers' would come with every key typed.
void XkbKeyboardLayout::subscribe() {
    constexpr std::uint16_t kEvents = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY |
                                      XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
                                      XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr std::uint16_t kMapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP |
        XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = details.newKeyboardDetails =
        XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(server_.handle(), kKeyboard, kEvents, 0, 0, kMapParts, kMapParts,
                              &details);
}

void XkbKeyboardLayout::note(const xcb_generic_event_t& event) {
    // All keyboard events have one number; which it is stands where others have details.
    if (event.pad0 == XCB_XKB_STATE_NOTIFY) {
        group_ = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).group;
    } else {
        outdated_ = true;
    }
}

// Events that arrive meanwhile are taken in at the next naming, in the order they came in, so that
// the group ends up as the last of them says.
void XkbKeyboardLayout::readLayout() {
    outdated_ = false;
    keymap_.set(nullptr);
    auto* raw = server_.handle();
    const auto device = xkb_x11_get_core_keyboard_device_id(raw);
    if (device < 0) {
        return;
    }
    const auto groupCookie = xcb_xkb_get_state(raw, kKeyboard);
    const std::unique_ptr<xkb_keymap, Keymap::Release> keymap(
        xkb_x11_keymap_new_from_device(context_.get(), raw, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    const XcbReply<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(raw, groupCookie, nullptr));
    if (!keymap || !state) {
        return;
    }
    group_ = state->group;
    keymap_.set(keymap);
}

bool XkbKeyboardLayout::isThere() {
    prepare();
    server_.takeIn();
    if (events_ != nullptr && outdated_ && !server_.isLost()) {
        readLayout();
    }
    return !server_.isLost();
}

std::string XkbKeyboardLayout::textForKeyDown(std::uint16_t keyCode,
                                              std::uint32_t modifierKeyState) {
    return isThere() ? keymap_.text(keyCode, modifierKeyState, group_) : std::string();
}

std::string XkbKeyboardLayout::keySymName(std::uint16_t keyCode) {
    return isThere() ? keymap_.keySymName(keyCode, group_) : std::string();
}

bool XkbKeyboardLayout::isServers(std::uint16_t keyCode, std::uint32_t modifierKeyState) {
    return isThere() && keymap_.isServers(keyCode, modifierKeyState, group_);
}

} // namespace nocturo
