#include "platform/displays/ramp_display_services.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <utility>

namespace nocturo {

RampDisplayServices::RampDisplayServices(std::unique_ptr<GammaHardware> hardware)
    : hardware_(std::move(hardware)) {
    refresh();
}

const std::vector<DisplayInfo>* RampDisplayServices::onlineDisplays() {
    return refresh() ? &online_ : nullptr;
}

bool RampDisplayServices::readTransferTable(CGDirectDisplayID display, std::uint32_t capacity,
                                            float* red, float* green, float* blue,
                                            std::uint32_t& count) {
    Display* known = usableDisplay(display);
    if (known == nullptr || capacity == 0) {
        return false;
    }
    std::optional<Ramp> ramp = readRamp(display, *known);
    if (!ramp) {
        return false;
    }
    if (!known->systemRamp) {
        known->systemRamp = ramp;
        keepSystemRamps();
    }
    tableFromChannel(ramp->red, capacity, red);
    tableFromChannel(ramp->green, capacity, green);
    tableFromChannel(ramp->blue, capacity, blue);
    count = capacity;

    Capture capture;
    capture.tables.reserve(std::size_t{3} * capacity);
    for (const float* table : {red, green, blue}) {
        capture.tables.insert(capture.tables.end(), table, table + capacity);
    }
    capture.ramp = std::move(*ramp);
    known->lastRead = std::move(capture);
    return true;
}

bool RampDisplayServices::writeTransferTable(CGDirectDisplayID display, std::uint32_t count,
                                             const float* red, const float* green,
                                             const float* blue) {
    Display* known = usableDisplay(display);
    if (known == nullptr || count == 0) {
        return false;
    }
    Crtc& crtc = *known->crtc;
    if (known->lastRead && known->lastRead->matches(count, red, green, blue) &&
        known->lastRead->ramp.size() == crtc.scratch.size()) {
        crtc.scratch = known->lastRead->ramp;
    } else {
        channelFromTable(red, count, crtc.scratch.red);
        channelFromTable(green, count, crtc.scratch.green);
        channelFromTable(blue, count, crtc.scratch.blue);
    }
    return writeScratch(crtc, display);
}

std::uint32_t
RampDisplayServices::takeBackDisturbedDisplays(std::span<const CGDirectDisplayID> displays) {
    std::vector<std::uint32_t> written;
    for (const CGDirectDisplayID id : displays) {
        const Display* display = usableDisplay(id);
        if (display != nullptr && display->crtc->writer == id) {
            written.push_back(display->crtc->id);
        }
    }
    hardware_->expectReads(written);
    std::uint32_t disturbed = 0;
    for (const std::uint32_t id : written) {
        Crtc& crtc = crtcs_.at(id);
        if (!hardware_->readRamp(id, crtc.scratch) || crtc.scratch == crtc.written) {
            continue;
        }
        // Hardware that keeps fewer bits than it takes never holds what was written; only a ramp
        // that can be put back was changed by somebody.
        const bool heldOnceMore = hardware_->writeRamp(id, crtc.written) &&
                                  hardware_->readRamp(id, crtc.scratch) &&
                                  crtc.scratch == crtc.written;
        disturbed += heldOnceMore ? 1 : 0;
    }
    return disturbed;
}

void RampDisplayServices::restoreSystemColors() {
    refresh();
    std::set<const Crtc*> restored;
    const auto restore = [&](Crtc& crtc, const Ramp& ramp) {
        if (restored.insert(&crtc).second) {
            crtc.scratch = resampledRamp(ramp, crtc.scratch.size());
            writeScratch(crtc, 0);
        }
    };
    // Displays beyond the driven ones are not ours to write.
    const auto driven = std::min<std::size_t>(online_.size(), kZQMaxDisplays);
    for (std::size_t i = 0; i < driven; ++i) {
        Display& display = displays_[online_[i].id];
        if (display.crtc != nullptr && display.systemRamp) {
            restore(*display.crtc, *display.systemRamp);
        }
    }
    // What was written for a display that has gone must not greet the next one there.
    for (auto& [id, crtc] : crtcs_) {
        if (crtc.writer != 0) {
            restore(crtc, crtc.own);
        }
    }
    // Whoever is told that the displays are back, or that the program has ended, finds them so.
    hardware_->waitForWrites();
}

bool RampDisplayServices::Capture::matches(std::uint32_t count, const float* red,
                                           const float* green, const float* blue) const {
    const std::size_t size = count * sizeof(float);
    return tables.size() == std::size_t{3} * count && std::memcmp(tables.data(), red, size) == 0 &&
           std::memcmp(tables.data() + count, green, size) == 0 &&
           std::memcmp(tables.data() + std::size_t{2} * count, blue, size) == 0;
}

bool RampDisplayServices::refresh() {
    const std::uint64_t generation = hardware_->topologyGeneration();
    if (generation_ == generation) {
        return true;
    }
    std::vector<Head> heads;
    if (!hardware_->listHeads(heads)) {
        return false;
    }
    generation_ = generation;
    online_.clear();
    for (auto& [id, display] : displays_) {
        display.crtc = nullptr;
    }
    const std::vector<CGDirectDisplayID> ids = identifiers_.identifiersFor(heads);
    for (std::size_t i = 0; i < heads.size(); ++i) {
        takeHead(heads[i], ids[i]);
    }
    if (!online_.empty() && std::none_of(online_.begin(), online_.end(),
                                         [](const DisplayInfo& info) { return info.main; })) {
        online_.front().main = true;
    }
    keepSystemRamps();
    return true;
}

// Of displays that share a CRTC the first is the one that restoring heeds.
void RampDisplayServices::keepSystemRamps() {
    std::set<const Crtc*> kept;
    const auto driven = std::min<std::size_t>(online_.size(), kZQMaxDisplays);
    for (std::size_t i = 0; i < driven; ++i) {
        const Display& display = displays_[online_[i].id];
        if (display.crtc != nullptr && display.systemRamp && kept.insert(display.crtc).second) {
            hardware_->keepSystemRamp(
                display.crtc->id, resampledRamp(*display.systemRamp, display.crtc->scratch.size()));
        }
    }
}

void RampDisplayServices::takeHead(const Head& head, CGDirectDisplayID id) {
    const bool isMain = head.primary && std::none_of(online_.begin(), online_.end(),
                                                     [](const auto& info) { return info.main; });
    const bool usable = isUsableRampSize(head.rampSize);
    online_.push_back({id, head.connector, head.bounds, usable ? head.rampSize : 0, isMain});
    Display& display = displays_[id];
    if (!usable) {
        return;
    }
    display.crtc = &crtcOf(head);
    if (!display.systemRamp) {
        display.systemRamp = readRamp(id, display);
    }
}

RampDisplayServices::Crtc& RampDisplayServices::crtcOf(const Head& head) {
    Crtc& crtc = crtcs_[head.crtc];
    if (crtc.scratch.size() != head.rampSize) {
        crtc = {};
        crtc.id = head.crtc;
        crtc.own = identityRamp(head.rampSize);
        crtc.written = Ramp(head.rampSize);
        crtc.scratch = Ramp(head.rampSize);
    }
    return crtc;
}

RampDisplayServices::Display* RampDisplayServices::usableDisplay(CGDirectDisplayID id) {
    refresh();
    const auto found = displays_.find(id);
    return found != displays_.end() && found->second.crtc != nullptr ? &found->second : nullptr;
}

// The ramp in force for a display: what the CRTC holds, unless that was written here for another.
std::optional<Ramp> RampDisplayServices::readRamp(CGDirectDisplayID id, Display& display) {
    Crtc& crtc = *display.crtc;
    if (!hardware_->readRamp(crtc.id, crtc.scratch)) {
        return std::nullopt;
    }
    if (crtc.writer != 0 && crtc.scratch == crtc.written) {
        return crtc.writer == id ? crtc.written : crtc.own;
    }
    crtc.own = crtc.scratch.isAllZero() ? identityRamp(crtc.scratch.size()) : crtc.scratch;
    return crtc.own;
}

bool RampDisplayServices::writeScratch(Crtc& crtc, CGDirectDisplayID writer) {
    if (!hardware_->writeRamp(crtc.id, crtc.scratch)) {
        return false;
    }
    std::swap(crtc.written, crtc.scratch);
    crtc.writer = writer;
    return true;
}

} // namespace nocturo
