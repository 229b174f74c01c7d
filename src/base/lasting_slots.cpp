#include "base/lasting_slots.h"

#include <algorithm>
#include <utility>

namespace nocturo {

LastingSlot::LastingSlot(std::weak_ptr<LastingSlots> all) : all_(std::move(all)) {
    if (const auto slots = all_.lock()) {
        slots->slots_.push_back(this);
    }
}

LastingSlot::~LastingSlot() {
    if (const auto slots = all_.lock()) {
        std::erase(slots->slots_, this);
    }
}

void LastingSlots::forEach(const std::function<void(LastingSlot& slot)>& visit) const {
    for (LastingSlot* slot : std::vector<LastingSlot*>(slots_)) {
        if (std::find(slots_.begin(), slots_.end(), slot) != slots_.end()) {
            visit(*slot);
        }
    }
}

} // namespace nocturo
