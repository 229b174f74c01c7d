#include "hotkeys/hot_key_center.h"

#include "base/log.h"
#include "hotkeys/key_event.h"
#include "hotkeys/key_naming.h"

#include <utility>

namespace nocturo {

namespace {

HotKeyPredicate hasCombination(std::uint16_t keyCode, std::uint64_t modifierFlags) {
    return [=](const HXHotKey& hotKey) {
        return hotKey.keyCode() == keyCode && hotKey.modifierFlags() == modifierFlags;
    };
}

void dispatch(const HotKeyServiceEvent& event, void (HXHotKey::*invoke)(const KeyEvent&) const) {
    // The set also keeps the record alive should its action unregister it.
    const HotKeySet hotKeys = HXHotKeyCenter::sharedHotKeyCenter().hotKeysMatchingPredicate(
        [&](const HXHotKey& hotKey) { return hotKey.hotKeyID() == event.hotKeyID.id; });
    if (hotKeys.size() > 1) {
        logWarning(kLogHotKeys, "ERROR!");
    }
    if (hotKeys.empty()) {
        return;
    }
    const HXHotKey& hotKey = **hotKeys.begin();
    KeyEvent keyEvent;
    keyEvent.type = NSEventType::NSKeyUp;
    keyEvent.modifierFlags = event.modifierFlags;
    keyEvent.timestamp = event.timestamp;
    keyEvent.keyCode = hotKey.keyCode();
    (hotKey.*invoke)(keyEvent);
}

} // namespace

void HXHotKeyReleasedHandler(const HotKeyServiceEvent& event) {
    dispatch(event, &HXHotKey::invokeWithEvent);
}

void HXHotKeyPressedHandler(const HotKeyServiceEvent& event) {
    dispatch(event, &HXHotKey::invokePressedWithEvent);
}

HXHotKeyCenter& HXHotKeyCenter::sharedHotKeyCenter() {
    // Never destroyed: records that outlive main() still ask it to unregister them.
    static HXHotKeyCenter* const center = new HXHotKeyCenter;
    return *center;
}

void HXHotKeyCenter::setHotKeyService(HotKeyService* service) {
    if (service == service_) {
        return;
    }
    unregisterAllHotKeys();
    if (service_ != nullptr) {
        service_->setHandlers(nullptr, nullptr);
    }
    service_ = service;
    if (service_ != nullptr) {
        service_->setHandlers(HXHotKeyReleasedHandler, HXHotKeyPressedHandler);
    }
}

bool HXHotKeyCenter::hasRegisteredHotKeyWithKeyCode(std::uint16_t keyCode,
                                                    std::uint64_t modifierFlags) const {
    return !hotKeysMatchingPredicate(hasCombination(keyCode, modifierFlags)).empty();
}

bool HXHotKeyCenter::registerHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                               HotKeyTask task) {
    if (hasRegisteredHotKeyWithKeyCode(keyCode, modifierFlags)) {
        return false;
    }
    return _registerHotKey(HXHotKey::hotKeyWithKeyCode(keyCode, modifierFlags, std::move(task)));
}

bool HXHotKeyCenter::registerHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                               std::shared_ptr<ActionTarget> target,
                                               std::string action, std::shared_ptr<void> object) {
    return registerHotKeyWithKeyCode(keyCode, modifierFlags, std::move(target), std::move(action),
                                     std::string(), std::move(object));
}

bool HXHotKeyCenter::registerHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                               std::shared_ptr<ActionTarget> target,
                                               std::string action, std::string pressedAction,
                                               std::shared_ptr<void> object) {
    if (hasRegisteredHotKeyWithKeyCode(keyCode, modifierFlags)) {
        return false;
    }
    auto hotKey = HXHotKey::hotKeyWithKeyCode(keyCode, modifierFlags, nullptr);
    hotKey->_setTarget(std::move(target));
    hotKey->_setAction(std::move(action));
    hotKey->_setPressedAction(std::move(pressedAction));
    hotKey->_setObject(std::move(object));
    return _registerHotKey(std::move(hotKey));
}

bool HXHotKeyCenter::_registerHotKey(std::shared_ptr<HXHotKey> hotKey) {
    if (service_ == nullptr) {
        return false;
    }
    const auto handle =
        service_->registerHotKey(hotKey->keyCode(), HXCarbonModifierFlags(hotKey->modifierFlags()),
                                 {kHotKeySignature, nextHotKeyID_});
    if (!handle) {
        return false;
    }
    hotKey->setHotKeyRef(handle);
    hotKey->setHotKeyID(nextHotKeyID_++);
    registeredHotKeys_.insert(std::move(hotKey));
    return true;
}

void HXHotKeyCenter::unregisterHotKey(HXHotKey& hotKey) {
    if (!hotKey.hotKeyRef()) {
        return;
    }
    if (service_ != nullptr) {
        service_->unregisterHotKey(*hotKey.hotKeyRef());
    }
    hotKey.setHotKeyRef(std::nullopt);
    if (const auto found = registeredHotKeys_.find(hotKey); found != registeredHotKeys_.end()) {
        // Out of the set before the record and its target may go: their ends can call the center.
        const auto released = registeredHotKeys_.extract(found);
    }
}

HotKeySet HXHotKeyCenter::hotKeysMatchingPredicate(const HotKeyPredicate& predicate) const {
    HotKeySet matching;
    for (const auto& hotKey : registeredHotKeys_) {
        if (predicate(*hotKey)) {
            matching.insert(hotKey);
        }
    }
    return matching;
}

void HXHotKeyCenter::unregisterHotKeysMatchingPredicate(const HotKeyPredicate& predicate) {
    for (const auto& hotKey : hotKeysMatchingPredicate(predicate)) {
        unregisterHotKey(*hotKey);
    }
}

void HXHotKeyCenter::unregisterHotKeysWithTarget(const std::shared_ptr<ActionTarget>& target) {
    unregisterHotKeysMatchingPredicate(
        [&](const HXHotKey& hotKey) { return hotKey.target() == target; });
}

void HXHotKeyCenter::unregisterHotKeysWithTarget(const std::shared_ptr<ActionTarget>& target,
                                                 const std::string& action) {
    unregisterHotKeysMatchingPredicate([&](const HXHotKey& hotKey) {
        return hotKey.target() == target && hotKey.actionString() == action;
    });
}

void HXHotKeyCenter::unregisterHotKeyWithKeyCode(std::uint16_t keyCode,
                                                 std::uint64_t modifierFlags) {
    unregisterHotKeysMatchingPredicate(hasCombination(keyCode, modifierFlags));
}

std::optional<HotKeyGrant> HXHotKeyCenter::grantWithKeyCode(std::uint16_t keyCode,
                                                            std::uint64_t modifierFlags) const {
    const HotKeySet found = hotKeysMatchingPredicate(hasCombination(keyCode, modifierFlags));
    if (service_ == nullptr || found.empty()) {
        return std::nullopt;
    }
    return service_->grantOf(*(*found.begin())->hotKeyRef());
}

void HXHotKeyCenter::askDesktopAgain() {
    for (const auto& hotKey : registeredHotKeys()) {
        service_->askAgain(*hotKey->hotKeyRef());
    }
}

void HXHotKeyCenter::unregisterAllHotKeys() {
    for (const auto& hotKey : HotKeySet(registeredHotKeys_)) {
        unregisterHotKey(*hotKey);
    }
}

HotKeySet HXHotKeyCenter::registeredHotKeys() const {
    return hotKeysMatchingPredicate(
        [](const HXHotKey& hotKey) { return hotKey.hotKeyRef().has_value(); });
}

} // namespace nocturo
