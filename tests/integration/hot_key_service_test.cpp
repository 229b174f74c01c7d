// What an application with one hot key cannot show: several at once, changes while a key is held,
// and events that arrive along with an answer.

#include "base/event_loop.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/keyboard/xkb_keyboard_layout.h"
#include "hotkeys/x11/x11_hot_key_service.h"
#include "rig/wait.h"
#include "rig/x_client.h"
#include "rig/x_server.h"

#include <gtest/gtest.h>

#include <functional>

#include <linux/input-event-codes.h>
#include <poll.h>

using namespace nocturo;

constexpr std::uint16_t kF5 = 96;
constexpr std::uint16_t kF6 = 97;

using Told = std::vector<std::string>; // "press 1", "release 1"

/// A service that writes down what it is told, and the keyboard of a user.
struct HotKeyServiceTest : testing::Test {
    HotKeyServiceTest() {
        server.setLayout("us");
        connection = XConnection::open(server.display());
        connection->join(loop);
        service = X11HotKeyService::open(*connection);
        const auto note = [this](const char* what, const HotKeyServiceEvent& event) {
            events.push_back(event);
            told.push_back(what + std::to_string(event.hotKeyID.id));
            whenTold(told.back());
        };
        service->setHandlers([note](const auto& event) { note("release ", event); },
                             [note](const auto& event) { note("press ", event); });
    }

    std::optional<HotKeyHandle> add(std::uint16_t keyCode, std::uint32_t modifiers,
                                    std::uint32_t id) {
        return service->registerHotKey(keyCode, modifiers, {0x74657374, id});
    }

    /// Lets the service work until it has told of `count` events or time is up; what it told since
    /// the last time.
    Told hears(std::size_t count) {
        do {
            loop.dispatchPending();
        } while (told.size() < count && wakesUp());
        return std::exchange(told, {});
    }
    bool wakesUp() {
        const bool due = loop.prepare();
        pollfd source{loop.descriptor(), POLLIN, 0};
        return due || poll(&source, 1, static_cast<int>(rig::kPatience.count())) == 1;
    }

    rig::XServer server{1};
    rig::XClient client{server.display()};
    EventLoop loop;
    std::unique_ptr<XConnection> connection;
    std::unique_ptr<X11HotKeyService> service;
    Told told;
    std::vector<HotKeyServiceEvent> events;
    std::function<void(const std::string&)> whenTold = [](const std::string&) {};
};

TEST_F(HotKeyServiceTest, tellsSeveralApartAndOfEventsThatComeWithAnAnswer) {
    ASSERT_TRUE(add(kF5, cmdKey, 2));
    ASSERT_TRUE(add(kF6, 0, 3));
    EXPECT_FALSE(add(kF6, 0, 4)) << "held by ourselves";
    EXPECT_FALSE(add(127, 0, 5)) << "no such key";
    // A second hot key pressed while the first is held is one more, not part of the first.
    for (const int key : {KEY_LEFTMETA, KEY_F5}) {
        client.press(key);
    }
    client.release(KEY_LEFTMETA);
    client.type({KEY_F7, KEY_F6});
    client.release(KEY_F5);
    EXPECT_EQ(hears(4), (Told{"press 2", "press 3", "release 3", "release 2"}));
    EXPECT_EQ(events[0].modifierFlags, NSCommandKeyMask);
    EXPECT_GT(events[0].timestamp, 0);
    EXPECT_GE(events[3].timestamp, events[0].timestamp);

    client.type({KEY_F6});
    // The round trip of this one brings both events along, which must wake the event loop.
    ASSERT_TRUE(add(kF5, 0, 4));
    EXPECT_EQ(told, Told{});
    EXPECT_TRUE(wakesUp());
    EXPECT_EQ(hears(2), (Told{"press 3", "release 3"}));
}

TEST_F(HotKeyServiceTest, survivesRepeatsAndChangesFromItsOwnHandlers) {
    server.run("xset", {"r", "rate", "20", "200"});
    auto handle = add(kF5, cmdKey, 1);
    std::uint32_t id = 1;
    const auto replaceWith = [&](std::uint16_t keyCode) {
        service->unregisterHotKey(*handle);
        service->unregisterHotKey(*handle);
        handle = add(keyCode, cmdKey, ++id);
        EXPECT_TRUE(handle);
    };
    whenTold = [&](const std::string&) { replaceWith(kF5); };
    client.press(KEY_LEFTMETA);
    client.press(KEY_F5);
    EXPECT_EQ(hears(1), Told{"press 1"});
    // Nothing but repeats can wake the service now, and each must find the list as it was.
    for (int wakeUps = 0; wakeUps < 10; ++wakeUps) {
        ASSERT_TRUE(wakesUp());
        loop.dispatchPending();
        ASSERT_EQ(told, Told{});
    }
    client.release(KEY_F5);
    EXPECT_EQ(hears(1), Told{"release 2"});

    // Another combination while the key is held: the release is nobody's, and the key is free.
    whenTold = [&](const std::string& what) {
        if (what == "press 3" || what == "release 4") {
            replaceWith(what == "press 3" ? kF6 : kF5);
        }
    };
    client.press(KEY_F5);
    EXPECT_EQ(hears(1), Told{"press 3"});
    client.release(KEY_F5);
    client.type({KEY_F6});
    EXPECT_EQ(hears(2), (Told{"press 4", "release 4"}));
    client.type({KEY_F5});
    EXPECT_EQ(hears(2), (Told{"press 5", "release 5"}));
}

// What the keys of a full-size board type, by virtual key code: 0 is where us boards have A, 6 Z,
// 24 the one left of backspace, 33 the one right of P, 50 the one left of 1, 41 right of L.
TEST_F(HotKeyServiceTest, namesKeysAsTheLayoutEngravesThemUntilTheServerIsGone) {
    XkbKeyboardLayout layout(*connection);
    const auto typed = [&](std::initializer_list<std::uint16_t> keyCodes) {
        std::string texts;
        for (const auto keyCode : keyCodes) {
            texts += layout.textForKeyDown(keyCode, 0) + " ";
        }
        return texts;
    };
    const auto follows = [&](const char* texts) {
        return rig::waitUntil([&] { return typed({0, 6, 24, 33, 41, 50}) == texts; });
    };
    EXPECT_TRUE(follows("a z = [ ; ` "));
    EXPECT_EQ(typed({36, 48, 51, 53, 117, 122, 56, 127}), "        ")
        << "controls, F1, Shift, none";
    EXPECT_EQ(typed({82, 87, 65, 69, 76}), "0 5 . + ⌤ ") << "the keypad, with Num Lock off";
    const std::pair<std::uint32_t, const char*> states[] = {
        {2, "A"}, {2 | 4, "a"}, {16, ""}, {1 | 8 | 0xff00, "a"}};
    for (const auto& [modifiers, text] : states) {
        EXPECT_EQ(layout.textForKeyDown(0, modifiers), text)
            << "2 shift, 4 caps lock, which it undoes, 16 control, others";
    }
    server.setLayout("de");
    EXPECT_TRUE(follows("a y  ü ö  ")) << "the acute and the circumflex are dead";
    server.setLayout("us,ru", "dvorak,");
    EXPECT_TRUE(follows("a ; ] / s ` "));
    client.type({KEY_COMPOSE});
    EXPECT_TRUE(follows("ф я = х ж ё "));
    client.type({KEY_CAPSLOCK});
    EXPECT_EQ(layout.textForKeyDown(0, 0), "ф") << "what is locked is for the caller to say";

    const auto handle = add(kF5, cmdKey, 1);
    ASSERT_TRUE(handle);
    EXPECT_FALSE(connection->isLost());
    server.kill();
    EXPECT_TRUE(wakesUp());
    loop.dispatchPending();
    EXPECT_TRUE(connection->isLost());
    EXPECT_FALSE(add(kF6, cmdKey, 2));
    service->unregisterHotKey(*handle);
    EXPECT_EQ(layout.textForKeyDown(0, 0), "");
    for (const std::string& display : {server.display(), std::string()}) {
        EXPECT_EQ(XConnection::open(display), nullptr);
    }
}
