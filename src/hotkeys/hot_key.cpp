#include "hotkeys/hot_key.h"

#include "hotkeys/hot_key_center.h"
#include "hotkeys/keyboard/modifier_flags.h"

#include <sstream>
#include <string_view>
#include <utility>

namespace nocturo {

namespace {

std::string flagNames(std::uint64_t modifierFlags) {
    // Not the order in which the user sees the modifiers, and not meant to be.
    constexpr std::pair<std::uint64_t, std::string_view> kNames[] = {
        {NSControlKeyMask, "NSControlKeyMask"},
        {NSCommandKeyMask, "NSCommandKeyMask"},
        {NSShiftKeyMask, "NSShiftKeyMask"},
        {NSAlternateKeyMask, "NSAlternateKeyMask"},
    };
    std::string names;
    for (const auto& [flag, name] : kNames) {
        if ((modifierFlags & flag) != 0) {
            names.append(names.empty() ? "" : " | ").append(name);
        }
    }
    return names;
}

} // namespace

std::shared_ptr<HXHotKey>
HXHotKey::hotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags, HotKeyTask task) {
    auto hotKey = std::make_shared<HXHotKey>();
    hotKey->_setTask(std::move(task));
    hotKey->_setKeyCode(keyCode);
    hotKey->_setModifierFlags(modifierFlags);
    return hotKey;
}

HXHotKey::~HXHotKey() {
    HXHotKeyCenter::sharedHotKeyCenter().unregisterHotKey(*this);
}

bool HXHotKey::isEqual(const HXHotKey& other) const {
    return keyCode_ == other.keyCode_ && modifierFlags_ == other.modifierFlags_;
}

bool HXHotKey::canSend(const std::string& action) const {
    return target_ != nullptr && !action.empty() && target_->respondsTo(action);
}

void HXHotKey::invokeWithEvent(const KeyEvent& event) const {
    if (canSend(action_)) {
        target_->perform(action_, event, object_);
    } else if (task_) {
        task_(event);
    }
}

void HXHotKey::invokePressedWithEvent(const KeyEvent& event) const {
    if (canSend(pressedAction_)) {
        target_->perform(pressedAction_, event, object_);
    }
}

std::string HXHotKey::description() const {
    std::ostringstream text;
    text << "<HXHotKey: " << static_cast<const void*>(this) << ">\n\t(key: " << keyCode_
         << "\n\tflags: (" << flagNames(modifierFlags_) << ")\n\tinvokes: ";
    if (target_ != nullptr && !action_.empty()) {
        text << '[' << target_->description() << ' ' << action_ << ']';
    } else {
        text << "(block)";
    }
    text << ')';
    return text.str();
}

} // namespace nocturo
