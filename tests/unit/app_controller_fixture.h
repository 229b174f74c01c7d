#pragma once

#include "app/app_controller.h"
#include "display_services_fixture.h"
#include "fake_run_loop.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"

#include <memory>
#include <string>

namespace nocturo {

/// An application controller over three displays in memory, with the invert effect selected.
class AppControllerFixture : public DisplayServicesFixture {
  protected:
    void SetUp() override {
        for (std::uint32_t crtc = 1; crtc <= 3; ++crtc) {
            hardware_.add("D" + std::to_string(crtc), crtc);
        }
        start();
        NDEffect::setUserDefaults(store_);
        store_->setObject(PropertyArray{std::string("NDInvertEffect")}, "NDGroupEffect");
    }
    void TearDown() override { NDEffect::setUserDefaults(nullptr); }

    /// One letter per CRTC: i inverted, o its own ramp.
    std::string shown() const {
        std::string letters;
        for (const auto& [crtc, ramp] : hardware_.ramps) {
            letters += ramp.red.front() > ramp.red.back() ? 'i' : 'o';
        }
        return letters;
    }

    NotificationCenter center_;
    NotificationCenter workspace_;
    NotificationCenter distributed_;
    NotificationCenters centers_{center_, workspace_, distributed_};
    std::shared_ptr<DefaultsStore> store_ = std::make_shared<DefaultsStore>(center_);
    FakeRunLoop runLoop_;
    NDAppController controller_{*store_, centers_, runLoop_};
};

} // namespace nocturo
