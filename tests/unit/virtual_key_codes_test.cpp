#include "platform/keyboard/virtual_key_codes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {
namespace {

constexpr int kNone = -1;

int keyCodeOf(std::uint32_t evdevCode) {
    const auto keyCode = virtualKeyCodeFromEvdev(evdevCode);
    return keyCode ? *keyCode : kNone;
}

TEST(VirtualKeyCodes, FollowTheBoardsOrder) {
    // Runs of consecutive evdev codes, as the kernel numbers a board row by row.
    const std::vector<std::pair<std::uint32_t, std::vector<int>>> runs = {
        {0, {kNone, 53}},
        {2, {18, 19, 20, 21, 23, 22, 26, 28, 25, 29, 27, 24, 51}},         // 1 to backspace
        {15, {48, 12, 13, 14, 15, 17, 16, 32, 34, 31, 35, 33, 30, 36}},    // tab to return
        {29, {59, 0, 1, 2, 3, 5, 4, 38, 40, 37, 41, 39, 50}},              // control to grave
        {42, {56, 42, 6, 7, 8, 9, 11, 45, 46, 43, 47, 44, 60}},            // shift to shift
        {55, {67, 58, 49, 57}},                                            // keypad *, alt, space
        {59, {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 71, kNone}},   // F1 to F10, num lock
        {71, {89, 91, 92, 78, 86, 87, 88, 69, 83, 84, 85, 82, 65, kNone}}, // keypad
        {85, {kNone, 10, 103, 111, 94, kNone, kNone, kNone, 104, 102, 95}},
        {96, {76, 62, 75, kNone, 61, kNone}}, // keypad enter, right control, keypad /, right alt
        {102, {115, 126, 116, 123, 124, 119, 125, 121, 114, 117}}, // home to delete
        {113, {74, 73, 72, kNone, 81}},                            // mute, volume, keypad =
        {124, {93, 55, 54, 110}},                                  // yen, both supers, menu
        {183, {105, 107, 113, 106, 64, 79, 80, 90, kNone}},        // F13 to F20
        {464, {63, kNone}},
        {65536 + 30, {kNone}},
    };
    std::size_t known = 0;
    for (const auto& [first, keyCodes] : runs) {
        for (std::uint32_t i = 0; i < keyCodes.size(); ++i) {
            EXPECT_EQ(keyCodeOf(first + i), keyCodes[i]) << "evdev " << first + i;
            known += keyCodes[i] != kNone ? 1 : 0;
        }
    }
    EXPECT_EQ(virtualKeys().size(), known);
}

TEST(VirtualKeyCodes, GoBothWaysWithoutLoss) {
    std::set<std::string_view> names;
    for (const VirtualKey& key : virtualKeys()) {
        EXPECT_EQ(virtualKeyCodeFromEvdev(key.evdevCode), key.keyCode);
        EXPECT_EQ(evdevFromVirtualKeyCode(key.keyCode), key.evdevCode);
        if (!key.name.empty()) {
            EXPECT_TRUE(names.insert(key.name).second) << key.name;
            EXPECT_EQ(virtualKeyCodeNamed(key.name), key.keyCode);
            EXPECT_EQ(nameOfVirtualKey(key.keyCode), key.name);
        }
    }
    EXPECT_EQ(virtualKeyCodeNamed("INS"), 114);
    EXPECT_EQ(virtualKeyCodeNamed("spac"), std::nullopt);
    EXPECT_EQ(virtualKeyCodeNamed(""), std::nullopt);
    EXPECT_EQ(evdevFromVirtualKeyCode(52), std::nullopt);
    EXPECT_EQ(nameOfVirtualKey(0), "");
    EXPECT_EQ(nameOfVirtualKey(1000), "");
}

TEST(VirtualKeyCodes, KnowTheKeysThatStandAlone) {
    std::set<int> alone;
    for (int keyCode = 0; keyCode < 256; ++keyCode) {
        if (isFunctionKeyCode(static_cast<std::uint16_t>(keyCode))) {
            alone.insert(keyCode);
        }
    }
    EXPECT_EQ(alone,
              (std::set{122, 120, 99, 118, 96, 97,  98,  100, 101, 109, 103, 111, 105, 107, 113,
                        106, 64,  79, 80,  90, 115, 116, 117, 119, 121, 123, 124, 125, 126}));
}

} // namespace
} // namespace nocturo
