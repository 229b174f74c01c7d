#include "app/desktop_face.h"
#include "app/flux_check.h"
#include "app/user_interface.h"
#include "app_controller_fixture.h"
#include "hotkeys/hot_key_center.h"
#include "platform/installed_applications.h"
#include "platform/notification_names.h"
#include "platform/workspace/desktop_entries.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace nocturo {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using Log = std::vector<std::string>;

struct RecordingWindows : UserInterface {
    explicit RecordingWindows(Log& log) : log_(log) {}
    void showPreferences() override {
        visible = true;
        log_.emplace_back("preferences");
    }
    void showAboutBox() override { log_.emplace_back("about"); }
    void setAboutBoxBackgroundColor(const OpaqueColor& color) override {
        log_.emplace_back(color.blue == 0.84 ? "about color" : "another color");
    }
    bool preferencesVisible() const override { return visible; }
    void loadPreferences() override { log_.emplace_back("load"); }
    bool openEffectFile(const std::string& path) override { return path == "good"; }
    bool saveEffectFile(const std::string& /*path*/) override { return false; }
    std::vector<std::uint8_t> previewPicture(CGDirectDisplayID /*display*/) override { return {}; }

    bool visible = false;
    Log& log_;
};

struct RecordingDesktop : DesktopFace {
    explicit RecordingDesktop(Log& log) : log_(log) {}
    AlertAnswer runAlert(const Alert& alert) override {
        alerts.push_back(alert);
        log_.push_back(std::string("alert ") + alert.alternateButton);
        whileAsking();
        return answer;
    }
    void showRefusedDocuments(const std::vector<std::string>& paths) override {
        log_.push_back("refused " + paths.front());
    }
    void setActivateItemTitles(bool active) override { log_.emplace_back(active ? "on" : "off"); }
    void setStatusItemShown(bool shown) override { log_.emplace_back(shown ? "item" : "no item"); }
    void setStatusItemImage(bool active) override {
        log_.emplace_back(active ? "image on" : "image off");
    }
    void makeScreenMenus() override { log_.emplace_back("screen menus"); }

    AlertAnswer answer = AlertAnswer::alternateButton;
    std::function<void()> whileAsking = [] {};
    std::vector<Alert> alerts;
    Log& log_;
};

struct FluxInstalled : InstalledApplications {
    std::optional<InstalledApplication>
    applicationWithBundleIdentifier(std::string_view identifier) const override {
        return identifier == "org.herf.Flux"
                   ? std::optional(InstalledApplication{"f.lux applet", "fluxgui"})
                   : std::nullopt;
    }
};

struct CountingPersistence : DefaultsPersistence {
    void userDomainDidChange() override {}
    bool synchronize() override {
        ++synchronized;
        return true;
    }
    int synchronized = 0;
};

class Launch : public AppControllerFixture {
  protected:
    void SetUp() override {
        AppControllerFixture::SetUp();
        controller_.setUserInterface(&windows_);
        controller_.setDesktopFace(&desktop_);
    }

    Log log_;
    RecordingWindows windows_{log_};
    RecordingDesktop desktop_{log_};
    FluxInstalled flux_;
};

TEST_F(Launch, GoesStepByStep) {
    controller_.setInstalledApplications(&flux_);
    desktop_.answer = AlertAnswer::defaultButton; // continue, and open the preferences
    store_->setObject(PropertyArray{}, "NDGroupEffect");
    store_->setInteger(1, "ShowStatusItem");
    center_.addObserver(this, NSUserDefaultsDidChangeNotification, [&] {
        log_.push_back(store_->boolForKey("EffectActive") ? "saved on" : "saved");
    });
    EXPECT_TRUE(controller_.applicationDidFinishLaunching());
    // A write while the launch goes on makes no status item yet.
    EXPECT_THAT(log_,
                ElementsAre("about color", "alert Quit", "saved", "saved on", "on", "alert Cancel",
                            "preferences", "item", "image on", "screen menus"));
    center_.removeObserver(this);
    log_.clear();
    center_.post(NSApplicationDidFinishLaunchingNotification); // heard no more
    EXPECT_TRUE(log_.empty());
}

TEST_F(Launch, AFreshUserIsToldOnceThatNothingIsChosen) {
    store_->removeObjectForKey("NDGroupEffect");
    bool onWhileAsked = false;
    desktop_.whileAsking = [&] {
        onWhileAsked = controller_.effectActive() && store_->boolForKey("EffectActive");
        controller_.warnIfNoEffects(); // not a second time
    };
    controller_.applicationDidFinishLaunching();
    EXPECT_TRUE(onWhileAsked);
    controller_.warnIfNoEffects();
    ASSERT_EQ(desktop_.alerts.size(), 1U);
    EXPECT_THAT(desktop_.alerts[0].title, HasSubstr("No effect"));
    EXPECT_EQ(desktop_.alerts[0].harmless, AlertAnswer::alternateButton);
    EXPECT_FALSE(windows_.visible); // cancelled

    store_->setObject(PropertyArray{std::string("NDInvertEffect")}, "NDGroupEffect");
    NDAppController withEffect(*store_, centers_, runLoop_);
    withEffect.setDesktopFace(&desktop_);
    withEffect.warnIfNoEffects(); // before the launch: keeps the question for it
    withEffect.applicationDidFinishLaunching();
    EXPECT_EQ(desktop_.alerts.size(), 1U);
}

TEST_F(Launch, FluxIsWarnedOfUntilTheUserContinues) {
    CountingPersistence persistence;
    store_->setPersistence(&persistence);
    controller_.setInstalledApplications(&flux_);
    const PropertyDictionary before = store_->userDomain();
    desktop_.whileAsking = [&] { controller_.toggleGlobalEffect(); }; // too early
    EXPECT_FALSE(controller_.applicationDidFinishLaunching());
    EXPECT_EQ(store_->userDomain(), before);
    EXPECT_EQ(persistence.synchronized, 0);
    EXPECT_TRUE(hardware_.writes.empty());
    EXPECT_FALSE(store_->boolForKey("ActivateAtLaunch")); // nothing is registered either
    ASSERT_EQ(desktop_.alerts.size(), 1U);
    const Alert& alert = desktop_.alerts[0];
    EXPECT_THAT(alert.titleArguments, ElementsAre("f.lux applet"));
    EXPECT_THAT(alert.messageArguments, ElementsAre("Nocturo", "f.lux applet"));
    EXPECT_TRUE(alert.critical);
    EXPECT_EQ(alert.icon, "fluxgui");

    desktop_.answer = AlertAnswer::defaultButton;
    EXPECT_EQ(NDCheckForFlux(*store_, flux_, desktop_), FluxCheck::continued);
    EXPECT_EQ(persistence.synchronized, 1);
    EXPECT_EQ(NDCheckForFlux(*store_, flux_, desktop_), FluxCheck::nothingShown);
    EXPECT_EQ(desktop_.alerts.size(), 2U);
    store_->setPersistence(nullptr);
}

TEST_F(Launch, TheStatusItemFollowsItsSettingAndTheEffect) {
    controller_.updateStatusItem();
    controller_.applicationDidFinishLaunching();
    log_.clear();
    for (const std::int64_t value : {2, 1, 1, 0}) {
        store_->setInteger(value, "ShowStatusItem");
        controller_.activateEffect();
    }
    EXPECT_THAT(log_, ElementsAre("off", "item", "image off", "on", "image on", "off", "image off",
                                  "no item", "on"));
}

TEST_F(Launch, WindowsComeBackAsTheyWere) {
    PropertyDictionary kept;
    controller_.willEncodeRestorableState(kept);
    controller_.didDecodeRestorableState(kept);
    controller_.didDecodeRestorableState({});
    controller_.didDecodeRestorableState({{"PreferenceWindowVisible", std::int64_t{1}}});
    EXPECT_FALSE(windows_.visible);
    windows_.visible = true;
    controller_.willEncodeRestorableState(kept);
    windows_.visible = false;
    controller_.didDecodeRestorableState(kept);
    EXPECT_TRUE(windows_.visible);
    EXPECT_TRUE(controller_.openFile("good"));
    EXPECT_FALSE(controller_.openFileWithoutUI("bad"));
}

TEST(DesktopEntries, AreFoundByIdentifierAndByPackagedName) {
    const TemporaryDirectory mine;
    const TemporaryDirectory systems;
    const auto write = [](const TemporaryDirectory& where, const char* name, const char* more) {
        const auto folder = where.path() / "applications";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / name) << "[Desktop Entry]\nType=Application\n" << more;
    };
    const DesktopEntries entries({mine.path(), systems.path()});
    const auto flux = [&] { return entries.applicationWithBundleIdentifier("org.herf.Flux"); };
    EXPECT_FALSE(flux());
    write(systems, "fluxgui.desktop",
          "Name=f.lux indicator\nName[de]=f.lux-Anzeige\nIcon=fluxgui\n");
    ::setenv("LANGUAGE", "de", 1);
    ASSERT_TRUE(flux());
    EXPECT_EQ(flux()->displayName, "f.lux-Anzeige");
    EXPECT_EQ(flux()->icon, "fluxgui");
    EXPECT_FALSE(entries.applicationWithBundleIdentifier("org.example.Other"));
    write(mine, "fluxgui.desktop", "Name=gone\nHidden=true\n");
    EXPECT_FALSE(flux());
    write(systems, "org.herf.Flux.desktop", "Name=Flux\nTryExec=no-such-program-here\n");
    EXPECT_FALSE(flux());
    write(mine, "org.herf.Flux.desktop", "Name=Flux\nTryExec=sh\n");
    EXPECT_EQ(flux()->displayName, "Flux");
}

} // namespace

} // namespace nocturo
