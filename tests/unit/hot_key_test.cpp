#include "hotkeys/hot_key.h"

#include "hotkeys/key_event.h"
#include "hotkeys/saved_hot_key.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace nocturo {
namespace {

using testing::MatchesRegex;
using testing::Optional;
using testing::Pair;
using testing::Ref;

struct MockTarget : ActionTarget {
    bool respondsTo(std::string_view action) const override { return action != "unknown:"; }
    MOCK_METHOD(void, perform, (std::string_view, const KeyEvent&, const std::shared_ptr<void>&),
                (override));
    std::string description() const override { return "<target>"; }
};

TEST(HotKey, EqualityAndHashLookAtKeyAndFlagsAlone) {
    HXHotKey one;
    one._setKeyCode(40);
    one._setModifierFlags(0x120000);
    one._setTarget(std::make_shared<MockTarget>());
    one._setAction("one:");
    one.setHotKeyID(7);
    const auto same = HXHotKey::hotKeyWithKeyCode(40, 0x120000, [](const KeyEvent&) {});
    EXPECT_TRUE(one.isEqual(*same));
    EXPECT_EQ(one.hash(), 0x120028U);
    EXPECT_EQ(same->hash(), 0x120028U);
    EXPECT_FALSE(one.isEqual(*HXHotKey::hotKeyWithKeyCode(41, 0x120000, nullptr)));
    EXPECT_FALSE(one.isEqual(*HXHotKey::hotKeyWithKeyCode(40, 0x130000, nullptr)));
}

TEST(HotKey, ReleaseSendsTheActionAndFallsBackToTheTask) {
    const auto target = std::make_shared<MockTarget>();
    const auto object = std::make_shared<int>(5);
    int tasksRun = 0;
    HXHotKey hotKey;
    hotKey._setTask([&](const KeyEvent&) { ++tasksRun; });
    const KeyEvent event;

    hotKey.invokePressedWithEvent(event);
    EXPECT_EQ(tasksRun, 0);
    hotKey._setAction("toggle:"); // without a target
    hotKey.invokeWithEvent(event);
    EXPECT_EQ(tasksRun, 1);

    hotKey._setTarget(target);
    hotKey._setObject(object);
    hotKey._setPressedAction("press:");
    {
        const testing::InSequence order;
        EXPECT_CALL(*target, perform("toggle:", Ref(event), std::shared_ptr<void>(object)));
        EXPECT_CALL(*target, perform("press:", Ref(event), std::shared_ptr<void>(object)));
    }
    hotKey.invokeWithEvent(event);
    hotKey.invokePressedWithEvent(event);
    EXPECT_EQ(tasksRun, 1);

    hotKey._setAction("unknown:");
    hotKey._setPressedAction("unknown:");
    hotKey.invokeWithEvent(event);
    hotKey.invokePressedWithEvent(event);
    EXPECT_EQ(tasksRun, 2);

    hotKey._setTask(nullptr);
    hotKey.invokeWithEvent(event);
    EXPECT_EQ(tasksRun, 2);
}

TEST(HotKey, DescribesKeyFlagsAndWhatItInvokes) {
    HXHotKey hotKey;
    hotKey._setKeyCode(65535);
    hotKey._setModifierFlags(0x9F0000);
    hotKey._setTarget(std::make_shared<MockTarget>());
    EXPECT_THAT(hotKey.description(),
                MatchesRegex("<HXHotKey: 0x[0-9a-f]+>\n\t\\(key: 65535\n\tflags: "
                             "\\(NSControlKeyMask \\| NSCommandKeyMask \\| NSShiftKeyMask \\| "
                             "NSAlternateKeyMask\\)\n\tinvokes: \\(block\\)\\)"));
    hotKey._setModifierFlags(0x810000);
    hotKey._setAction("toggle:");
    EXPECT_THAT(hotKey.description(), MatchesRegex(".*\n\tflags: \\(\\)\n\tinvokes: "
                                                   "\\[<target> toggle:\\]\\)"));
}

TEST(SavedHotKey, IsNoneOnlyWhenBothNumbersSayNothing) {
    NotificationCenter notifications;
    DefaultsStore defaults(notifications);
    EXPECT_EQ(NDSavedHotKey(defaults), nullptr);
    const auto saved = [&](std::int64_t code, std::int64_t modifiers) {
        defaults.setInteger(code, "HotKeyCode");
        defaults.setInteger(modifiers, "HotKeyModifiers");
        const auto hotKey = NDSavedHotKey(defaults);
        return hotKey != nullptr ? std::optional(std::pair<int, std::uint64_t>(
                                       hotKey->keyCode(), hotKey->modifierFlags()))
                                 : std::nullopt;
    };
    EXPECT_EQ(saved(0x30000, 0), std::nullopt);
    EXPECT_THAT(saved(0x10060, 0), Optional(Pair(96, 0U)));
    EXPECT_THAT(saved(0, 0x100000), Optional(Pair(0, 0x100000U)));
    EXPECT_THAT(saved(0x30000, 0x100000000), Optional(Pair(0, 0x100000000U)));
    EXPECT_THAT(saved(-1, -1), Optional(Pair(65535, ~0ULL)));
}

} // namespace
} // namespace nocturo
