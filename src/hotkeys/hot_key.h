#pragma once

#include "hotkeys/action_target.h"
#include "hotkeys/hot_key_service.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

using HotKeyTask = std::function<void(const KeyEvent&)>;

/// One global hot key: what to press, and what to call when it is pressed or released. The record
/// only describes; HXHotKeyCenter registers it. Its description never changes once it is made.
///
/// A target is held strongly: it lives at least as long as the record.
class HXHotKey {
  public:
    /// An unregistered record with neither target nor actions; `task` may be null.
    static std::shared_ptr<HXHotKey>
    hotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags, HotKeyTask task);

    HXHotKey() = default;
    HXHotKey(const HXHotKey&) = delete;
    HXHotKey& operator=(const HXHotKey&) = delete;

    /// Unregisters the record from the shared center.
    ~HXHotKey();

    const std::shared_ptr<ActionTarget>& target() const { return target_; }
    /// Sent on release; empty when there is none.
    const std::string& action() const { return action_; }
    /// Sent on press; empty when there is none.
    const std::string& pressedAction() const { return pressedAction_; }
    /// Passed along with either action.
    const std::shared_ptr<void>& object() const { return object_; }
    /// Called on release when no action can be sent.
    const HotKeyTask& task() const { return task_; }
    std::uint16_t keyCode() const { return keyCode_; }
    /// The whole flag word as given, never masked.
    std::uint64_t modifierFlags() const { return modifierFlags_; }

    /// The name of `action`, by which the center finds records.
    const std::string& actionString() const { return action_; }

    /// The service's handle, present exactly while the record is registered.
    std::optional<HotKeyHandle> hotKeyRef() const { return hotKeyRef_; }
    void setHotKeyRef(std::optional<HotKeyHandle> hotKeyRef) { hotKeyRef_ = hotKeyRef; }

    /// 0 until the first registration; kept when that ends.
    std::uint32_t hotKeyID() const { return hotKeyID_; }
    void setHotKeyID(std::uint32_t hotKeyID) { hotKeyID_ = hotKeyID; }

    /// Equal are records of the same key code and the same flag word, whatever they invoke.
    bool isEqual(const HXHotKey& other) const;
    std::uint64_t hash() const { return modifierFlags_ ^ keyCode_; }

    /// The key was released: sends `action` if the target responds to it, otherwise calls `task`.
    void invokeWithEvent(const KeyEvent& event) const;

    /// The key was pressed: sends `pressedAction` if the target responds to it; never calls `task`.
    void invokePressedWithEvent(const KeyEvent& event) const;

    /// Several lines for logs and debuggers.
    std::string description() const;

    // For whoever makes a record, before it is handed out.

    void _setTarget(std::shared_ptr<ActionTarget> target) { target_ = std::move(target); }
    void _setAction(std::string action) { action_ = std::move(action); }
    void _setPressedAction(std::string action) { pressedAction_ = std::move(action); }
    void _setObject(std::shared_ptr<void> object) { object_ = std::move(object); }
    void _setTask(HotKeyTask task) { task_ = std::move(task); }
    void _setKeyCode(std::uint16_t keyCode) { keyCode_ = keyCode; }
    void _setModifierFlags(std::uint64_t modifierFlags) { modifierFlags_ = modifierFlags; }

  private:
    bool canSend(const std::string& action) const;

    std::shared_ptr<ActionTarget> target_;
    std::string action_;
    std::string pressedAction_;
    std::shared_ptr<void> object_;
    HotKeyTask task_;
    std::uint16_t keyCode_ = 0;
    std::uint64_t modifierFlags_ = 0;
    std::optional<HotKeyHandle> hotKeyRef_;
    std::uint32_t hotKeyID_ = 0;
};

} // namespace nocturo
