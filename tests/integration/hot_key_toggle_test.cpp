// The hot key of the settings on a real X server, pressed by XTEST: what it does to the ramps.

#include "nocturo_test.h"

#include <linux/input-event-codes.h>

namespace nocturo::rig {

namespace {

using Json = nlohmann::json;

class HotKeyToggle : public NocturoOnX {
  protected:
    HotKeyToggle() : NocturoOnX(1) {
        session_.server().setLayout("us");
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"});
        ctl({"off"});
    }

    Json hotKey() { return status()["hotKey"]; }
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
    for (const int key : {KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_F5}) {
        client_.press(key);
    }
    ctl({"status"}); // the press has arrived by now
    EXPECT_EQ(shown(), "o");
    client_.release(KEY_LEFTMETA); // modifiers first: the key itself is released with one held
    client_.release(KEY_F5);
    EXPECT_TRUE(becomes("i"));
    client_.release(KEY_LEFTSHIFT);

    ctl({"hotkey", "set", "ctrl+k"});
    client_.type({KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_F5});
    client_.type({KEY_LEFTCTRL, KEY_K});
    EXPECT_TRUE(becomes("o")); // toggled once: the old combination is silent
    ctl({"hotkey", "disable"});
    EXPECT_FALSE(hotKey()["registered"]);
    EXPECT_TRUE(client_.grab(KEY_K, XCB_MOD_MASK_CONTROL)); // it is free again

    EXPECT_NE(ctl({"hotkey", "enable"}).output.find("another program holds it"), std::string::npos);
    EXPECT_EQ(hotKey()["registered"], false);
    client_.ungrab(KEY_K, XCB_MOD_MASK_CONTROL);
    for (const char* level :
         {"-0.1", "-0.2", "-0.3"}) { // any change tries again, none claims twice
        ctl({"set", "NDDimEffectLevel", level});
    }
    for (const char* letter : {"i", "o"}) {
        client_.type({KEY_LEFTCTRL, KEY_K});
        EXPECT_TRUE(becomes(letter));
    }
    ctl({"hotkey", "none"});
    EXPECT_TRUE(hotKey().is_null());
    EXPECT_TRUE(client_.grab(KEY_K, XCB_MOD_MASK_CONTROL)); // none is left behind

    const RunResult wrong = session_.run("nocturoctl", {"hotkey", "set", "ctrl+nokey"});
    EXPECT_EQ(wrong.exit, 2);
    EXPECT_NE(wrong.errors.find("ctrl+super+F5"), std::string::npos) << wrong.errors;
    EXPECT_TRUE(hotKey().is_null());
}

TEST_F(HotKeyToggle, IsNamedAsTheLayoutInForceEngravesIt) {
    session_.server().setLayout("fr,ru");
    ctl({"hotkey", "set", "ctrl+a"});
    EXPECT_EQ(hotKey()["keyCode"], 12); // where a US board has Q
    client_.type({KEY_COMPOSE});        // the menu key: the other layout
    EXPECT_EQ(hotKey()["text"], "⌃Й");
    ctl({"hotkey", "enable"});
    client_.type({KEY_LEFTCTRL, KEY_Q});
    EXPECT_TRUE(becomes("i")); // the group does not matter to the key itself
}

} // namespace

} // namespace nocturo::rig
