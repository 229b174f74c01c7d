#pragma once

#include "hotkeys/hot_key_grant.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace nocturo {

/// How the registrant recognises its hot key in events.
struct EventHotKeyID {
    std::uint32_t signature = 0; // a four-character code
    std::uint32_t id = 0;
    bool operator==(const EventHotKeyID&) const = default;
};

/// One registration; opaque to all but the service that gave it.
enum class HotKeyHandle : std::uint64_t {};

struct HotKeyServiceEvent {
    EventHotKeyID hotKeyID;
    std::uint64_t modifierFlags = 0; // NS...KeyMask bits, as held when the event happened
    double timestamp = 0;            // seconds of a clock of the service's own
};

/// Claims key combinations from the desktop, so that they arrive whichever program is in front.
/// Lock keys never matter. Main thread only.
class HotKeyService {
  public:
    using Handler = std::function<void(const HotKeyServiceEvent&)>;

    virtual ~HotKeyService() = default;

    /// Claims a virtual key code with exactly the modifiers of `modifiers` (cmdKey, shiftKey,
    /// optionKey, controlKey). Nothing, with nothing claimed and nothing logged, when another
    /// program holds the combination, the key does not exist or the desktop cannot be reached.
    virtual std::optional<HotKeyHandle>
    registerHotKey(std::uint16_t keyCode, std::uint32_t modifiers, EventHotKeyID hotKeyID) = 0;

    /// Gives the combination back; a handle that is not in force is ignored.
    virtual void unregisterHotKey(HotKeyHandle handle) = 0;

    /// Sets who is told of releases and presses of claimed keys, on the main thread, replacing the
    /// handlers before; null for nobody. A key held down is one press and one release. Handlers may
    /// register and unregister hot keys, the one they are told of included.
    virtual void setHandlers(Handler released, Handler pressed) = 0;

    // Of a desktop that has a say in hot keys; elsewhere what is claimed is in force.

    virtual HotKeyGrant grantOf(HotKeyHandle /*handle*/) const { return {}; }

    /// The user wants it: asks the desktop again, or has it show how the key is changed.
    virtual void askAgain(HotKeyHandle /*handle*/) {}
};

} // namespace nocturo
