#pragma once

#include "settings/settings_keys.h"

#include <array>
#include <memory>

namespace nocturo {

class DefaultsStore;
class HXHotKey;

/// The keys of the settings of the hot key.
inline constexpr std::array kHotKeySettings = {kUseHotKey, kHotKeyCode, kHotKeyModifiers};

/// A new record, without a task, of the hot key in the settings; null when both numbers are 0,
/// which is how the settings say that there is none. Only the low 16 bits of the key code count.
std::shared_ptr<HXHotKey> NDSavedHotKey(const DefaultsStore& defaults);

} // namespace nocturo
