#include "displays/kde/kde_hardware.h"

#include "displays/kde/curve_profile.h"
#include "displays/kde/output_protocol.h"
#include "wayland/wayland_connection.h"

#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kWritePatience = 1000ms;

} // namespace

bool KdeHardware::isOfferedBy(const WaylandConnection& compositor) {
    return OutputDevices::areOfferedBy(compositor);
}

bool KdeHardware::isTooOld(const WaylandConnection& compositor) {
    return !isOfferedBy(compositor) && (compositor.offers(kOutputManagementInterface.name) ||
                                        compositor.offers("org_kde_kwin_outputmanagement"));
}

KdeHardware::KdeHardware(std::unique_ptr<WaylandConnection> compositor, KdePlaces places,
                         RunLoop& runLoop)
    : compositor_(std::move(compositor)), profiles_(*compositor_, std::move(places), runLoop) {}

KdeHardware::~KdeHardware() = default;

std::uint64_t KdeHardware::topologyGeneration() {
    compositor_->processEvents();
    return compositor_->outputsGeneration() + profiles_.generation();
}

bool KdeHardware::listHeads(std::vector<Head>& heads) {
    heads.clear();
    if (compositor_->isLost()) {
        return false;
    }
    for (const WaylandOutput* output : compositor_->outputs()) {
        Head& head = heads.emplace_back();
        head.connector = output->name;
        if (const OutputDevice* device = profiles_.device(output->name)) {
            head.edid = device->edid;
        }
        head.crtc = output->global;
        head.rampSize = kCalibrationSize;
        head.bounds = {.x = static_cast<double>(output->x),
                       .y = static_cast<double>(output->y),
                       .width = static_cast<double>(output->width),
                       .height = static_cast<double>(output->height)};
        head.modeGeneration = output->modeGeneration;
        head.obstacle = profiles_.obstacle(output->name);
    }
    return true;
}

const std::string* KdeHardware::connectorOf(std::uint32_t crtc) const {
    const WaylandOutput* output = compositor_->output(crtc);
    return output != nullptr ? &output->name : nullptr;
}

bool KdeHardware::readRamp(std::uint32_t crtc, Ramp& ramp) {
    const std::string* connector = connectorOf(crtc);
    if (connector == nullptr) {
        return false;
    }
    ramp = profiles_.ramp(*connector);
    return true;
}

bool KdeHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    const std::string* connector = connectorOf(crtc);
    if (connector == nullptr || compositor_->isLost() ||
        profiles_.obstacle(*connector) == Obstacle::takesNoProfile) {
        return false;
    }
    if (ramp == system_[crtc]) {
        profiles_.giveBack(*connector);
    } else {
        profiles_.show(*connector, ramp);
    }
    return true;
}

void KdeHardware::waitForWrites() {
    profiles_.waitUntilDone(kWritePatience);
}

} // namespace nocturo
