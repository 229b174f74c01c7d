#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <xkbcommon/xkbcommon.h>

namespace nocturo {

/// A keymap of libxkbcommon, asked by virtual key codes. Empty until one is set.
class Keymap {
  public:
    struct Release {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };

    /// Null empties it.
    void set(const std::unique_ptr<xkb_keymap, Release>& keymap);

    bool isEmpty() const { return state_ == nullptr; }

    /// KeyboardLayout::textForKeyDown in that group.
    std::string text(std::uint16_t keyCode, std::uint32_t modifierKeyState,
                     xkb_layout_index_t group) const;

    /// KeyboardLayout::keySymName in that group.
    std::string keySymName(std::uint16_t keyCode, xkb_layout_index_t group) const;

    /// KeyboardLayout::isServers in that group.
    bool isServers(std::uint16_t keyCode, std::uint32_t modifierKeyState,
                   xkb_layout_index_t group) const;

  private:
    static constexpr std::size_t kModifierCount = 5;

    xkb_mod_mask_t modifierMask(std::uint32_t modifierKeyState) const;
    xkb_keysym_t symbol(std::uint16_t keyCode, std::uint32_t modifierKeyState,
                        xkb_layout_index_t group) const;

    std::unique_ptr<xkb_state, Release> state_; // holds its keymap
    std::array<xkb_mod_mask_t, kModifierCount> modifierMasks_{};
    xkb_mod_mask_t numLockMask_ = 0;
};

} // namespace nocturo
