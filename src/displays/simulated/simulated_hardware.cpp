#include "displays/simulated/simulated_hardware.h"

#include "base/files.h"
#include "base/log.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

constexpr std::uint32_t kRampSize = 256;
constexpr double kWidth = 1920;
constexpr double kHeight = 1080;

} // namespace

SimulatedHardware::SimulatedHardware(unsigned count, std::filesystem::path pictureDirectory,
                                     DrawPicture drawPicture)
    : ramps_(std::clamp(count, 1U, kMaxSimulatedHeads), identityRamp(kRampSize)),
      pictureDirectory_(std::move(pictureDirectory)), drawPicture_(std::move(drawPicture)) {
    makePrivateDirectories(pictureDirectory_);
}

bool SimulatedHardware::listHeads(std::vector<Head>& heads) {
    heads.clear();
    for (std::uint32_t crtc = 0; crtc < ramps_.size(); ++crtc) {
        Head& head = heads.emplace_back();
        head.connector = "SIM-" + std::to_string(crtc + 1);
        head.crtc = crtc;
        head.rampSize = kRampSize;
        head.bounds = {.x = crtc * kWidth, .y = 0, .width = kWidth, .height = kHeight};
        head.primary = crtc == 0;
    }
    return true;
}

bool SimulatedHardware::readRamp(std::uint32_t crtc, Ramp& ramp) {
    if (crtc >= ramps_.size()) {
        return false;
    }
    ramp = ramps_[crtc];
    return true;
}

bool SimulatedHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    const auto fits = [](const std::vector<std::uint16_t>& channel) {
        return channel.size() == kRampSize;
    };
    if (crtc >= ramps_.size() || !fits(ramp.red) || !fits(ramp.green) || !fits(ramp.blue)) {
        return false;
    }
    ramps_[crtc] = ramp;
    draw(crtc);
    return true;
}

void SimulatedHardware::draw(std::uint32_t crtc) {
    if (pictureDirectory_.empty()) {
        return;
    }
    const auto picture = pictureDirectory_ / ("display-" + std::to_string(crtc + 1) + ".png");
    if (!drawPicture_(ramps_[crtc], picture) && !std::exchange(drawingFailureSaid_, true)) {
        logWarning(kLogDisplays, "The pictures of the simulated displays cannot be written to " +
                                     pictureDirectory_.string() + "; the displays still work.");
    }
}

} // namespace nocturo
