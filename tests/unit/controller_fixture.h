#pragma once

#include "app/app_controller.h"
#include "app/desktop_face.h"
#include "base/notification_names.h"
#include "display_services_fixture.h"
#include "displays/affected_screen_set.h"
#include "fake_run_loop.h"

#include <gmock/gmock.h>

namespace nocturo {

/// A desktop that shows nothing; tests override what they look at.
struct BlindDesktop : DesktopFace {
    void showAlert(const Alert& /*alert*/, std::function<void(AlertAnswer)> /*answered*/) override {
    }
    void askToKeepColors(int /*secondsLeft*/, std::function<void(bool)> /*answered*/) override {}
    void withdrawKeepColors() override {}
    void whenPointerIsReleased(std::function<void()> action) override { action(); }
    void showRefusedDocuments(const std::vector<std::string>& /*paths*/) override {}
    void setActivateItemTitles(bool /*active*/) override {}
    void setStatusItemShown(bool /*shown*/) override {}
    void setStatusItemImage(bool /*active*/) override {}
    void makeScreenMenus() override {}
};

/// An application controller over displays in memory, D1 on CRTC 1 and so on.
struct ControllerFixture : DisplayServicesFixture {
    explicit ControllerFixture(std::uint32_t displays) {
        hardware_.addUpTo(displays);
        start();
    }

    NotificationCenter workspace_;
    NotificationCenter distributed_;
    NotificationCenters centers_{center_, workspace_, distributed_};
    FakeRunLoop runLoop_;
    NDAppController controller_{*store_, centers_, runLoop_};
};

} // namespace nocturo
