// Three things are known apart: DisplayList knows which displays there are, a CrtcRamp what each
// CRTC holds and held, and SystemColors what each display is to be given back. Here they meet, as
// displays are connected to CRTCs, and that decides what a capture means:
//
// - A CRTC that holds what others left in it shows that to whoever reads a display on it.
// - What was written here for a display that is on the CRTC still is that display's. Another one
//   that shares the CRTC gets what others left, so that it never captures the effect.
// - What was written for a display that has left the CRTC is nobody's: a display that came in its
//   place gets its own system colors.
// - What stands for system colors that the display no longer has is replaced by those it has now.
//
// Changes are told from the event loop only, since whoever is told may use any member. Modes are
// told at once, because a driver that sets one may have reset the ramp and the effect is missing
// until it is written again. All else, which comes in bursts while a display is plugged in, is told
// once it has settled.

#include "displays/ramp_display_services.h"

#include "base/run_loop.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

void addOnce(std::vector<CGDirectDisplayID>& ids, CGDirectDisplayID id) {
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
        ids.push_back(id);
    }
}

} // namespace

RampDisplayServices::RampDisplayServices(std::unique_ptr<GammaHardware> hardware,
                                         std::unique_ptr<CalibrationSource> calibrations,
                                         RunLoop* runLoop)
    : hardware_(std::move(hardware)), calibrations_(std::move(calibrations)), runLoop_(runLoop),
      list_(*hardware_) {
    refresh();
    // What is there at the start is no change.
    list_.takeModeChanges();
    list_.takeArrangementChange();
    profilesChanged_.clear();
    if (runLoop_ != nullptr) {
        settler_.emplace(*runLoop_, [this] { tellSettledChanges(); });
        hardware_->whenChanged([this] { lookForChanges(); });
        if (calibrations_ != nullptr) {
            calibrations_->whenChanged([this] { lookForChanges(); });
        }
    }
    noteWhatCameAlong();
}

RampDisplayServices::~RampDisplayServices() = default;

const std::vector<DisplayInfo>* RampDisplayServices::onlineDisplays() {
    const bool listed = refresh();
    noteWhatCameAlong();
    return listed ? &list_.online() : nullptr;
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
    if (!known->colors.wasSeen()) {
        known->colors.seeFirst(*ramp);
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
    hardware_->expectWrite(known->crtc->id());
    known = usableDisplay(display); // whose size may be known only now
    if (known == nullptr) {
        return false;
    }
    CrtcRamp& crtc = *known->crtc;
    Ramp& draft = crtc.draft();
    if (known->lastRead && known->lastRead->matches(count, red, green, blue) &&
        known->lastRead->ramp.size() == crtc.size()) {
        draft = known->lastRead->ramp;
    } else {
        channelFromTable(red, count, draft.red);
        channelFromTable(green, count, draft.green);
        channelFromTable(blue, count, draft.blue);
    }
    if (!crtc.hasSystemRamp()) {
        crtc.keepSystemRamp(crtc.left());
    }
    const bool written = crtc.write(display, display);
    noteWhatCameAlong();
    return written;
}

std::uint32_t
RampDisplayServices::takeBackDisturbedDisplays(std::span<const CGDirectDisplayID> displays) {
    std::vector<CrtcRamp*> written;
    std::vector<std::uint32_t> ids;
    for (const CGDirectDisplayID id : displays) {
        const Display* display = usableDisplay(id);
        if (display != nullptr && display->crtc->effectOf() == id) {
            written.push_back(display->crtc);
            ids.push_back(display->crtc->id());
        }
    }
    hardware_->expectReads(ids);
    std::uint32_t disturbed = 0;
    for (CrtcRamp* crtc : written) {
        disturbed += crtc->takeBack() ? 1 : 0;
    }
    return disturbed;
}

void RampDisplayServices::restoreSystemColors() {
    refresh();
    takeCalibrations();
    std::vector<std::uint32_t> withoutEffect; // are read before they are written
    for (const auto& [id, crtc] : crtcs_) {
        if (crtc.effectOf() == 0 && giveBack(crtc).ramp != nullptr) {
            withoutEffect.push_back(id);
        }
    }
    hardware_->expectReads(withoutEffect);
    for (auto& [id, crtc] : crtcs_) {
        if (const GiveBack back = giveBack(crtc); back.ramp != nullptr) {
            crtc.giveBack(*back.ramp, back.display);
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
    const DisplayList::Look look = list_.look();
    if (look == DisplayList::Look::listedAnew) {
        connectDisplays();
        noteChange();
        takeCalibrations();
        keepSystemRamps();
    }
    return look != DisplayList::Look::failed;
}

void RampDisplayServices::connectDisplays() {
    for (auto& [id, display] : displays_) {
        display.crtc = nullptr;
    }
    const std::vector<DisplayInfo>& online = list_.online();
    for (std::size_t i = 0; i < online.size(); ++i) {
        Display& display = displays_[online[i].id];
        if (online[i].rampSize != 0) {
            display.crtc = &crtcRamp(list_.crtcAt(i), online[i].rampSize);
        }
    }
    if (list_.hasNewcomers()) {
        calibrationGeneration_.reset();
    }
    // Only now is it known which displays share a CRTC.
    for (auto& [id, display] : displays_) {
        if (display.crtc != nullptr && !display.colors.wasSeen()) {
            if (const auto ramp = readRamp(id, display)) {
                display.colors.seeFirst(*ramp);
            }
        }
    }
}

CrtcRamp& RampDisplayServices::crtcRamp(std::uint32_t crtc, std::uint32_t size) {
    CrtcRamp& known = crtcs_.try_emplace(crtc, *hardware_, crtc, size).first->second;
    if (known.size() != size) {
        known = CrtcRamp(*hardware_, crtc, size);
    }
    return known;
}

RampDisplayServices::Display* RampDisplayServices::usableDisplay(CGDirectDisplayID id) {
    refresh();
    const auto found = displays_.find(id);
    return found != displays_.end() && found->second.crtc != nullptr ? &found->second : nullptr;
}

// The ramp in force for a display, as the head of this file has it.
std::optional<Ramp> RampDisplayServices::readRamp(CGDirectDisplayID id, Display& display) {
    CrtcRamp& crtc = *display.crtc;
    if (!crtc.read()) {
        return std::nullopt;
    }
    const bool written = crtc.holdsWhatWasWritten();
    const bool nobodys = written && isOfDisplayThatLeft(crtc, id);
    const bool outdated = display.colors.areNewerThanRead(crtc);
    if ((nobodys || outdated) && display.colors.ramp()) {
        return resampledRamp(*display.colors.ramp(), crtc.size());
    }
    if (nobodys || (written && crtc.effectOf() != 0 && crtc.effectOf() != id)) {
        return crtc.left();
    }
    return written ? crtc.written() : crtc.takeAsLeft();
}

bool RampDisplayServices::isOfDisplayThatLeft(const CrtcRamp& crtc, CGDirectDisplayID id) const {
    return crtc.writtenFor() != id && displays_.at(crtc.writtenFor()).crtc != &crtc;
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
    for (const DisplayInfo& info : list_.online()) {
        Display& display = displays_[info.id];
        if (display.crtc != nullptr &&
            display.colors.takeCalibration(
                calibrations_->calibration(info.name, display.crtc->size()), *display.crtc)) {
            addOnce(profilesChanged_, info.id);
            changed = true;
        }
    }
    keepSystemRamps();
    if (changed || calibrations_->generation() != generation) {
        noteChange();
    }
}

// Of displays that share a CRTC the first is the one that restoring heeds.
RampDisplayServices::GiveBack RampDisplayServices::giveBack(const CrtcRamp& crtc) const {
    // Displays beyond the driven ones are not ours to write.
    const std::vector<DisplayInfo>& online = list_.online();
    const auto driven = std::min<std::size_t>(online.size(), kZQMaxDisplays);
    for (std::size_t i = 0; i < driven; ++i) {
        const Display& display = displays_.at(online[i].id);
        if (display.crtc == &crtc && display.colors.ramp()) {
            return {&*display.colors.ramp(), online[i].id};
        }
    }
    // What was written for a display that has gone must not greet the next one there.
    if (crtc.effectOf() != 0) {
        const std::optional<Ramp>& ramp = displays_.at(crtc.effectOf()).colors.ramp();
        return {ramp ? &*ramp : &crtc.left(), crtc.effectOf()};
    }
    return {};
}

void RampDisplayServices::keepSystemRamps() {
    for (auto& [id, crtc] : crtcs_) {
        if (const GiveBack back = giveBack(crtc); back.ramp != nullptr) {
            crtc.keepSystemRamp(*back.ramp);
        }
    }
}

void RampDisplayServices::noteChange() {
    if (!settler_) {
        return;
    }
    settler_->note();
    if (soon_ == nullptr && (list_.hasModeChanges() || list_.isOutdated())) {
        soon_ = runLoop_->scheduleTimer(0ms, [this] { tellModeChanges(); });
    }
}

// An answer of the hardware may have brought word of a change along, and then nothing outside says
// so any more.
void RampDisplayServices::noteWhatCameAlong() {
    if (list_.isOutdated()) {
        noteChange();
    }
}

void RampDisplayServices::tellModeChanges() {
    soon_.reset();
    lookForChanges();
    tell({list_.takeModeChanges(), false, {}});
}

void RampDisplayServices::tellSettledChanges() {
    if (list_.hasArrangementChange()) {
        calibrationGeneration_.reset(); // profiles may go by the order of the displays
    }
    lookForChanges();
    tell({list_.takeModeChanges(), list_.takeArrangementChange(),
          std::exchange(profilesChanged_, {})});
}

void RampDisplayServices::tell(const DisplayChanges& changes) {
    if (changeHandler_ && changes != DisplayChanges{}) {
        changeHandler_(changes);
    }
}

} // namespace nocturo
