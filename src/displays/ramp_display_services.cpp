#include "displays/ramp_display_services.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace nocturo {

namespace {

void addOnce(std::vector<CGDirectDisplayID>& ids, CGDirectDisplayID id) {
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
        ids.push_back(id);
    }
}

} // namespace

RampDisplayServices::RampDisplayServices(std::unique_ptr<GammaHardware> hardware,
                                         std::unique_ptr<CalibrationSource> calibrations,
                                         RunLoop* runLoop)
    : hardware_(std::move(hardware)), calibrations_(std::move(calibrations)) {
    refresh();
    pending_ = {};
    if (runLoop != nullptr) {
        settler_.emplace(*runLoop, [this] { tellChanges(); });
    }
    noteWhatCameAlong();
}

const std::vector<DisplayInfo>* RampDisplayServices::onlineDisplays() {
    const bool listed = refresh();
    noteWhatCameAlong();
    return listed ? &online_ : nullptr;
}

bool RampDisplayServices::readTransferTable(CGDirectDisplayID display, std::uint32_t capacity,
                                            float* red, float* green, float* blue,
                                            std::uint32_t& count) {
    Display* known = usableDisplay(display);
    if (known == nullptr || capacity == 0) {
        return false;
    }
    takeCalibrations();
    std::optional<Ramp> ramp = readRamp(display, *known);
    noteWhatCameAlong();
    if (!ramp) {
        return false;
    }
    if (!known->firstSeen) {
        known->firstSeen = ramp;
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
    if (crtc.kept.size() == 0) {
        keepSystemRamp(crtc, crtc.own);
    }
    const bool written = writeScratch(crtc, display, display);
    noteWhatCameAlong();
    return written;
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
    takeCalibrations();
    for (auto& [id, crtc] : crtcs_) {
        if (const GiveBack back = giveBack(crtc); back.ramp != nullptr) {
            crtc.scratch = resampledRamp(*back.ramp, crtc.scratch.size());
            writeScratch(crtc, 0, back.display);
        }
    }
    // Whoever is told that the displays are back, or that the program has ended, finds them so.
    hardware_->waitForWrites();
    noteWhatCameAlong();
}

void RampDisplayServices::setChangeHandler(std::function<void(const DisplayChanges&)> handler) {
    changeHandler_ = std::move(handler);
}

void RampDisplayServices::lookForChanges() {
    if (refresh()) {
        takeCalibrations();
        noteWhatCameAlong();
    }
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
    const std::vector<DisplayInfo> before = std::exchange(online_, {});
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
    // Only now is it known which displays share a CRTC.
    for (auto& [id, display] : displays_) {
        if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
            display.modeGeneration.reset();
        }
        if (display.crtc != nullptr && !display.firstSeen) {
            display.firstSeen = readRamp(id, display);
        }
    }
    pending_.arrangementChanged = pending_.arrangementChanged || before != online_;
    noteChange();
    takeCalibrations();
    keepSystemRamps();
    return true;
}

void RampDisplayServices::takeHead(const Head& head, CGDirectDisplayID id) {
    const bool isMain = head.primary && std::none_of(online_.begin(), online_.end(),
                                                     [](const auto& info) { return info.main; });
    const bool usable = isUsableRampSize(head.rampSize);
    online_.push_back({id, head.connector, head.bounds, usable ? head.rampSize : 0, isMain});
    Display& display = displays_[id];
    if (!display.modeGeneration) {
        calibrationGeneration_.reset();
    }
    if (display.modeGeneration != head.modeGeneration) {
        display.modeGeneration = head.modeGeneration;
        addOnce(pending_.modeChanged, id);
    }
    if (usable) {
        display.crtc = &crtcOf(head);
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

// The ramp in force for a display: what the CRTC holds, unless that was written here for another or
// stands for system colours that are no longer the display's.
std::optional<Ramp> RampDisplayServices::readRamp(CGDirectDisplayID id, Display& display) {
    Crtc& crtc = *display.crtc;
    if (!hardware_->readRamp(crtc.id, crtc.scratch)) {
        return std::nullopt;
    }
    const bool ours = crtc.writtenFor != 0 && crtc.scratch == crtc.written;
    const bool foreign = ours && isForeign(crtc, id);
    const bool outdated = (ours && display.calibrationIsNews) ||
                          (display.superseded && crtc.scratch == *display.superseded);
    display.calibrationIsNews = false;
    if ((foreign || outdated) && display.systemRamp()) {
        if (outdated) {
            display.superseded = crtc.scratch;
        }
        return resampledRamp(*display.systemRamp(), crtc.scratch.size());
    }
    if (foreign || (ours && crtc.writer != 0 && crtc.writer != id)) {
        return crtc.own;
    }
    if (ours) {
        return crtc.written;
    }
    crtc.own = crtc.scratch.isAllZero() ? identityRamp(crtc.scratch.size()) : crtc.scratch;
    return crtc.own;
}

// Whether what was written last was for a display that is no longer there.
bool RampDisplayServices::isForeign(const Crtc& crtc, CGDirectDisplayID id) const {
    return crtc.writtenFor != id && displays_.at(crtc.writtenFor).crtc != &crtc;
}

bool RampDisplayServices::writeScratch(Crtc& crtc, CGDirectDisplayID writer,
                                       CGDirectDisplayID writtenFor) {
    if (!hardware_->writeRamp(crtc.id, crtc.scratch)) {
        return false;
    }
    std::swap(crtc.written, crtc.scratch);
    crtc.writer = writer;
    crtc.writtenFor = writtenFor;
    return true;
}

void RampDisplayServices::takeCalibrations() {
    if (calibrations_ == nullptr) {
        return;
    }
    const std::uint64_t generation = calibrations_->generation();
    if (calibrationGeneration_ == generation) {
        return;
    }
    calibrationGeneration_ = generation;
    bool changed = false;
    for (const DisplayInfo& info : online_) {
        Display& display = displays_[info.id];
        if (display.crtc != nullptr && takeCalibration(display, info.name)) {
            addOnce(pending_.profilesChanged, info.id);
            changed = true;
        }
    }
    keepSystemRamps();
    if (changed || calibrations_->generation() != generation) {
        noteChange();
    }
}

// Whether the display's system ramp is another now.
bool RampDisplayServices::takeCalibration(Display& display, const std::string& connector) {
    CalibrationAnswer answer = calibrations_->calibration(connector, display.crtc->scratch.size());
    // The first answer is no change: the display shows what it showed when Nocturo came.
    const bool isChange =
        std::exchange(display.calibrationSettled, display.calibrationSettled || answer.settled);
    if (answer.ramp == display.calibration) {
        return false;
    }
    const std::optional<Ramp> former = display.systemRamp();
    if (isChange) {
        supersede(display);
    }
    display.calibration = std::move(answer.ramp);
    return display.systemRamp() != former;
}

// What the display shows now stands for the calibration that comes, if it shows its system colours.
void RampDisplayServices::supersede(Display& display) {
    Crtc& crtc = *display.crtc;
    display.calibrationIsNews = true;
    if (display.systemRamp() && hardware_->readRamp(crtc.id, crtc.scratch) &&
        crtc.scratch == resampledRamp(*display.systemRamp(), crtc.scratch.size())) {
        display.superseded = crtc.scratch;
    }
}

// Of displays that share a CRTC the first is the one that restoring heeds.
RampDisplayServices::GiveBack RampDisplayServices::giveBack(const Crtc& crtc) const {
    const auto of = [this](CGDirectDisplayID id) -> const Display& { return displays_.at(id); };
    // Displays beyond the driven ones are not ours to write.
    const auto driven = std::min<std::size_t>(online_.size(), kZQMaxDisplays);
    for (std::size_t i = 0; i < driven; ++i) {
        const Display& display = of(online_[i].id);
        if (display.crtc == &crtc && display.systemRamp()) {
            return {&*display.systemRamp(), online_[i].id};
        }
    }
    // What was written for a display that has gone must not greet the next one there.
    if (crtc.writer != 0) {
        const std::optional<Ramp>& ramp = of(crtc.writer).systemRamp();
        return {ramp ? &*ramp : &crtc.own, crtc.writer};
    }
    return {};
}

void RampDisplayServices::keepSystemRamps() {
    for (auto& [id, crtc] : crtcs_) {
        if (const GiveBack back = giveBack(crtc); back.ramp != nullptr) {
            keepSystemRamp(crtc, *back.ramp);
        }
    }
}

void RampDisplayServices::keepSystemRamp(Crtc& crtc, const Ramp& ramp) {
    Ramp fitting = resampledRamp(ramp, crtc.scratch.size());
    if (crtc.kept != fitting) {
        crtc.kept = std::move(fitting);
        hardware_->keepSystemRamp(crtc.id, crtc.kept);
    }
}

void RampDisplayServices::noteChange() {
    if (settler_) {
        settler_->note();
    }
}

// An answer of the hardware may have brought word of a change along, and then nothing outside says
// so any more.
void RampDisplayServices::noteWhatCameAlong() {
    if (generation_ != hardware_->topologyGeneration()) {
        noteChange();
    }
}

void RampDisplayServices::tellChanges() {
    if (pending_.arrangementChanged) {
        calibrationGeneration_.reset(); // profiles may go by the order of the displays
    }
    if (refresh()) {
        takeCalibrations();
        noteWhatCameAlong();
    }
    const DisplayChanges changes = std::exchange(pending_, {});
    if (changeHandler_ && changes != DisplayChanges{}) {
        changeHandler_(changes);
    }
}

} // namespace nocturo
