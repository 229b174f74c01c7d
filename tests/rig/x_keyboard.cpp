#include "rig/x_keyboard.h"

#include "platform/keyboard/virtual_key_codes.h"
#include "platform/x11/xcb_xkb.h"
#include "rig/process.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include <xcb/xtest.h>

namespace nocturo::rig {

namespace {

constexpr xcb_xkb_device_spec_t kKeyboard = XCB_XKB_ID_USE_CORE_KBD;

std::uint8_t serverKey(std::uint16_t key) {
    return static_cast<std::uint8_t>(key + kEvdevToX11Offset);
}

void check(xcb_connection_t* connection, xcb_void_cookie_t cookie, const char* what) {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    if (error || xcb_connection_has_error(connection))
        throw std::runtime_error(std::string("the X server refused: ") + what);
}

} // namespace

XKeyboard::XKeyboard(const std::string& display)
    : display_(display), connection_(xcb_connect(display.c_str(), nullptr)) {
    auto* raw = connection_.get();
    if (xcb_connection_has_error(raw))
        throw std::runtime_error("no X server at " + display);
    root_ = xcb_setup_roots_iterator(xcb_get_setup(raw)).data->root;
    const XcbReply<xcb_xkb_use_extension_reply_t> extension(
        xcb_xkb_use_extension_reply(raw, xcb_xkb_use_extension(raw, 1, 0), nullptr));
    if (!extension)
        throw std::runtime_error("no keyboard extension");
    setLayout("us");
}

XKeyboard::~XKeyboard() {
    auto* raw = connection_.get();
    const XcbReply<xcb_query_keymap_reply_t> keymap(
        xcb_query_keymap_reply(raw, xcb_query_keymap(raw), nullptr));
    for (unsigned key = 8; keymap && key < 256; ++key) {
        if ((keymap->keys[key / 8] >> (key % 8) & 1) != 0)
            fake(static_cast<std::uint16_t>(key - kEvdevToX11Offset), false);
    }
}

void XKeyboard::fake(std::uint16_t key, bool down) {
    auto* raw = connection_.get();
    check(raw,
          xcb_test_fake_input_checked(raw, down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, serverKey(key),
                                      XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0),
          "key");
}

std::uint16_t XKeyboard::modifiers() {
    auto* raw = connection_.get();
    const XcbReply<xcb_xkb_get_state_reply_t> state(
        xcb_xkb_get_state_reply(raw, xcb_xkb_get_state(raw, kKeyboard), nullptr));
    if (!state)
        throw std::runtime_error("the X server did not answer: keyboard state");
    return state->mods;
}

void XKeyboard::setLayout(const std::string& layouts, const std::string& variants) {
    Process program("setxkbmap",
                    {"-display", display_, "-rules", "evdev", "-model", "pc105", "-layout", layouts,
                     "-variant", variants, "-option", ""},
                    cleanEnvironment());
    if (program.wait() != 0)
        throw std::runtime_error("setxkbmap: " + program.errors());
}

void XKeyboard::lockGroup(int group) {
    auto* raw = connection_.get();
    check(raw,
          xcb_xkb_latch_lock_state_checked(raw, kKeyboard, 0, 0, true,
                                           static_cast<std::uint8_t>(group), 0, false, 0),
          "group");
}

void XKeyboard::moveModifier(std::uint16_t key, unsigned modifierIndex) {
    auto* raw = connection_.get();
    const XcbReply<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(raw, xcb_get_modifier_mapping(raw), nullptr));
    if (!mapping)
        throw std::runtime_error("the X server did not answer: modifiers");
    const std::size_t each = mapping->keycodes_per_modifier;
    const auto* keys = xcb_get_modifier_mapping_keycodes(mapping.get());
    std::vector<xcb_keycode_t> wider; // by one, so that there is room everywhere
    for (std::size_t modifier = 0; modifier < 8; ++modifier) {
        wider.insert(wider.end(), keys + modifier * each, keys + (modifier + 1) * each);
        std::replace(wider.end() - static_cast<std::ptrdiff_t>(each), wider.end(), serverKey(key),
                     xcb_keycode_t{0});
        wider.push_back(modifier == modifierIndex ? serverKey(key) : xcb_keycode_t{0});
    }
    const auto cookie =
        xcb_set_modifier_mapping(raw, static_cast<std::uint8_t>(each + 1), wider.data());
    const XcbReply<xcb_set_modifier_mapping_reply_t> reply(
        xcb_set_modifier_mapping_reply(raw, cookie, nullptr));
    if (!reply || reply->status != XCB_MAPPING_STATUS_SUCCESS)
        throw std::runtime_error("the X server refused: modifiers");
}

void XKeyboard::setAutoRepeat(std::uint16_t delayMilliseconds, std::uint16_t intervalMilliseconds) {
    auto* raw = connection_.get();
    const std::uint8_t everyKey[32] = {};
    check(raw,
          xcb_xkb_set_controls_checked(raw, kKeyboard, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                       XCB_XKB_BOOL_CTRL_REPEAT_KEYS, delayMilliseconds,
                                       intervalMilliseconds, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                       everyKey),
          "auto-repeat");
}

bool XKeyboard::grab(std::uint16_t key, std::uint16_t modifiers) {
    auto* raw = connection_.get();
    const XcbReply<xcb_generic_error_t> error(
        xcb_request_check(raw, xcb_grab_key_checked(raw, false, root_, modifiers, serverKey(key),
                                                    XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    return !error;
}

void XKeyboard::ungrab(std::uint16_t key, std::uint16_t modifiers) {
    auto* raw = connection_.get();
    check(raw, xcb_ungrab_key_checked(raw, serverKey(key), root_, modifiers), "giving a key back");
}

} // namespace nocturo::rig
