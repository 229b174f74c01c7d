#include "displays/fading_hardware.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

// The steps of a change that takes minutes are smaller than the eye sees long before they are a
// frame apart, and each of them wakes the machine.
constexpr int kMostSteps = 600;

Fades::Length frameOf(Fades::Length length) {
    return std::max<Fades::Length>(FadingHardware::kFrame, length / kMostSteps);
}

} // namespace

FadingHardware::FadingHardware(std::unique_ptr<GammaHardware> hardware, Fades& fades,
                               RunLoop& runLoop, Clock clock)
    : hardware_(std::move(hardware)), fades_(fades), runLoop_(runLoop), clock_(std::move(clock)) {
    fades_.setFinish([this] { finish(); });
}

FadingHardware::~FadingHardware() {
    fades_.setFinish(nullptr);
    finish();
}

void FadingHardware::whenChanged(std::function<void()> look) {
    look_ = look;
    hardware_->whenChanged(std::move(look));
}

void FadingHardware::expectReads(std::span<const std::uint32_t> crtcs) {
    if (underWay_.empty()) {
        hardware_->expectReads(crtcs);
        return;
    }
    std::vector<std::uint32_t> read;
    for (const std::uint32_t crtc : crtcs) {
        if (!underWay_.contains(crtc)) {
            read.push_back(crtc);
        }
    }
    hardware_->expectReads(read);
}

bool FadingHardware::readRamp(std::uint32_t crtc, Ramp& ramp) {
    const auto found = underWay_.find(crtc);
    if (found != underWay_.end() && found->second.ramp.end().size() == ramp.size()) {
        ramp = found->second.ramp.end();
        return true;
    }
    return hardware_->readRamp(crtc, ramp);
}

bool FadingHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    const Fades::Length length = fades_.length();
    const auto found = underWay_.find(crtc);
    if (found != underWay_.end()) {
        RampFade& fade = found->second.ramp;
        if (fade.end() == ramp) {
            return true; // it leads there
        }
        if (length > kFrame && fade.end().size() == ramp.size()) {
            fade.turn(ramp); // and the next frame shows it
            found->second.start = clock_();
            found->second.length = length;
            keepPace();
            return true;
        }
        underWay_.erase(found);
    }
    return length > kFrame ? begin(crtc, ramp, length) : hardware_->writeRamp(crtc, ramp);
}

bool FadingHardware::begin(std::uint32_t crtc, const Ramp& ramp, Fades::Length length) {
    Ramp shown(ramp.size());
    if (!hardware_->readRamp(crtc, shown) || shown == ramp) {
        return hardware_->writeRamp(crtc, ramp);
    }
    Fade fade{RampFade(shown, ramp), clock_(), length};
    if (!hardware_->writeRamp(crtc, fade.ramp.at(shareOf(fade)))) {
        return false;
    }
    underWay_.emplace(crtc, std::move(fade));
    keepPace();
    return true;
}

void FadingHardware::keepPace() {
    Fades::Length pace = Fades::Length::max();
    for (const auto& [crtc, fade] : underWay_) {
        pace = std::min(pace, frameOf(fade.length));
    }
    if (frames_ == nullptr || pace != pace_) {
        pace_ = pace;
        frames_ = runLoop_.scheduleRepeatingTimer(pace_, [this] { showNextFrame(); });
    }
}

// What is shown at a moment is there until the next frame, so it is that of the frame's end.
float FadingHardware::shareOf(const Fade& fade) const {
    const std::chrono::duration<float> shown = clock_() - fade.start + frameOf(fade.length);
    return shown / std::chrono::duration<float>(fade.length);
}

void FadingHardware::showNextFrame() {
    for (auto each = underWay_.begin(); each != underWay_.end();) {
        auto& [crtc, fade] = *each;
        const float share = shareOf(fade);
        // A step that is not taken is none to stop at: the end has to be tried.
        hardware_->writeRamp(crtc, share < 1 ? fade.ramp.at(share) : fade.ramp.end());
        each = share < 1 ? std::next(each) : underWay_.erase(each);
    }
    if (underWay_.empty()) {
        endAwaited();
    } else {
        keepPace();
    }
    if (look_) {
        look_(); // what was read on the way may tell of changes
    }
}

void FadingHardware::finish() {
    for (const auto& [crtc, fade] : underWay_) {
        hardware_->writeRamp(crtc, fade.ramp.end());
    }
    underWay_.clear();
    endAwaited();
}

void FadingHardware::endAwaited() {
    if (underWay_.empty()) {
        frames_.reset();
        if (std::exchange(isEndAwaited_, false)) {
            hardware_->waitForWrites();
        }
    }
}

void FadingHardware::waitForWrites() {
    if (fades_.length() > Fades::Length::zero() && !underWay_.empty()) {
        isEndAwaited_ = true;
    } else {
        finish();
    }
    hardware_->waitForWrites();
}

} // namespace nocturo
