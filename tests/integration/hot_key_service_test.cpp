#include "platform/hotkeys/x11/x11_hot_key_service.h"
#include "platform/keyboard/modifier_flags.h"
#include "platform/keyboard/xkb/xkb_keyboard_layout.h"
#include "platform/log.h"
#include "rig/x_keyboard.h"
#include "rig/x_server.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include <linux/input-event-codes.h>
#include <poll.h>

namespace nocturo {
namespace {

using rig::XKeyboard;
using rig::XServer;

constexpr std::uint16_t kF5 = 96;
constexpr std::uint16_t kF6 = 97;
constexpr std::uint16_t kK = 40;
constexpr unsigned kCapsOn = XCB_MOD_MASK_LOCK;
constexpr unsigned kNumOn = XCB_MOD_MASK_2;

using Told = std::vector<std::string>; // "press 1", "release 1"

/// A service that writes down what it is told.
class Listener {
  public:
    explicit Listener(const std::string& display) : service(X11HotKeyService::open(display)) {
        service->setHandlers([this](const auto& event) { note("release ", event); },
                             [this](const auto& event) { note("press ", event); });
    }

    std::optional<HotKeyHandle> add(std::uint16_t keyCode, std::uint32_t modifiers,
                                    std::uint32_t id) {
        return service->registerHotKey(keyCode, modifiers, {kSignature, id});
    }

    /// Lets the service work until it has told of `count` events or time is up; what it told since
    /// the last time.
    Told hears(std::size_t count) {
        worksUntil([&] { return told.size() >= count; });
        return std::exchange(told, {});
    }

    bool worksUntil(const std::function<bool()>& condition) {
        const auto deadline = rig::timeAfter(rig::kPatience);
        service->processEvents();
        while (!condition()) {
            pollfd source{service->descriptor(), POLLIN, 0};
            if (poll(&source, 1, rig::millisecondsUntil(deadline)) != 1)
                return false;
            service->processEvents();
        }
        return true;
    }

    std::unique_ptr<X11HotKeyService> service;
    Told told;
    std::vector<HotKeyServiceEvent> events;
    std::function<void(const std::string&)> whenTold = [](const std::string&) {};

  private:
    static constexpr std::uint32_t kSignature = 0x74657374;

    void note(const char* what, const HotKeyServiceEvent& event) {
        EXPECT_EQ(event.hotKeyID.signature, kSignature);
        events.push_back(event);
        told.push_back(what + std::to_string(event.hotKeyID.id));
        whenTold(told.back());
    }
};

class HotKeyServiceTest : public testing::Test {
  protected:
    void tapWith(std::initializer_list<std::uint16_t> modifiers, std::uint16_t key) {
        for (const auto modifier : modifiers)
            keyboard.press(modifier);
        keyboard.tap(key);
        for (const auto modifier : modifiers)
            keyboard.release(modifier);
    }

    /// Whether another program could claim the key with exactly these modifiers.
    bool isFree(std::uint16_t key, std::uint16_t modifiers) {
        const bool grabbed = keyboard.grab(key, modifiers);
        if (grabbed)
            keyboard.ungrab(key, modifiers);
        return grabbed;
    }
    /// What is given back is only sent off: the server may hear another program first.
    bool isSoonFree(std::uint16_t key, std::uint16_t modifiers) {
        return rig::waitUntil([&] { return isFree(key, modifiers); });
    }

    XServer server{1};
    XKeyboard keyboard{server.display()};
    Listener listener{server.display()};
};

TEST_F(HotKeyServiceTest, tellsOfOnePressAndOneReleaseWhateverIsLocked) {
    ASSERT_TRUE(listener.add(kF5, cmdKey | shiftKey, 1));
    ASSERT_TRUE(listener.add(kF5, cmdKey, 2));
    ASSERT_TRUE(listener.add(kK, optionKey | controlKey, 3));
    const auto tapAll = [&] {
        listener.events.clear();
        tapWith({KEY_LEFTMETA, KEY_LEFTSHIFT}, KEY_F5);
        tapWith({KEY_RIGHTMETA}, KEY_F5);
        tapWith({KEY_RIGHTMETA, KEY_LEFTCTRL}, KEY_F5); // not claimed
        tapWith({KEY_LEFTALT, KEY_LEFTCTRL}, KEY_K);
        EXPECT_EQ(listener.hears(6),
                  (Told{"press 1", "release 1", "press 2", "release 2", "press 3", "release 3"}));
    };
    for (const auto& [lock, state] :
         {std::pair(KEY_NUMLOCK, kNumOn), std::pair(KEY_CAPSLOCK, kNumOn | kCapsOn),
          std::pair(KEY_NUMLOCK, kCapsOn)}) {
        keyboard.tap(static_cast<std::uint16_t>(lock));
        ASSERT_EQ(keyboard.modifiers(), state);
        tapAll();
    }
    const auto& events = listener.events;
    EXPECT_EQ(events[0].modifierFlags, NSAlphaShiftKeyMask | NSCommandKeyMask | NSShiftKeyMask);
    EXPECT_EQ(events[4].modifierFlags, NSAlphaShiftKeyMask | NSAlternateKeyMask | NSControlKeyMask);
    EXPECT_GT(events[0].timestamp, 0);
    EXPECT_GE(events[5].timestamp, events[0].timestamp);
    EXPECT_LT(events[5].timestamp, events[0].timestamp + 10);
    keyboard.setLayout("us,ru");
    keyboard.lockGroup(1);
    tapAll();
}

TEST_F(HotKeyServiceTest, followsTheKeyWhenItsModifiersGoFirst) {
    ASSERT_TRUE(listener.add(kF5, cmdKey | shiftKey, 1));
    ASSERT_TRUE(listener.add(kF5, cmdKey, 2));
    ASSERT_TRUE(listener.add(kF6, 0, 3));
    keyboard.press(KEY_LEFTMETA);
    keyboard.press(KEY_LEFTSHIFT);
    keyboard.press(KEY_F5);
    keyboard.release(KEY_LEFTSHIFT);
    keyboard.release(KEY_LEFTMETA);
    keyboard.release(KEY_F5);
    keyboard.tap(KEY_F6);
    EXPECT_EQ(listener.hears(4), (Told{"press 1", "release 1", "press 3", "release 3"}));
    EXPECT_EQ(listener.events[1].modifierFlags, 0u);

    // A second hot key pressed while the first is held is one more, not part of the first.
    keyboard.press(KEY_LEFTMETA);
    keyboard.press(KEY_F5);
    keyboard.release(KEY_LEFTMETA);
    keyboard.press(KEY_F7);
    keyboard.tap(KEY_F6);
    keyboard.release(KEY_F7);
    keyboard.release(KEY_F5);
    EXPECT_EQ(listener.hears(4), (Told{"press 2", "press 3", "release 3", "release 2"}));
}

TEST_F(HotKeyServiceTest, takesAHeldKeyForOnePressAndOneRelease) {
    keyboard.setAutoRepeat(20, 5);
    ASSERT_TRUE(listener.add(kF5, cmdKey, 1));
    keyboard.press(KEY_LEFTMETA);
    keyboard.press(KEY_F5);
    EXPECT_EQ(listener.hears(1), Told{"press 1"});
    // Nothing but repeats can wake the service now, and each must find the list as it was.
    for (int wakeUps = 0; wakeUps < 10; ++wakeUps) {
        pollfd source{listener.service->descriptor(), POLLIN, 0};
        ASSERT_EQ(poll(&source, 1, 10000), 1);
        listener.service->processEvents();
        ASSERT_EQ(listener.told, Told{});
    }
    keyboard.release(KEY_F5);
    keyboard.release(KEY_LEFTMETA);
    tapWith({KEY_LEFTMETA}, KEY_F5);
    EXPECT_EQ(listener.hears(3), (Told{"release 1", "press 1", "release 1"}));
}

TEST_F(HotKeyServiceTest, refusesWhatAnotherProgramHolds) {
    // Of the four grabs that a combination takes only one is held: the others must be given back.
    constexpr std::uint16_t kWithNumLock = XCB_MOD_MASK_4 | XCB_MOD_MASK_2;
    ASSERT_TRUE(keyboard.grab(KEY_F5, kWithNumLock));
    EXPECT_FALSE(listener.add(kF5, cmdKey, 1));
    for (const unsigned locks : {0u, kCapsOn, kCapsOn | kNumOn}) {
        const auto state = static_cast<std::uint16_t>(XCB_MOD_MASK_4 | locks);
        EXPECT_TRUE(isSoonFree(KEY_F5, state)) << state;
    }
    keyboard.ungrab(KEY_F5, kWithNumLock);
    const auto handle = listener.add(kF5, cmdKey, 2);
    ASSERT_TRUE(handle);
    EXPECT_FALSE(isFree(KEY_F5, kWithNumLock | XCB_MOD_MASK_LOCK));
    EXPECT_FALSE(listener.add(kF5, cmdKey, 3)) << "held by ourselves";
    EXPECT_FALSE(listener.add(127, cmdKey, 4)) << "no such key";

    listener.service->unregisterHotKey(*handle);
    listener.service->unregisterHotKey(*handle);
    EXPECT_TRUE(isSoonFree(KEY_F5, kWithNumLock));
    ASSERT_TRUE(listener.add(kF6, cmdKey, 5));
    tapWith({KEY_LEFTMETA}, KEY_F5);
    tapWith({KEY_LEFTMETA}, KEY_F6);
    EXPECT_EQ(listener.hears(2), (Told{"press 5", "release 5"}));
}

TEST_F(HotKeyServiceTest, survivesChangesFromItsOwnHandlers) {
    auto handle = listener.add(kF5, cmdKey, 1);
    std::uint32_t id = 1;
    const auto replaceWith = [&](std::uint16_t keyCode) {
        listener.service->unregisterHotKey(*handle);
        handle = listener.add(keyCode, cmdKey, ++id);
        EXPECT_TRUE(handle);
    };
    listener.whenTold = [&](const std::string&) { replaceWith(kF5); };
    keyboard.press(KEY_LEFTMETA);
    keyboard.press(KEY_F5);
    EXPECT_EQ(listener.hears(1), Told{"press 1"});
    keyboard.release(KEY_F5);
    EXPECT_EQ(listener.hears(1), Told{"release 2"});

    // Another combination while the key is held: the release is nobody's, and the key is free.
    listener.whenTold = [&](const std::string& what) {
        if (what == "press 3")
            replaceWith(kF6);
        if (what == "release 4")
            replaceWith(kF5);
    };
    keyboard.press(KEY_F5);
    EXPECT_EQ(listener.hears(1), Told{"press 3"});
    keyboard.release(KEY_F5);
    keyboard.tap(KEY_F6);
    EXPECT_EQ(listener.hears(2), (Told{"press 4", "release 4"}));
    keyboard.tap(KEY_F5);
    EXPECT_EQ(listener.hears(2), (Told{"press 5", "release 5"}));
}

TEST_F(HotKeyServiceTest, wakesTheEventLoopForWhatArrivedDuringARegistration) {
    const auto handle = listener.add(kF5, cmdKey, 1);
    ASSERT_TRUE(handle);
    tapWith({KEY_LEFTMETA}, KEY_F5);
    // The round trip of this one brings both events along.
    ASSERT_TRUE(listener.add(kF6, cmdKey, 2));
    EXPECT_EQ(listener.told, Told{});
    pollfd source{listener.service->descriptor(), POLLIN, 0};
    ASSERT_EQ(poll(&source, 1, 10000), 1);
    EXPECT_EQ(listener.hears(2), (Told{"press 1", "release 1"}));
}

TEST_F(HotKeyServiceTest, findsModifiersAgainWhenTheyMove) {
    ASSERT_TRUE(listener.add(kF5, cmdKey, 1));
    keyboard.moveModifier(KEY_NUMLOCK, XCB_MAP_INDEX_3);
    keyboard.moveModifier(KEY_LEFTMETA, XCB_MAP_INDEX_2);
    keyboard.moveModifier(KEY_RIGHTMETA, XCB_MAP_INDEX_2);
    // With everything moved Num Lock's modifier is claimed for another program to see.
    constexpr std::uint16_t kMoved = XCB_MOD_MASK_2 | XCB_MOD_MASK_3;
    ASSERT_TRUE(listener.worksUntil([&] { return !isFree(KEY_F5, kMoved); }));
    EXPECT_TRUE(isFree(KEY_F5, XCB_MOD_MASK_4));
    keyboard.tap(KEY_NUMLOCK);
    ASSERT_NE(keyboard.modifiers() & XCB_MOD_MASK_3, 0);
    tapWith({KEY_LEFTMETA}, KEY_F5);
    EXPECT_EQ(listener.hears(2), (Told{"press 1", "release 1"}));
    EXPECT_EQ(listener.events[0].modifierFlags, NSCommandKeyMask);
}

TEST_F(HotKeyServiceTest, noticesThatTheServerIsGone) {
    const auto handle = listener.add(kF5, cmdKey, 1);
    const auto layout = XkbKeyboardLayout::open(server.display());
    ASSERT_TRUE(handle);
    ASSERT_TRUE(layout);
    EXPECT_FALSE(listener.service->connectionLost());
    server.kill();
    EXPECT_TRUE(listener.worksUntil([&] { return listener.service->connectionLost(); }));
    EXPECT_FALSE(listener.add(kF6, cmdKey, 2));
    listener.service->unregisterHotKey(*handle);
    EXPECT_EQ(layout->textForKeyDown(0, 0), "");
    EXPECT_TRUE(layout->connectionLost());
    EXPECT_EQ(X11HotKeyService::open(server.display()), nullptr);
    EXPECT_EQ(X11HotKeyService::open(""), nullptr);
    EXPECT_EQ(XkbKeyboardLayout::open(""), nullptr);
}

// What the keys of a full-size board type, by virtual key code: 0 is where us boards have A, 6 Z,
// 24 the one left of backspace, 33 the one right of P, 50 the one left of 1, 41 right of L.
TEST(KeyboardLayout, namesKeysAsTheLayoutEngravesThem) {
    XServer server(1);
    XKeyboard keyboard(server.display());
    const auto layout = XkbKeyboardLayout::open(server.display());
    ASSERT_TRUE(layout);
    const auto typed = [&](std::initializer_list<std::uint16_t> keyCodes) {
        std::string texts;
        for (const auto keyCode : keyCodes)
            texts += layout->textForKeyDown(keyCode, 0) + " ";
        return texts;
    };
    const auto follows = [&](const char* texts) {
        return rig::waitUntil([&] { return typed({0, 6, 24, 33, 41, 50}) == texts; });
    };
    EXPECT_TRUE(follows("a z = [ ; ` "));
    EXPECT_EQ(typed({36, 48, 51, 53, 117, 122, 56, 127}), "        ")
        << "controls, F1, Shift, none";
    EXPECT_EQ(layout->textForKeyDown(0, 2), "A");
    EXPECT_EQ(layout->textForKeyDown(0, 2 | 4), "a") << "Shift undoes caps lock";
    EXPECT_EQ(layout->textForKeyDown(0, 16), "") << "a control character";
    EXPECT_EQ(layout->textForKeyDown(0, 1 | 8 | 0xff00), "a");
    keyboard.setLayout("de");
    EXPECT_TRUE(follows("a y  ü ö  ")) << "the acute and the circumflex are dead";
    keyboard.setLayout("us,ru", "dvorak,");
    EXPECT_TRUE(follows("a ; ] / s ` "));
    keyboard.lockGroup(1);
    EXPECT_TRUE(follows("ф я = х ж ё "));
    keyboard.tap(KEY_CAPSLOCK);
    EXPECT_EQ(layout->textForKeyDown(0, 0), "ф") << "what is locked is for the caller to say";
}

} // namespace
} // namespace nocturo
