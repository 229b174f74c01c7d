#include "displays/crtc_ramp.h"

#include <utility>

namespace nocturo {

CrtcRamp::CrtcRamp(GammaHardware& hardware, std::uint32_t id, std::uint32_t size)
    : hardware_(&hardware), id_(id), left_(identityRamp(size)), written_(size), draft_(size) {}

const Ramp& CrtcRamp::takeAsLeft() {
    left_ = draft_.isAllZero() ? identityRamp(size()) : draft_;
    return left_;
}

bool CrtcRamp::write(CGDirectDisplayID effectOf, CGDirectDisplayID writtenFor) {
    return keepWritten(hardware_->writeRamp(id_, draft_), effectOf, writtenFor);
}

void CrtcRamp::giveBack(const Ramp& ramp, CGDirectDisplayID display) {
    Ramp fitting = resampledRamp(ramp, size());
    const bool isHeld = effectOf_ == 0 && read() && draft_ == fitting;
    draft_ = std::move(fitting);
    keepWritten(isHeld || hardware_->writeRamp(id_, draft_), 0, display);
}

bool CrtcRamp::keepWritten(bool isThere, CGDirectDisplayID effectOf, CGDirectDisplayID writtenFor) {
    if (!isThere) {
        return false;
    }
    std::swap(written_, draft_);
    effectOf_ = effectOf;
    writtenFor_ = writtenFor;
    return true;
}

bool CrtcRamp::takeBack() {
    if (!read() || draft_ == written_) {
        return false;
    }
    // Hardware that keeps fewer bits than it takes never holds what was written; only a ramp that
    // can be put back was changed by somebody.
    return hardware_->writeRamp(id_, written_) && read() && draft_ == written_;
}

void CrtcRamp::keepSystemRamp(const Ramp& ramp) {
    Ramp fitting = resampledRamp(ramp, size());
    if (system_ != fitting) {
        system_ = std::move(fitting);
        hardware_->keepSystemRamp(id_, system_);
    }
}

} // namespace nocturo
