#pragma once

#include "base/bus.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

class LastingSlots;

/// A slot that is on each bus that is joined, one after the other.
class LastingSlot : public BusSlot {
  public:
    explicit LastingSlot(std::weak_ptr<LastingSlots> all);
    ~LastingSlot() override;
    LastingSlot(const LastingSlot&) = delete;
    LastingSlot& operator=(const LastingSlot&) = delete;

    virtual void join(sd_bus* bus) = 0;
    virtual void leave() {} // it may destroy the slot

  private:
    std::weak_ptr<LastingSlots> all_;
};

/// What a bus that comes back is given again.
class LastingSlots {
  public:
    /// Calls `visit` with each slot, but for those that are destroyed on the way.
    void forEach(const std::function<void(LastingSlot& slot)>& visit) const;

    std::vector<std::string> names; // that were claimed

  private:
    friend LastingSlot;
    std::vector<LastingSlot*> slots_;
};

} // namespace nocturo
