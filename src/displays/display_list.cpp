#include "displays/display_list.h"

#include "displays/display_names.h"
#include "displays/ramp.h"

#include <algorithm>

namespace nocturo {

DisplayList::Look DisplayList::look() {
    const std::uint64_t generation = hardware_.topologyGeneration();
    if (generation_ == generation) {
        return Look::nothingNew;
    }
    std::vector<Head> heads;
    if (!hardware_.listHeads(heads)) {
        return Look::failed;
    }
    generation_ = generation;
    const std::vector<DisplayInfo> before = std::exchange(online_, {});
    crtcs_.clear();
    hasNewcomers_ = false;
    const std::vector<CGDirectDisplayID> ids = identifiers_.identifiersFor(heads);
    for (std::size_t i = 0; i < heads.size(); ++i) {
        takeHead(heads[i], ids[i]);
    }
    if (!online_.empty() && std::none_of(online_.begin(), online_.end(),
                                         [](const DisplayInfo& info) { return info.main; })) {
        online_.front().main = true;
    }
    // A display that comes back had a mode set, even if it is the one that it had.
    std::erase_if(modes_, [&](const auto& mode) {
        return std::find(ids.begin(), ids.end(), mode.first) == ids.end();
    });
    arrangementChanged_ = arrangementChanged_ || before != online_;
    return Look::listedAnew;
}

void DisplayList::takeHead(const Head& head, CGDirectDisplayID id) {
    const bool isMain = head.primary && std::none_of(online_.begin(), online_.end(),
                                                     [](const auto& info) { return info.main; });
    const std::uint32_t rampSize = isUsableRampSize(head.rampSize) ? head.rampSize : 0;
    DisplayNames::shared().note(id, head.connector, head.edid);
    online_.push_back({id, head.connector, head.bounds, rampSize, isMain, head.obstacle});
    crtcs_.push_back(head.crtc);
    const auto [mode, isNew] = modes_.try_emplace(id, head.modeGeneration);
    hasNewcomers_ = hasNewcomers_ || isNew;
    if (isNew || std::exchange(mode->second, head.modeGeneration) != head.modeGeneration) {
        std::erase(modeChanges_, id);
        modeChanges_.push_back(id);
    }
}

} // namespace nocturo
