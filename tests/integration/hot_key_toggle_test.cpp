// The hot key of the settings on a real X server, pressed by XTEST: what it does to the ramps.

#include "nocturo_test.h"
#include "rig/x_keyboard.h"

#include <linux/input-event-codes.h>

namespace nocturo::rig {

namespace {

using Json = nlohmann::json;

class HotKeyToggle : public NocturoOnX {
  protected:
    HotKeyToggle() : NocturoOnX(1) {
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"});
        ctl({"off"});
    }

    Json hotKey() { return status()["hotKey"]; }

    /// The modifiers are let go first: the key itself is released with none held.
    void press(std::initializer_list<std::uint16_t> keys) {
        for (const auto key : keys) {
            keyboard_.press(key);
        }
        for (const auto key : keys) {
            keyboard_.release(key);
        }
    }

    XKeyboard keyboard_{session_.server().display()};
};

TEST_F(HotKeyToggle, TogglesOnReleaseAndFollowsTheChosenCombination) {
    EXPECT_EQ(ctl({"hotkey"}).output, "No hot key is chosen.\n");
    ctl({"hotkey", "set", "shift+Super+f5"});
    ctl({"hotkey", "enable"});
    EXPECT_EQ(hotKey(), Json({{"text", "⇧⌘F5"},
                              {"keyCode", 96},
                              {"modifierFlags", 0x120000},
                              {"enabled", true},
                              {"registered", true}}));
    keyboard_.press(KEY_LEFTMETA);
    keyboard_.press(KEY_LEFTSHIFT);
    keyboard_.press(KEY_F5);
    ctl({"status"}); // the press has arrived by now
    EXPECT_EQ(shown(), "o");
    keyboard_.release(KEY_F5);
    EXPECT_TRUE(becomes("i"));
    keyboard_.release(KEY_LEFTSHIFT);
    keyboard_.release(KEY_LEFTMETA);

    ctl({"hotkey", "set", "ctrl+k"});
    press({KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_F5});
    press({KEY_LEFTCTRL, KEY_K});
    EXPECT_TRUE(becomes("o")); // toggled once: the old combination is silent
    ctl({"hotkey", "disable"});
    EXPECT_FALSE(hotKey()["registered"]);
    EXPECT_TRUE(keyboard_.grab(KEY_K, XCB_MOD_MASK_CONTROL)); // it is free again
    ctl({"hotkey", "none"});
    EXPECT_TRUE(hotKey().is_null());

    const RunResult wrong = session_.run("nocturoctl", {"hotkey", "set", "ctrl+nokey"});
    EXPECT_EQ(wrong.exit, 2);
    EXPECT_NE(wrong.errors.find("ctrl+super+F5"), std::string::npos) << wrong.errors;
    EXPECT_TRUE(hotKey().is_null());
}

TEST_F(HotKeyToggle, WhatAnotherProgramHoldsIsRegisteredOnceItIsFree) {
    ASSERT_TRUE(keyboard_.grab(KEY_K, XCB_MOD_MASK_CONTROL));
    ctl({"hotkey", "set", "ctrl+k"});
    EXPECT_NE(ctl({"hotkey", "enable"}).output.find("another program holds it"), std::string::npos);
    EXPECT_EQ(hotKey()["registered"], false);
    keyboard_.ungrab(KEY_K, XCB_MOD_MASK_CONTROL);
    for (int i = 0; i < 200; ++i) { // any change tries again, and none claims it twice
        ctl({"set", "NDDimEffectLevel", "-0." + std::to_string(i + 1)});
    }
    for (const char* letter : {"i", "o"}) {
        press({KEY_LEFTCTRL, KEY_K});
        EXPECT_TRUE(becomes(letter));
    }
    ctl({"hotkey", "none"});
    EXPECT_TRUE(keyboard_.grab(KEY_K, XCB_MOD_MASK_CONTROL)); // and none is left behind
}

TEST_F(HotKeyToggle, IsNamedAsTheLayoutInForceEngravesIt) {
    keyboard_.setLayout("fr,ru");
    ctl({"hotkey", "set", "ctrl+a"});
    EXPECT_EQ(hotKey()["keyCode"], 12); // where a US board has Q
    keyboard_.lockGroup(1);
    EXPECT_EQ(hotKey()["text"], "⌃Й");
    ctl({"hotkey", "enable"});
    press({KEY_LEFTCTRL, KEY_Q});
    EXPECT_TRUE(becomes("i")); // the group does not matter to the key itself
}

} // namespace

} // namespace nocturo::rig
