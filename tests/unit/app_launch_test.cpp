#include "app/desktop_face.h"
#include "app/flux_check.h"
#include "app/user_interface.h"
#include "app_controller_fixture.h"
#include "platform/installed_applications.h"
#include "platform/notification_names.h"
#include "platform/workspace/desktop_entries.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Everything that the launch has to do with: windows, alerts and what is installed.
struct Surroundings : UserInterface, DesktopFace, InstalledApplications {
    void showPreferences() override { log.emplace_back("preferences"); }
    void showAboutBox() override { log.emplace_back("about"); }
    void setAboutBoxBackgroundColor(const OpaqueColor& color) override {
        log.emplace_back(color.blue == 0.84 ? "about color" : "another color");
    }
    bool preferencesVisible() const override { return false; }
    void loadPreferences() override { log.emplace_back("load"); }
    bool openEffectFile(const std::string& /*path*/) override { return false; }
    bool saveEffectFile(const std::string& /*path*/) override { return false; }
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID /*display*/) override { return {}; }

    AlertAnswer runAlert(const Alert& alert) override {
        alerts.push_back(alert);
        log.push_back(std::string("alert ") + alert.alternateButton);
        whileAsking();
        return answer;
    }
    void setActivateItemTitles(bool active) override { log.emplace_back(active ? "on" : "off"); }
    void setStatusItemShown(bool shown) override { log.emplace_back(shown ? "item" : "no item"); }
    void setStatusItemImage(bool active) override {
        log.emplace_back(active ? "image on" : "image off");
    }
    void makeScreenMenus() override { log.emplace_back("screen menus"); }

    std::optional<InstalledApplication>
    applicationWithBundleIdentifier(std::string_view identifier) const override {
        return identifier == "org.herf.Flux"
                   ? std::optional(InstalledApplication{"f.lux applet", "fluxgui"})
                   : std::nullopt;
    }

    AlertAnswer answer = AlertAnswer::alternateButton;
    std::function<void()> whileAsking = [] {};
    std::vector<Alert> alerts;
    std::vector<std::string> log;
};

struct CountingPersistence : DefaultsPersistence {
    void userDomainDidChange() override {}
    bool synchronize() override { return ++synchronized > 0; }
    int synchronized = 0;
};

class Launch : public AppControllerFixture {
  protected:
    Launch() {
        controller_.setUserInterface(&around_);
        controller_.setDesktopFace(&around_);
    }

    Surroundings around_;
};

TEST_F(Launch, GoesStepByStep) {
    controller_.setInstalledApplications(&around_);
    around_.answer = AlertAnswer::defaultButton; // continue, and open the preferences
    around_.whileAsking = [&] { controller_.warnIfNoEffects(); }; // not a second time
    store_->setObject(PropertyArray{}, "NDGroupEffect");
    store_->setInteger(1, "ShowStatusItem");
    center_.addObserver(this, NSUserDefaultsDidChangeNotification, [&] {
        around_.log.emplace_back(store_->boolForKey("EffectActive") ? "saved on" : "saved");
    });
    EXPECT_TRUE(controller_.applicationDidFinishLaunching());
    // A write while the launch goes on makes no status item yet.
    EXPECT_THAT(around_.log,
                ElementsAre("about color", "alert Quit", "saved", "saved on", "on", "alert Cancel",
                            "preferences", "item", "image on", "screen menus"));
    center_.removeObserver(this);
    around_.log.clear();
    center_.post(NSApplicationDidFinishLaunchingNotification); // heard no more
    EXPECT_THAT(around_.log, IsEmpty());

    for (const std::int64_t value : {1, 0}) {
        store_->setInteger(value, "ShowStatusItem");
        controller_.activateEffect();
    }
    EXPECT_THAT(around_.log, ElementsAre("off", "image off", "no item", "on"));
}

TEST_F(Launch, FluxIsWarnedOfUntilTheUserContinues) {
    CountingPersistence persistence;
    store_->setPersistence(&persistence);
    controller_.setInstalledApplications(&around_);
    const PropertyDictionary before = store_->userDomain();
    around_.whileAsking = [&] { controller_.toggleGlobalEffect(); }; // too early
    EXPECT_FALSE(controller_.applicationDidFinishLaunching());
    EXPECT_EQ(store_->userDomain(), before);
    EXPECT_EQ(persistence.synchronized, 0);
    EXPECT_THAT(hardware_.writes, IsEmpty());
    EXPECT_FALSE(store_->boolForKey("ActivateAtLaunch")); // nothing is registered either
    const Alert& alert = around_.alerts.at(0);
    EXPECT_THAT(alert.titleArguments, ElementsAre("f.lux applet"));
    EXPECT_THAT(alert.messageArguments, ElementsAre("Nocturo", "f.lux applet"));
    EXPECT_EQ(alert.icon, "fluxgui");

    around_.answer = AlertAnswer::defaultButton;
    EXPECT_EQ(NDCheckForFlux(*store_, around_, around_), FluxCheck::continued);
    EXPECT_EQ(persistence.synchronized, 1);
    EXPECT_EQ(NDCheckForFlux(*store_, around_, around_), FluxCheck::nothingShown);
    EXPECT_EQ(around_.alerts.size(), 2U);
    store_->setPersistence(nullptr);
}

TEST(DesktopEntries, AreFoundByIdentifierAndByPackagedName) {
    const TemporaryDirectory directory;
    const auto write = [&](const std::string& place, const char* more) {
        const auto file = directory / place;
        std::filesystem::create_directories(file.parent_path());
        writeText(file, std::string("[Desktop Entry]\nType=Application\n") + more);
    };
    const DesktopEntries entries({directory / "mine", directory / "system"});
    const auto flux = [&] { return entries.applicationWithBundleIdentifier("org.herf.Flux"); };
    EXPECT_FALSE(flux());
    write("system/applications/fluxgui.desktop",
          "Name=f.lux indicator\nName[de]=f.lux-Anzeige\nIcon=fluxgui\n");
    ::setenv("LANGUAGE", "de", 1);
    EXPECT_EQ(flux().value().displayName, "f.lux-Anzeige");
    EXPECT_EQ(flux()->icon, "fluxgui");
    EXPECT_FALSE(entries.applicationWithBundleIdentifier("org.example.Other"));
    write("mine/applications/fluxgui.desktop", "Name=gone\nHidden=true\n");
    EXPECT_FALSE(flux());
    write("mine/applications/org.herf.Flux.desktop", "Name=Flux\nTryExec=sh\n");
    EXPECT_EQ(flux().value().displayName, "Flux");
    write("mine/applications/org.herf.Flux.desktop", "Name=Flux\nTryExec=no-such-program\n");
    EXPECT_FALSE(flux());
}

} // namespace
} // namespace nocturo
