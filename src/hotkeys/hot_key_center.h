#pragma once

#include "hotkeys/hot_key.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

namespace nocturo {

/// Compares records by HXHotKey::isEqual, through pointers or directly.
struct HotKeyHash {
    using is_transparent = void;
    std::size_t operator()(const HXHotKey& hotKey) const { return hotKey.hash(); }
    std::size_t operator()(const std::shared_ptr<HXHotKey>& hotKey) const { return hotKey->hash(); }
};
struct HotKeyEqual {
    using is_transparent = void;
    template <typename Left, typename Right>
    bool operator()(const Left& left, const Right& right) const {
        return record(left).isEqual(record(right));
    }

  private:
    static const HXHotKey& record(const HXHotKey& hotKey) { return hotKey; }
    static const HXHotKey& record(const std::shared_ptr<HXHotKey>& hotKey) { return *hotKey; }
};
using HotKeySet = std::unordered_set<std::shared_ptr<HXHotKey>, HotKeyHash, HotKeyEqual>;

using HotKeyPredicate = std::function<bool(const HXHotKey&)>;

/// "htk1": tells this program's hot keys from those of others towards the hot key service.
inline constexpr std::uint32_t kHotKeySignature = 0x68746B31;

/// The one registry of global hot keys in the process. It owns the registered records, at most one
/// for a key code and flag word, and lets them invoke what they are for. Main thread only.
///
/// Flag words are compared whole: a combination recorded with caps lock is another one here,
/// although the service, which knows four modifiers, may refuse it as taken.
class HXHotKeyCenter {
  public:
    /// Lives until the process ends.
    static HXHotKeyCenter& sharedHotKeyCenter();

    HXHotKeyCenter(const HXHotKeyCenter&) = delete;
    HXHotKeyCenter& operator=(const HXHotKeyCenter&) = delete;

    /// Chooses who registers hot keys with the desktop. Unregisters every hot key from the service
    /// before. Without a service (null, as at first) every registration is refused. The service
    /// must outlive the center or be taken away again.
    void setHotKeyService(HotKeyService* service);

    bool hasRegisteredHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags) const;

    /// What the desktop has made of it; nothing when it is not registered.
    std::optional<HotKeyGrant> grantWithKeyCode(std::uint16_t keyCode,
                                                std::uint64_t modifierFlags) const;

    /// HotKeyService::askAgain for every hot key.
    void askDesktopAgain();

    // False when the same key code and flags are registered already, or when the service refuses.

    bool registerHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                   HotKeyTask task);
    bool registerHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                   std::shared_ptr<ActionTarget> target, std::string action,
                                   std::shared_ptr<void> object);
    bool registerHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags,
                                   std::shared_ptr<ActionTarget> target, std::string action,
                                   std::string pressedAction, std::shared_ptr<void> object);

    /// Does nothing when the record is not registered; otherwise lets go of it.
    void unregisterHotKey(HXHotKey& hotKey);

    HotKeySet hotKeysMatchingPredicate(const HotKeyPredicate& predicate) const;
    void unregisterHotKeysMatchingPredicate(const HotKeyPredicate& predicate);

    void unregisterHotKeysWithTarget(const std::shared_ptr<ActionTarget>& target);
    void unregisterHotKeysWithTarget(const std::shared_ptr<ActionTarget>& target,
                                     const std::string& action);
    void unregisterHotKeyWithKeyCode(std::uint16_t keyCode, std::uint64_t modifierFlags);
    void unregisterAllHotKeys();

    HotKeySet registeredHotKeys() const;

  private:
    HXHotKeyCenter() = default;
    ~HXHotKeyCenter() = default;

    bool _registerHotKey(std::shared_ptr<HXHotKey> hotKey);

    HotKeyService* service_ = nullptr;
    HotKeySet registeredHotKeys_;
    std::uint32_t nextHotKeyID_ = 1;
};

/// What the service tells the shared center. They find the record by its identifier alone and hand
/// on a key-up event, for presses as well; an identifier of no record invokes nothing.
void HXHotKeyReleasedHandler(const HotKeyServiceEvent& event);
void HXHotKeyPressedHandler(const HotKeyServiceEvent& event);

} // namespace nocturo
