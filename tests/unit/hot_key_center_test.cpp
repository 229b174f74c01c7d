#include "hotkeys/hot_key_center.h"

#include "hotkeys/key_event.h"
#include "platform/log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <type_traits>
#include <vector>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_default_constructible_v<HXHotKeyCenter>);

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

struct RecordingTarget : ActionTarget {
    bool respondsTo(std::string_view) const override { return true; }
    void perform(std::string_view action, const KeyEvent& event,
                 const std::shared_ptr<void>&) override {
        actions.emplace_back(action);
        lastEvent = event;
    }
    std::string description() const override { return "target"; }

    std::vector<std::string> actions;
    KeyEvent lastEvent;
};

class HotKeyCenter : public testing::Test {
  protected:
    // Before every test of the process, so that it sees the very first identifier.
    static void SetUpTestSuite() {
        FakeService service;
        auto& center = HXHotKeyCenter::sharedHotKeyCenter();
        center.setHotKeyService(&service);
        center.registerHotKeyWithKeyCode(1, kCommand, nullptr);
        firstID = service.claims.begin()->second.hotKeyID.id;
        center.setHotKeyService(nullptr);
    }

    HotKeyCenter() { center.setHotKeyService(&service); }
    ~HotKeyCenter() override {
        center.setHotKeyService(nullptr);
        EXPECT_THAT(service.claims, IsEmpty());
        EXPECT_FALSE(service.released || service.pressed);
    }

    std::uint32_t lastID() const { return service.claims.rbegin()->second.hotKeyID.id; }

    static inline std::uint32_t firstID = 0;
    FakeService service;
    HXHotKeyCenter& center = HXHotKeyCenter::sharedHotKeyCenter();
    std::shared_ptr<RecordingTarget> target = std::make_shared<RecordingTarget>();
};

TEST_F(HotKeyCenter, ClaimsTheFourModifiersWhileItHasAService) {
    EXPECT_EQ(firstID, 1U);
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
    center.unregisterAllHotKeys();
    center.unregisterAllHotKeys();
    EXPECT_THAT(center.registeredHotKeys(), IsEmpty());
}

TEST_F(HotKeyCenter, UnregistersByTargetAndByAction) {
    const auto other = std::make_shared<RecordingTarget>();
    center.registerHotKeyWithKeyCode(1, kCommand, target, "one:", nullptr);
    center.registerHotKeyWithKeyCode(2, kCommand, target, "two:", nullptr);
    center.registerHotKeyWithKeyCode(3, kCommand, other, "one:", nullptr);
    center.registerHotKeyWithKeyCode(4, kCommand, nullptr);
    const auto left = [&] {
        std::vector<int> keys;
        for (const auto& [handle, claim] : service.claims) {
            keys.push_back(claim.keyCode);
        }
        return keys;
    };
    center.unregisterHotKeysWithTarget(target, "one:");
    EXPECT_THAT(left(), ElementsAre(2, 3, 4));
    center.unregisterHotKeysWithTarget(target);
    EXPECT_THAT(left(), ElementsAre(3, 4));
    center.unregisterHotKeysMatchingPredicate([](const HXHotKey& k) { return k.keyCode() > 3; });
    EXPECT_THAT(left(), ElementsAre(3));
    EXPECT_EQ(target.use_count(), 1) << "a record that is gone still holds its target";
}

TEST_F(HotKeyCenter, AnUnregisteredRecordLeavesItsRegisteredEqualAlone) {
    ASSERT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    const auto former = *center.registeredHotKeys().begin();
    const auto id = lastID();
    center.unregisterHotKey(*former);
    ASSERT_TRUE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    center.unregisterHotKey(*former);
    HXHotKey::hotKeyWithKeyCode(96, kCommand, nullptr); // asks to be unregistered as it goes
    EXPECT_TRUE(center.hasRegisteredHotKeyWithKeyCode(96, kCommand));
    EXPECT_EQ(former->hotKeyRef(), std::nullopt);
    EXPECT_EQ(former->hotKeyID(), id);
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
    EXPECT_EQ(static_cast<int>(target->lastEvent.type), 11);
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

TEST_F(HotKeyCenter, AnIdentifierOnTwoRecordsIsLoggedAndInvokesOne) {
    center.registerHotKeyWithKeyCode(96, kCommand, target, "act:", nullptr);
    center.registerHotKeyWithKeyCode(97, kCommand, target, "act:", nullptr);
    for (const auto& record : center.registeredHotKeys()) {
        record->setHotKeyID(lastID());
    }
    std::vector<std::string> sentences;
    setLogSink([&](LogLevel, std::string_view, std::string_view s) { sentences.emplace_back(s); });
    service.released({{kHotKeySignature, lastID()}, 0, 0});
    setLogSink([](LogLevel, std::string_view, std::string_view) {});
    EXPECT_THAT(sentences, ElementsAre("ERROR!"));
    EXPECT_THAT(target->actions, ElementsAre("act:"));
}

} // namespace
} // namespace nocturo
