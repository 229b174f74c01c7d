#include "hotkeys/saved_hot_key.h"

#include "hotkeys/hot_key.h"
#include "settings/defaults_store.h"

#include <cstdint>

namespace nocturo {

std::shared_ptr<HXHotKey> NDSavedHotKey(const DefaultsStore& defaults) {
    const auto keyCode = static_cast<std::uint16_t>(defaults.integerForKey(kHotKeyCode));
    const auto modifierFlags = static_cast<std::uint64_t>(defaults.integerForKey(kHotKeyModifiers));
    if (keyCode == 0 && modifierFlags == 0) {
        return nullptr;
    }
    return HXHotKey::hotKeyWithKeyCode(keyCode, modifierFlags, nullptr);
}

} // namespace nocturo
