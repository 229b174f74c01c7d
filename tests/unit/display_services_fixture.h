#pragma once

#include "display/screen_controller.h"
#include "effects/invert_effect.h"
#include "fake_gamma_hardware.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/ramp_display_services.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace nocturo {

inline Ramp reversed(Ramp ramp) {
    for (auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        std::reverse(channel->begin(), channel->end());
    }
    return ramp;
}

/// Display services over hardware in memory.
class DisplayServicesFixture : public testing::Test {
  protected:
    ~DisplayServicesFixture() override { setDisplayServices(nullptr); }

    /// Starts the services on what the hardware shows now.
    void start(std::unique_ptr<CalibrationSource> calibrations = nullptr,
               RunLoop* runLoop = nullptr) {
        services_ = std::make_unique<RampDisplayServices>(
            std::make_unique<FakeGammaHardware>(hardware_), std::move(calibrations), runLoop);
        setDisplayServices(services_.get());
    }
    CGDirectDisplayID id(std::size_t index) { return services_->onlineDisplays()->at(index).id; }
    CGDirectDisplayID id(const std::string& connector) {
        for (const DisplayInfo& info : *services_->onlineDisplays()) {
            if (info.name == connector) {
                return info.id;
            }
        }
        return 0;
    }
    static std::unique_ptr<NDScreenController> inverting(CGDirectDisplayID display) {
        return NDScreenController::screenControllerWithEffect(std::make_shared<NDInvertEffect>(),
                                                              display);
    }

    FakeGammaHardwareState hardware_;
    std::unique_ptr<RampDisplayServices> services_;
};

} // namespace nocturo
