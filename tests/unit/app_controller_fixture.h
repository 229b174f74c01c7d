#pragma once

#include "app/app_controller.h"
#include "fake_gamma_hardware.h"
#include "fake_run_loop.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/ramp_display_services.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace nocturo {

/// An application controller over three displays in memory, with the invert effect selected.
class AppControllerFixture : public testing::Test {
  protected:
    void SetUp() override {
        for (std::uint32_t crtc = 1; crtc <= 3; ++crtc) {
            hardware_.add("D" + std::to_string(crtc), crtc);
        }
        services_ =
            std::make_unique<RampDisplayServices>(std::make_unique<FakeGammaHardware>(hardware_));
        setDisplayServices(services_.get());
        NDEffect::setUserDefaults(store_);
        store_->setObject(PropertyArray{std::string("NDInvertEffect")}, "NDGroupEffect");
    }
    void TearDown() override {
        setDisplayServices(nullptr);
        NDEffect::setUserDefaults(nullptr);
    }

    CGDirectDisplayID id(std::size_t index) { return services_->onlineDisplays()->at(index).id; }

    /// One letter per CRTC: i inverted, o its own ramp.
    std::string shown() const {
        std::string letters;
        for (const auto& [crtc, ramp] : hardware_.ramps) {
            letters += ramp.red.front() > ramp.red.back() ? 'i' : 'o';
        }
        return letters;
    }

    FakeGammaHardwareState hardware_;
    std::unique_ptr<RampDisplayServices> services_;
    NotificationCenter center_;
    NotificationCenter workspace_;
    NotificationCenter distributed_;
    NotificationCenters centers_{center_, workspace_, distributed_};
    std::shared_ptr<DefaultsStore> store_ = std::make_shared<DefaultsStore>(center_);
    FakeRunLoop runLoop_;
    NDAppController controller_{*store_, centers_, runLoop_};
};

} // namespace nocturo
