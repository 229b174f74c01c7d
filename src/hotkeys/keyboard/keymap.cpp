#include "hotkeys/keyboard/keymap.h"

#include "hotkeys/keyboard/virtual_key_codes.h"

namespace nocturo {

namespace {

// In the order of the bits that callers give.
constexpr std::array kModifierNames = {XKB_MOD_NAME_LOGO, XKB_MOD_NAME_SHIFT, XKB_MOD_NAME_CAPS,
                                       XKB_MOD_NAME_ALT, XKB_MOD_NAME_CTRL};

// What the keypad's Enter is known by: it types a control character, and is not Return.
constexpr const char* kEnterGlyph = "⌤";

bool isControlCharacter(const std::string& text) {
    const auto first = static_cast<unsigned char>(text.front());
    return first < 0x20 || first == 0x7f;
}

xkb_mod_mask_t maskOf(xkb_keymap* keymap, const char* modifier) {
    const auto index = xkb_keymap_mod_get_index(keymap, modifier);
    return index != XKB_MOD_INVALID ? xkb_mod_mask_t{1} << index : 0;
}

} // namespace

void Keymap::set(const std::unique_ptr<xkb_keymap, Release>& keymap) {
    state_.reset(keymap != nullptr ? xkb_state_new(keymap.get()) : nullptr);
    if (state_ == nullptr) {
        return;
    }
    for (std::size_t i = 0; i < kModifierCount; ++i) {
        modifierMasks_[i] = maskOf(keymap.get(), kModifierNames[i]);
    }
    numLockMask_ = maskOf(keymap.get(), XKB_MOD_NAME_NUM);
}

xkb_mod_mask_t Keymap::modifierMask(std::uint32_t modifierKeyState) const {
    xkb_mod_mask_t mask = 0;
    for (std::size_t i = 0; i < kModifierCount; ++i) {
        mask |= (modifierKeyState >> i & 1u) != 0 ? modifierMasks_[i] : 0;
    }
    return mask;
}

std::string Keymap::text(std::uint16_t keyCode, std::uint32_t modifierKeyState,
                         xkb_layout_index_t group) const {
    const auto evdevCode = evdevFromVirtualKeyCode(keyCode);
    if (!state_ || !evdevCode) {
        return {};
    }
    const xkb_keycode_t key = *evdevCode + xkb_keycode_t{kEvdevToX11Offset};
    // The lock makes digits of the keypad's arrows, and changes no other key.
    xkb_state_update_mask(state_.get(), modifierMask(modifierKeyState), 0, numLockMask_, 0, 0,
                          group);
    if (xkb_state_key_get_one_sym(state_.get(), key) == XKB_KEY_KP_Enter) {
        return kEnterGlyph;
    }
    std::array<char, 64> text{};
    const int length = xkb_state_key_get_utf8(state_.get(), key, text.data(), text.size());
    if (length <= 0 || static_cast<std::size_t>(length) >= text.size()) {
        return {};
    }
    std::string typed(text.data(), static_cast<std::size_t>(length));
    return isControlCharacter(typed) ? std::string() : typed;
}

xkb_keysym_t Keymap::symbol(std::uint16_t keyCode, std::uint32_t modifierKeyState,
                            xkb_layout_index_t group) const {
    const auto evdevCode = evdevFromVirtualKeyCode(keyCode);
    if (!state_ || !evdevCode) {
        return XKB_KEY_NoSymbol;
    }
    xkb_state_update_mask(state_.get(), modifierMask(modifierKeyState), 0, numLockMask_, 0, 0,
                          group);
    return xkb_state_key_get_one_sym(state_.get(), *evdevCode + xkb_keycode_t{kEvdevToX11Offset});
}

std::string Keymap::keySymName(std::uint16_t keyCode, xkb_layout_index_t group) const {
    const xkb_keysym_t symbol = this->symbol(keyCode, 0, group);
    std::array<char, 64> name{};
    if (symbol == XKB_KEY_NoSymbol || xkb_keysym_get_name(symbol, name.data(), name.size()) <= 0) {
        return {};
    }
    return name.data();
}

bool Keymap::isServers(std::uint16_t keyCode, std::uint32_t modifierKeyState,
                       xkb_layout_index_t group) const {
    constexpr xkb_keysym_t kLastOfServer = 0x1008FEFF; // consoles, modes and grabs
    const xkb_keysym_t symbol = this->symbol(keyCode, modifierKeyState, group);
    return symbol == XKB_KEY_Terminate_Server ||
           (symbol >= XKB_KEY_XF86Switch_VT_1 && symbol <= kLastOfServer);
}

} // namespace nocturo
