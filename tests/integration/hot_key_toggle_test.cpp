// The hot key of the settings on a real X server, pressed by XTEST: what it does to the ramps.

#include "nocturo_test.h"

#include <linux/input-event-codes.h>

using namespace nocturo;
using namespace nocturo::rig;

using Json = nlohmann::json;

constexpr int kControl = XCB_MOD_MASK_CONTROL;
constexpr int kCapsOn = XCB_MOD_MASK_LOCK;
constexpr int kNumOn = XCB_MOD_MASK_2;

struct HotKeyToggle : NocturoOnX {
    HotKeyToggle() : NocturoOnX(1) {
        session_.server().setLayout("us");
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert"});
        ctl({"off"});
    }

    Json hotKey() { return status()["hotKey"]; }
    std::string enable() { return ctl({"hotkey", "enable"}).output; }

    /// Whether another program can, soon, claim the key with exactly these modifiers. What is given
    /// back is only sent off: the server may hear others first.
    bool becomesFree(int key, int modifiers) {
        const bool isFree = waitUntil([&] { return client_.grab(key, modifiers); });
        client_.ungrab(key, modifiers);
        return isFree;
    }
    /// That every press of the keys toggles once.
    void expectToggles(const std::vector<int>& keys) {
        const std::string before = shown();
        client_.type(keys);
        EXPECT_TRUE(becomes(before == "i" ? "o" : "i"));
        client_.type(keys);
        EXPECT_TRUE(becomes(before));
    }
};

TEST_F(HotKeyToggle, TogglesOnReleaseAndFollowsTheChosenCombination) {
    EXPECT_EQ(ctl({"hotkey"}).output, "No hot key is chosen.\n");
    ctl({"hotkey", "set", "shift+Super+f5"});
    enable();
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
    for (const int key : {KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_F5}) {
        client_.release(key); // the modifiers first
    }
    EXPECT_TRUE(becomes("i"));

    EXPECT_EQ(ctl({"hotkey", "set", "shift+super+pgup"}).output, "Shift+Super+Page Up\n");
    ctl({"hotkey", "set", "ctrl+k"});
    client_.type({KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_F5});
    client_.type({KEY_LEFTCTRL, KEY_K});
    EXPECT_TRUE(becomes("o")); // toggled once: the old combination is silent
    ctl({"hotkey", "none"});
    EXPECT_TRUE(hotKey().is_null());
    says("nocturoctl", {"hotkey", "set", "ctrl+nokey"}, 2, "ctrl+super+F5");
    says("nocturoctl", {"hotkey", "set", "ctrl+alt+f1"}, 1, "keeps ctrl+alt+f1 to itself");
    EXPECT_TRUE(hotKey().is_null());
}

TEST_F(HotKeyToggle, WhatAnotherProgramHoldsIsRegisteredOnceItIsFree) {
    // Of the four grabs that a combination takes only one is held: the others must be given back.
    ASSERT_TRUE(client_.grab(KEY_K, kControl | kNumOn));
    ctl({"hotkey", "set", "ctrl+k"});
    EXPECT_NE(enable().find("another program holds it"), std::string::npos);
    EXPECT_EQ(hotKey()["registered"], false);
    for (const int locks : {0, kCapsOn, kCapsOn | kNumOn}) {
        EXPECT_TRUE(becomesFree(KEY_K, kControl | locks)) << locks;
    }
    client_.ungrab(KEY_K, kControl | kNumOn);
    for (const char* level : {"-0.1", "-0.2"}) { // any change tries again, none claims twice
        ctl({"set", "NDDimEffectLevel", level});
    }
    expectToggles({KEY_LEFTCTRL, KEY_K});
    EXPECT_FALSE(client_.grab(KEY_K, kControl | kNumOn | kCapsOn));
    ctl({"hotkey", "disable"});
    EXPECT_FALSE(hotKey()["registered"]);
    EXPECT_TRUE(becomesFree(KEY_K, kControl | kNumOn));
}

TEST_F(HotKeyToggle, WorksWhateverIsLockedAndWhereverTheModifiersAre) {
    ctl({"hotkey", "set", "super+f5"});
    enable();
    expectToggles({KEY_RIGHTMETA, KEY_F5});
    const std::pair<int, int> locks[] = {
        {KEY_NUMLOCK, kNumOn}, {KEY_CAPSLOCK, kNumOn | kCapsOn}, {KEY_NUMLOCK, kCapsOn}};
    for (const auto& [lock, state] : locks) {
        client_.type({lock});
        ASSERT_EQ(client_.modifiers(), state);
        client_.type({KEY_LEFTMETA, KEY_LEFTCTRL, KEY_F5}); // not chosen
        expectToggles({KEY_LEFTMETA, KEY_F5});
    }
    client_.type({KEY_CAPSLOCK});

    session_.server().run("xmodmap", {"-e", "clear mod2", "-e", "clear mod4", "-e",
                                      "add mod4 = Num_Lock", "-e", "add mod3 = Super_L Super_R"});
    // A look for what it claims anew, taken too early, would keep it from that.
    EXPECT_TRUE(becomesFree(KEY_F5, XCB_MOD_MASK_4));
    ctl({"status"}); // answered once all has moved
    EXPECT_FALSE(client_.grab(KEY_F5, XCB_MOD_MASK_3 | XCB_MOD_MASK_4));
    client_.type({KEY_NUMLOCK});
    ASSERT_EQ(client_.modifiers(), XCB_MOD_MASK_4);
    expectToggles({KEY_LEFTMETA, KEY_F5});
}
