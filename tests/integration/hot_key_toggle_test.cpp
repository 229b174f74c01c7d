// The hot key of the settings on a real X server, pressed by XTEST: what it does to the ramps.

#include "rig/session.h"
#include "rig/x_keyboard.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <linux/input-event-codes.h>

namespace nocturo::rig {

namespace {

using Json = nlohmann::json;

class HotKeyToggle : public testing::Test {
  protected:
    void SetUp() override {
        ctl({"effects", "only", "invert"});
        ctl({"off"});
    }

    RunResult ctl(const std::vector<std::string>& arguments) {
        RunResult result = session_.run("nocturoctl", arguments);
        EXPECT_EQ(result.exit, 0) << arguments.front() << ": " << result.errors;
        return result;
    }
    Json hotKey() { return Json::parse(ctl({"status", "--json"}).output)["hotKey"]; }

    bool isInverted() {
        const auto red = client_.ramp("DUMMY1")[0];
        return red.front() > red.back();
    }
    bool becomes(bool inverted) {
        return waitUntil([&] { return isInverted() == inverted; });
    }
    void press(std::initializer_list<int> keys) {
        for (const int key : keys) {
            keyboard_.press(static_cast<std::uint16_t>(key));
        }
        // Modifiers first: the key itself is let go with none held.
        for (const int key : keys) {
            keyboard_.release(static_cast<std::uint16_t>(key));
        }
    }
    void pressSuperShiftF5() { press({KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_F5}); }
    void pressControlK() { press({KEY_LEFTCTRL, KEY_K}); }

    Session session_{2};
    XClient client_{session_.server().display()};
    XKeyboard keyboard_{session_.server().display()};
    std::unique_ptr<Process> nocturo_ = session_.startNocturo();
};

TEST_F(HotKeyToggle, TogglesOnReleaseWhateverIsLocked) {
    EXPECT_TRUE(hotKey().is_null());
    EXPECT_EQ(ctl({"hotkey"}).output, "No hot key is chosen.\n");
    ctl({"hotkey", "set", "shift+Super+f5"});
    ctl({"hotkey", "enable"});
    EXPECT_EQ(hotKey(), Json({{"text", "⇧⌘F5"},
                              {"keyCode", 96},
                              {"modifierFlags", 0x120000},
                              {"enabled", true},
                              {"registered", true}}));
    bool inverted = false;
    for (const int lock : {KEY_RESERVED, KEY_CAPSLOCK, KEY_NUMLOCK, KEY_CAPSLOCK}) {
        if (lock != KEY_RESERVED) {
            keyboard_.tap(static_cast<std::uint16_t>(lock));
        }
        pressSuperShiftF5();
        inverted = !inverted;
        EXPECT_TRUE(becomes(inverted)) << lock;
    }
    keyboard_.press(KEY_LEFTMETA);
    keyboard_.press(KEY_LEFTSHIFT);
    keyboard_.press(KEY_F5);
    ctl({"status"}); // the press has arrived by now
    EXPECT_EQ(isInverted(), inverted);
    keyboard_.release(KEY_F5);
    EXPECT_TRUE(becomes(!inverted));
}

TEST_F(HotKeyToggle, AChangedCombinationReplacesTheOldOne) {
    ctl({"hotkey", "enable"});
    ctl({"hotkey", "set", "super+shift+F5"});
    ctl({"hotkey", "set", "ctrl+k"});
    EXPECT_EQ(hotKey()["text"], "⌃K");
    pressSuperShiftF5();
    pressControlK();
    EXPECT_TRUE(becomes(true)); // toggled once: the old combination is silent
    ctl({"hotkey", "disable"});
    EXPECT_FALSE(hotKey()["registered"]);
    EXPECT_TRUE(keyboard_.grab(KEY_K, XCB_MOD_MASK_CONTROL)); // it is free again
    ctl({"hotkey", "none"});
    EXPECT_TRUE(hotKey().is_null());
    EXPECT_TRUE(isInverted());
}

TEST_F(HotKeyToggle, WhatAnotherProgramHoldsIsNotRegisteredUntilItIsFree) {
    ASSERT_TRUE(keyboard_.grab(KEY_K, XCB_MOD_MASK_CONTROL));
    ctl({"hotkey", "set", "ctrl+k"});
    EXPECT_NE(ctl({"hotkey", "enable"}).output.find("another program holds it"), std::string::npos);
    EXPECT_EQ(hotKey()["registered"], false);
    ctl({"on"}); // everything else runs
    EXPECT_TRUE(isInverted());
    keyboard_.ungrab(KEY_K, XCB_MOD_MASK_CONTROL);
    ctl({"set", "ActivateOnClick", "false"}); // any change tries again
    EXPECT_EQ(hotKey()["registered"], true);
    pressControlK();
    EXPECT_TRUE(becomes(false));
}

TEST_F(HotKeyToggle, TwoHundredSettingsChangesLeaveOneRegistration) {
    ctl({"hotkey", "set", "ctrl+k"});
    ctl({"hotkey", "enable"});
    for (int i = 0; i < 200; ++i) {
        ctl({"set", "NDDimEffectLevel", "-0." + std::to_string(i + 1)});
    }
    pressControlK();
    EXPECT_TRUE(becomes(true));
    pressControlK();
    EXPECT_TRUE(becomes(false));
    ctl({"hotkey", "none"});
    EXPECT_TRUE(keyboard_.grab(KEY_K, XCB_MOD_MASK_CONTROL)); // and none is left behind
}

TEST_F(HotKeyToggle, IsNamedAsTheLayoutInForceEngravesIt) {
    keyboard_.setLayout("us,ru");
    ctl({"hotkey", "set", "ctrl+q"});
    EXPECT_EQ(hotKey()["text"], "⌃Q");
    keyboard_.setLayout("fr,ru");
    EXPECT_EQ(hotKey()["text"], "⌃A");
    keyboard_.lockGroup(1);
    EXPECT_EQ(hotKey()["text"], "⌃Й");
    ctl({"hotkey", "enable"});
    press({KEY_LEFTCTRL, KEY_Q});
    EXPECT_TRUE(becomes(true)); // the group does not matter to the key itself
}

TEST_F(HotKeyToggle, WhatCannotBeReadSaysWhatIsAccepted) {
    for (const char* text : {"", "ctrl+", "k", "ctrl+nokey", "ctrl+a+b", "ctrl+super"}) {
        const RunResult result = session_.run("nocturoctl", {"hotkey", "set", text});
        EXPECT_EQ(result.exit, 2) << text;
        EXPECT_NE(result.errors.find("ctrl+super+F5"), std::string::npos) << result.errors;
    }
    EXPECT_TRUE(hotKey().is_null());
}

} // namespace

} // namespace nocturo::rig
