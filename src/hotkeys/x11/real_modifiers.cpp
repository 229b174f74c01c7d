#include "hotkeys/x11/real_modifiers.h"

#include "hotkeys/keyboard/modifier_flags.h"
#include "x11/xcb_handles.h"

#include <algorithm>
#include <initializer_list>
#include <span>

#include <xkbcommon/xkbcommon-keysyms.h>

// Only Shift, Lock and Control have names of their own in the protocol. The other five modifiers
// are what the keys on them are: Num Lock usually is the second of them, but nothing makes it so.

namespace nocturo {

namespace {

class ModifierKeys {
  public:
    ModifierKeys(xcb_get_modifier_mapping_reply_t& modifiers,
                 xcb_get_keyboard_mapping_reply_t& keyboard, xcb_keycode_t firstKeyCode)
        : keyCodes_(xcb_get_modifier_mapping_keycodes(&modifiers),
                    static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(&modifiers))),
          keyCodesEach_(modifiers.keycodes_per_modifier),
          keysyms_(xcb_get_keyboard_mapping_keysyms(&keyboard),
                   static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(&keyboard))),
          keysymsEach_(keyboard.keysyms_per_keycode), firstKeyCode_(firstKeyCode) {}

    /// The first unnamed modifier that a key with one of the symbols is on; 0 when there is none.
    std::uint16_t modifierOf(std::initializer_list<std::uint32_t> symbols) const {
        for (unsigned index = XCB_MAP_INDEX_1; index <= XCB_MAP_INDEX_5; ++index) {
            const auto keys = keyCodes_.subspan(index * keyCodesEach_, keyCodesEach_);
            if (std::ranges::any_of(keys, [&](auto key) { return hasAnyOf(key, symbols); })) {
                return static_cast<std::uint16_t>(1u << index);
            }
        }
        return 0;
    }

  private:
    bool hasAnyOf(xcb_keycode_t keyCode, std::initializer_list<std::uint32_t> symbols) const {
        if (keyCode < firstKeyCode_) {
            return false; // 0 fills up the lists
        }
        const std::size_t first = std::size_t(keyCode - firstKeyCode_) * keysymsEach_;
        const auto ofKey = keysyms_.subspan(first, keysymsEach_);
        return std::ranges::find_first_of(ofKey, symbols) != ofKey.end();
    }

    std::span<const xcb_keycode_t> keyCodes_;
    std::size_t keyCodesEach_;
    std::span<const xcb_keysym_t> keysyms_;
    std::size_t keysymsEach_;
    xcb_keycode_t firstKeyCode_;
};

} // namespace

RealModifiers lookUpRealModifiers(xcb_connection_t* connection) {
    RealModifiers real;
    const xcb_setup_t* setup = xcb_get_setup(connection);
    if (setup == nullptr) {
        return real;
    }
    const auto first = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - first + 1);
    const auto modifierCookie = xcb_get_modifier_mapping(connection);
    const auto keyboardCookie = xcb_get_keyboard_mapping(connection, first, count);
    const XcbReply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection, modifierCookie, nullptr));
    const XcbReply<xcb_get_keyboard_mapping_reply_t> keyboard(
        xcb_get_keyboard_mapping_reply(connection, keyboardCookie, nullptr));
    if (!modifiers || !keyboard) {
        return real;
    }

    const ModifierKeys keys(*modifiers, *keyboard, first);
    if (const auto option = keys.modifierOf({XKB_KEY_Alt_L, XKB_KEY_Alt_R}); option != 0) {
        real.option = option;
    }
    if (const auto command = keys.modifierOf({XKB_KEY_Super_L, XKB_KEY_Super_R}); command != 0) {
        real.command = command;
    }
    const unsigned locks = keys.modifierOf({XKB_KEY_Num_Lock}) |
                           keys.modifierOf({XKB_KEY_Scroll_Lock}) | XCB_MOD_MASK_LOCK;
    // A modifier that is both would make Alt or Super matter to nothing.
    real.locks = static_cast<std::uint16_t>(locks & ~unsigned(real.option | real.command));
    return real;
}

std::uint16_t modifierStateFromMask(const RealModifiers& real, std::uint32_t modifiers) {
    unsigned state = 0;
    state |= (modifiers & shiftKey) != 0 ? unsigned(XCB_MOD_MASK_SHIFT) : 0;
    state |= (modifiers & controlKey) != 0 ? unsigned(XCB_MOD_MASK_CONTROL) : 0;
    state |= (modifiers & optionKey) != 0 ? real.option : 0u;
    state |= (modifiers & cmdKey) != 0 ? real.command : 0u;
    return static_cast<std::uint16_t>(state);
}

std::uint64_t modifierFlagsFromState(const RealModifiers& real, std::uint16_t state) {
    std::uint64_t flags = 0;
    flags |= (state & XCB_MOD_MASK_LOCK) != 0 ? NSAlphaShiftKeyMask : 0;
    flags |= (state & XCB_MOD_MASK_SHIFT) != 0 ? NSShiftKeyMask : 0;
    flags |= (state & XCB_MOD_MASK_CONTROL) != 0 ? NSControlKeyMask : 0;
    flags |= (state & real.option) != 0 ? NSAlternateKeyMask : 0;
    flags |= (state & real.command) != 0 ? NSCommandKeyMask : 0;
    return flags;
}

} // namespace nocturo
