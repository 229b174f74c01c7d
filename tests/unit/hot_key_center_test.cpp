#include "hotkeys/hot_key_center.h"

#include "hotkeys/key_event.h"
#include "hotkeys/saved_hot_key.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"

#include <gmock/gmock.h>

#include <map>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Optional;
using testing::Pair;

constexpr std::uint64_t kCommand = 0x100000;

struct FakeService : HotKeyService {
    struct Claim {
        std::uint16_t keyCode;
        std::uint32_t modifiers;
        EventHotKeyID hotKeyID;
    };

    std::optional<HotKeyHandle> registerHotKey(std::uint16_t keyCode, std::uint32_t modifiers,
                                               EventHotKeyID hotKeyID) override {
        if (refusing) {
            return std::nullopt;
        }
        claims[HotKeyHandle{++handles}] = {keyCode, modifiers, hotKeyID};
        return HotKeyHandle{handles};
    }
    void unregisterHotKey(HotKeyHandle handle) override { EXPECT_EQ(claims.erase(handle), 1U); }
    void setHandlers(Handler onRelease, Handler onPress) override {
        released = std::move(onRelease);
        pressed = std::move(onPress);
    }

    std::map<HotKeyHandle, Claim> claims;
    std::uint64_t handles = 0;
    bool refusing = false;
    Handler released;
    Handler pressed;
};

/// Knows every action but "unknown:".
struct RecordingTarget : ActionTarget {
    bool respondsTo(std::string_view action) const override { return action != "unknown:"; }
    void perform(std::string_view action, const KeyEvent& event,
                 const std::shared_ptr<void>& object) override {
        actions.emplace_back(action);
        lastEvent = event;
        lastObject = object;
    }
    std::string description() const override { return "<target>"; }

    std::vector<std::string> actions;
    KeyEvent lastEvent;
    std::shared_ptr<void> lastObject;
};

class HotKeyCenter : public testing::Test {
  protected:
    HotKeyCenter() { center.setHotKeyService(&service); }
    ~HotKeyCenter() override {
        center.setHotKeyService(nullptr);
        EXPECT_THAT(service.claims, IsEmpty());
        EXPECT_FALSE(service.released || service.pressed);
    }

    std::uint32_t lastID() const { return service.claims.rbegin()->second.hotKeyID.id; }

    FakeService service;
    HXHotKeyCenter& center = HXHotKeyCenter::sharedHotKeyCenter();
    std::shared_ptr<RecordingTarget> target = std::make_shared<RecordingTarget>();
};

TEST_F(HotKeyCenter, ClaimsTheFourModifiersWhileItHasAService) {
    ASSERT_TRUE(center.registerHotKeyWithKeyCode(96, ~0ULL, nullptr));
    const auto& claim = service.claims.begin()->second;
    EXPECT_EQ(claim.keyCode, 96);
    EXPECT_EQ(claim.modifiers, 0x1B00U);
    EXPECT_EQ(claim.hotKeyID.signature, 0x68746B31U); // h t k 1 in ASCII

    center.setHotKeyService(nullptr);
    EXPECT_THAT(service.claims, IsEmpty());
    EXPECT_FALSE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    EXPECT_THAT(center.registeredHotKeys(), IsEmpty());
}

TEST_F(HotKeyCenter, IdentifiersGrowWithSuccessAlone) {
    ASSERT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    const auto first = lastID();
    EXPECT_GT(first, 0U);
    EXPECT_FALSE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    EXPECT_FALSE(center.registerHotKeyWithKeyCode(96, kCommand, target, "toggle:", nullptr));
    EXPECT_EQ(service.handles, 1U) << "a combination of our own was asked of the service";

    service.refusing = true;
    EXPECT_FALSE(center.registerHotKeyWithKeyCode(97, kCommand, nullptr));
    service.refusing = false;
    EXPECT_TRUE(center.registerHotKeyWithKeyCode(97, kCommand, nullptr));
    EXPECT_EQ(lastID(), first + 1);
    center.unregisterHotKeyWithKeyCode(96, kCommand);
    EXPECT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    EXPECT_EQ(lastID(), first + 2);
    EXPECT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand | 0x10000, nullptr));
    EXPECT_EQ(center.registeredHotKeys().size(), 3U);
}

TEST_F(HotKeyCenter, UnregistersByTargetAndByAction) {
    center.registerHotKeyWithKeyCode(1, kCommand, target, "one:", nullptr);
    center.registerHotKeyWithKeyCode(2, kCommand, target, "two:", nullptr);
    center.registerHotKeyWithKeyCode(3, kCommand, std::make_shared<RecordingTarget>(),
                                     "one:", nullptr);
    const auto left = [&] {
        std::vector<int> keys;
        for (const auto& [handle, claim] : service.claims) {
            keys.push_back(claim.keyCode);
        }
        return keys;
    };
    center.unregisterHotKeysWithTarget(target, "one:");
    EXPECT_THAT(left(), ElementsAre(2, 3));
    center.unregisterHotKeysWithTarget(target);
    EXPECT_THAT(left(), ElementsAre(3));
    EXPECT_EQ(target.use_count(), 1) << "a record that is gone still holds its target";
}

TEST_F(HotKeyCenter, AnUnregisteredRecordLeavesItsRegisteredEqualAlone) {
    ASSERT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    const auto former = *center.registeredHotKeys().begin();
    center.unregisterHotKey(*former);
    ASSERT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    center.unregisterHotKey(*former);
    HXHotKey::hotKeyWithKeyCode(96, kCommand, nullptr); // asks to be unregistered as it goes
    EXPECT_TRUE(center.hasRegisteredHotKeyWithKeyCode(96, kCommand));
    EXPECT_EQ(former->hotKeyRef(), std::nullopt);
}

TEST_F(HotKeyCenter, PressAndReleaseInvokeTheRecordOfTheIdentifier) {
    center.registerHotKeyWithKeyCode(96, kCommand, target, "up:", "down:", nullptr);
    const auto id = lastID();
    center.registerHotKeyWithKeyCode(97, kCommand, target, "other:", nullptr);
    service.pressed({{0, id}, 0x120000, 2.5}); // the signature is not looked at
    EXPECT_THAT(target->actions, ElementsAre("down:"));
    EXPECT_EQ(static_cast<int>(target->lastEvent.type), 11);
    EXPECT_EQ(target->lastEvent.keyCode, 96);
    EXPECT_EQ(target->lastEvent.modifierFlags, 0x120000U);
    EXPECT_EQ(target->lastEvent.timestamp, 2.5);
    service.released({{0, id}, 0, 2.75});
    service.pressed({{0, lastID()}, 0, 3});      // has no action for it
    service.released({{0, lastID() + 1}, 0, 3}); // nobody's
    EXPECT_THAT(target->actions, ElementsAre("down:", "up:"));
    EXPECT_EQ(target->lastEvent.timestamp, 2.75);
}

TEST_F(HotKeyCenter, AnActionMayReplaceItsOwnHotKey) {
    auto witness = std::make_shared<int>(0);
    const std::weak_ptr<int> alive = witness;
    ASSERT_TRUE(
        center.registerHotKeyWithKeyCode(96, kCommand, [&, held = witness](const KeyEvent&) {
            witness.reset();
            center.unregisterAllHotKeys();
            center.registerHotKeyWithKeyCode(96, kCommand, target, "next:", nullptr);
            *held = 1; // fails under the sanitizer if the running task is gone
        }));
    const auto before = lastID();
    service.released({{kHotKeySignature, before}, 0, 0});
    EXPECT_TRUE(alive.expired());
    service.released({{kHotKeySignature, before}, 0, 0});
    EXPECT_THAT(target->actions, IsEmpty());
    service.released({{kHotKeySignature, lastID()}, 0, 0});
    EXPECT_THAT(target->actions, ElementsAre("next:"));
}

TEST(HotKey, EqualityAndHashLookAtKeyAndFlagsAlone) {
    const auto hotKey = HXHotKey::hotKeyWithKeyCode(40, 0x120000, nullptr);
    const auto same = HXHotKey::hotKeyWithKeyCode(40, 0x120000, [](const KeyEvent&) {});
    same->_setAction("one:");
    same->setHotKeyID(7);
    EXPECT_TRUE(hotKey->isEqual(*same));
    EXPECT_EQ(same->hash(), 0x120028U);
    EXPECT_FALSE(hotKey->isEqual(*HXHotKey::hotKeyWithKeyCode(41, 0x120000, nullptr)));
    EXPECT_FALSE(hotKey->isEqual(*HXHotKey::hotKeyWithKeyCode(40, 0x130000, nullptr)));
}

TEST(HotKey, ReleaseSendsTheActionAndFallsBackToTheTask) {
    const auto target = std::make_shared<RecordingTarget>();
    HXHotKey hotKey;
    const auto pressAndRelease = [&](const char* pressedAction, const char* action) {
        hotKey._setPressedAction(pressedAction);
        hotKey._setAction(action);
        hotKey.invokePressedWithEvent({});
        hotKey.invokeWithEvent({});
        return std::exchange(target->actions, {});
    };
    const auto object = std::make_shared<int>(5);
    hotKey._setObject(object);
    hotKey._setTask([&](const KeyEvent&) { target->actions.push_back("task"); });
    EXPECT_THAT(pressAndRelease("press:", "toggle:"), ElementsAre("task")) << "no target";
    hotKey._setTarget(target);
    EXPECT_THAT(pressAndRelease("press:", "toggle:"), ElementsAre("press:", "toggle:"));
    EXPECT_EQ(target->lastObject, object);
    EXPECT_THAT(pressAndRelease("unknown:", "unknown:"), ElementsAre("task"));
    hotKey._setTask(nullptr);
    EXPECT_THAT(pressAndRelease("", ""), ElementsAre());
}

TEST(HotKey, DescribesKeyFlagsAndWhatItInvokes) {
    HXHotKey hotKey;
    hotKey._setKeyCode(65535);
    hotKey._setModifierFlags(0x9F0000);
    hotKey._setTarget(std::make_shared<RecordingTarget>());
    EXPECT_THAT(hotKey.description(),
                MatchesRegex("<HXHotKey: 0x[0-9a-f]+>\n\t\\(key: 65535\n\tflags: "
                             "\\(NSControlKeyMask \\| NSCommandKeyMask \\| NSShiftKeyMask \\| "
                             "NSAlternateKeyMask\\)\n\tinvokes: \\(block\\)\\)"));
    hotKey._setAction("toggle:");
    EXPECT_THAT(hotKey.description(), testing::EndsWith("invokes: [<target> toggle:])"));
}

TEST(SavedHotKey, IsNoneOnlyWhenBothNumbersSayNothing) {
    NotificationCenter notifications;
    DefaultsStore defaults(notifications);
    const auto saved = [&](std::int64_t code, std::int64_t modifiers) {
        defaults.setInteger(code, "HotKeyCode");
        defaults.setInteger(modifiers, "HotKeyModifiers");
        const auto hotKey = NDSavedHotKey(defaults);
        return hotKey != nullptr
                   ? std::optional(std::pair(hotKey->keyCode(), hotKey->modifierFlags()))
                   : std::nullopt;
    };
    EXPECT_EQ(saved(0x30000, 0), std::nullopt);
    EXPECT_THAT(saved(0x10060, 0), Optional(Pair(96, 0U)));
    EXPECT_THAT(saved(0, 0x100000), Optional(Pair(0, 0x100000U)));
    EXPECT_THAT(saved(-1, -1), Optional(Pair(65535, ~0ULL)));
}

} // namespace
} // namespace nocturo
