#include "base/notification_center.h"
#include "base/texts/translated.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/hot_key_words.h"
#include "hotkeys/key_event.h"
#include "hotkeys/key_naming.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/virtual_key_codes.h"
#include "hotkeys/saved_hot_key.h"
#include "settings/defaults_store.h"

#include <gmock/gmock.h>

#include <map>

using namespace nocturo;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::uint64_t kCommand = 0x100000;

struct FakeLayout : KeyboardLayout {
    explicit FakeLayout(std::map<int, std::string> newTexts) : texts(std::move(newTexts)) {}

    // No modifier may ever arrive in the low byte, where it would select another character.
    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t state) override {
        const auto found = texts.find(keyCode);
        return found == texts.end() ? "" : (state & 0xFF) != 0 ? "wrong" : found->second;
    }

    std::map<int, std::string> texts;
};

TEST(KeyNaming, NamesKeysAfterTheirModifiers) {
    FakeLayout layout({{0, "a"}, {12, "é"}, {36, "\r"}, {55, "x"}});
    using Case = std::tuple<std::uint16_t, std::uint64_t, const char*>;
    for (const auto& [keyCode, flags, text] : {
             Case{0, 0x1E0000, "⌃⌥⇧⌘a"},
             Case{0, 0x810000, "a"}, // caps lock and function show nothing
             Case{12, 0x100000, "⌘é"},
             Case{33, 0x120000, "⇧⌘"}, // a dead key
             Case{36, 0, "↩"},
             Case{55, 0x100000, "⌘"},
             Case{56, 0x20000, "⇧"},
             Case{58, 0, ""},
             Case{59, 0x40000, "⌃"},
             Case{54, 0x100000, "⌘"}, // right command: neither in the table nor in the layout
             Case{57, 0, "⇪"},
             Case{60, 0x20000, "⇧⇧"},
             Case{96 + 256, 0, ""},
         }) {
        EXPECT_EQ(HXStringFromKeyCode(keyCode, flags, &layout), text) << keyCode;
    }
    EXPECT_EQ(HXStringFromKeyCode(0, 0x60000, nullptr), "⌃⇧");
    EXPECT_EQ(HXStringFromKeyCode(96, 0x60000, nullptr), "⌃⇧F5");
    EXPECT_EQ(HXCarbonModifierFlagsWithAlphaLock(~0x1E0000ULL), 0x400U);
    EXPECT_EQ(HXCarbonModifierFlagsWithAlphaLock(~0ULL), 0x1F00U);
}

struct HotKeyText : testing::Test {
    // A few keys of a French board; the keypad types digits as well.
    FakeLayout french{{{12, "a"}, {40, "k"}, {19, "é"}, {24, "+"}, {87, "5"}, {69, "+"}}};
};

TEST_F(HotKeyText, ReadsNamesAndCharactersInAnyOrderAndCase) {
    FakeLayout russian({{40, "л"}, {41, "ж"}});
    using Case = std::tuple<const char*, std::uint16_t, std::uint64_t>;
    for (const auto& [text, keyCode, flags] : {
             Case{"F5 + Super + CTRL", 96, 0x140000},
             Case{"control+option+shift+command+space", 49, 0x1E0000},
             Case{"alt+esc", 53, 0x80000},
             Case{"cmd+meta+Return", 36, 0x100000},
             Case{"PgUp", 116, 0},
             Case{"super+a", 12, 0x100000},
             Case{"super+É", 19, 0x100000},
             Case{"ctrl++", 24, 0x40000},
             Case{"shift+keypad5", 87, 0x20000},
         }) {
        EXPECT_EQ(parseHotKeyText(text, &french), (HotKeyCombination{keyCode, flags})) << text;
    }
    EXPECT_EQ(parseHotKeyText("super+Л", &russian), (HotKeyCombination{40, kCommand}));
    EXPECT_EQ(parseHotKeyText("super+f20", nullptr), (HotKeyCombination{90, kCommand}));
    for (const std::uint16_t key :
         std::initializer_list<std::uint16_t>{96, 116, 123, 36}) { // as they are shown
        EXPECT_EQ(parseHotKeyText(HXStringFromKeyCode(key, 0x120000, nullptr), nullptr),
                  (HotKeyCombination{key, 0x120000}));
    }
}

TEST_F(HotKeyText, WritesWhatItReadsInEveryLanguage) {
    EXPECT_EQ(hotKeyWords(40, 0x1C0000, &french), "Ctrl+Alt+Super+K");
    EXPECT_EQ(hotKeyWords(116, kCommand, nullptr), "Super+Page Up");
    EXPECT_EQ(hotKeyWords(69, 0x20000, &french), "Shift+Keypad Plus");
    EXPECT_EQ(hotKeyWords(24, 0x40000, &french), "Ctrl++");
    for (const char* language : {"en", "de", "fr", "es", "pt_BR", "ja", "zh_CN"}) {
        setLanguageOfTexts(language);
        for (const VirtualKey& key : virtualKeys()) {
            const std::string words = hotKeyWords(key.keyCode, 0x1E0000, &french);
            if (!words.ends_with('+') || key.keyCode == 24) {
                EXPECT_EQ(parseHotKeyText(words, &french),
                          (HotKeyCombination{key.keyCode, 0x1E0000}))
                    << words;
            }
        }
    }
    setLanguageOfTexts("en");
}

TEST_F(HotKeyText, SaysWhatIsWrong) {
    for (const auto& [text, error] : {
             std::pair("", "No hot key"),
             std::pair("ctrl+", "plus sign"),
             std::pair("ctrl++f5", "plus sign"),
             std::pair("ctrl+shift", "no key besides its modifiers"),
             std::pair("ctrl+ctl+f5", "\"ctl\" and \"f5\" are both keys"),
             std::pair("ctrl+F21", "\"F21\" is not a key's name"),
             std::pair("ctrl+5", "no key of the current keyboard layout"), // not the keypad
             std::pair("ctrl+\xFF", "is not a key's name"),
             std::pair("k", "needs a modifier"),
         }) {
        const auto result = parseHotKeyText(text, &french);
        ASSERT_FALSE(result) << text;
        EXPECT_THAT(result.error().text, HasSubstr(error)) << text;
    }
    EXPECT_THAT(parseHotKeyText("ctrl+k", nullptr).error().text, HasSubstr("cannot be read"));
}

struct FakeService : HotKeyService {
    std::optional<HotKeyHandle> registerHotKey(std::uint16_t /*keyCode*/,
                                               std::uint32_t /*modifiers*/,
                                               EventHotKeyID hotKeyID) override {
        claims[HotKeyHandle{++handles}] = hotKeyID;
        return HotKeyHandle{handles};
    }
    void unregisterHotKey(HotKeyHandle handle) override { EXPECT_EQ(claims.erase(handle), 1U); }
    void setHandlers(Handler onRelease, Handler onPress) override {
        released = std::move(onRelease);
        pressed = std::move(onPress);
    }

    std::map<HotKeyHandle, EventHotKeyID> claims;
    std::uint64_t handles = 0;
    Handler released;
    Handler pressed;
};

struct RecordingTarget : ActionTarget {
    bool respondsTo(std::string_view /*action*/) const override { return true; }
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

struct HotKeyCenter : testing::Test {
    HotKeyCenter() { center.setHotKeyService(&service); }
    ~HotKeyCenter() override {
        center.setHotKeyService(nullptr);
        EXPECT_THAT(service.claims, IsEmpty());
        EXPECT_FALSE(service.released || service.pressed);
        EXPECT_FALSE(center.registerHotKeyWithKeyCode(96, kCommand, nullptr));
    }

    std::uint32_t lastID() const { return service.claims.rbegin()->second.id; }

    FakeService service;
    HXHotKeyCenter& center = HXHotKeyCenter::sharedHotKeyCenter();
    std::shared_ptr<RecordingTarget> target = std::make_shared<RecordingTarget>();
};

TEST_F(HotKeyCenter, PressAndReleaseInvokeTheRecordOfTheIdentifier) {
    const auto object = std::make_shared<int>(5);
    center.registerHotKeyWithKeyCode(96, kCommand, target, "up:", "down:", object);
    const auto id = lastID();
    center.registerHotKeyWithKeyCode(97, kCommand, target, "other:", nullptr);
    service.pressed({{0, id}, 0x120000, 2.5}); // the signature is not looked at
    EXPECT_THAT(target->actions, ElementsAre("down:"));
    EXPECT_EQ(static_cast<int>(target->lastEvent.type), 11);
    EXPECT_EQ(target->lastEvent.keyCode, 96);
    EXPECT_EQ(target->lastEvent.modifierFlags, 0x120000U);
    EXPECT_EQ(target->lastEvent.timestamp, 2.5);
    EXPECT_EQ(target->lastObject, object);
    service.released({{0, id}, 0, 2.75});
    service.pressed({{0, lastID()}, 0, 3});      // has no action for it
    service.released({{0, lastID() + 1}, 0, 3}); // nobody's
    EXPECT_THAT(target->actions, ElementsAre("down:", "up:"));
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

TEST(SavedHotKey, IsNoneOnlyWhenBothNumbersSayNothing) {
    NotificationCenter notifications;
    DefaultsStore defaults(notifications);
    const auto saved = [&](std::int64_t code, std::int64_t modifiers) {
        defaults.setInteger(code, "HotKeyCode");
        defaults.setInteger(modifiers, "HotKeyModifiers");
        return NDSavedHotKey(defaults);
    };
    EXPECT_EQ(saved(0x30000, 0), nullptr);
    EXPECT_EQ(saved(0x10060, 0)->keyCode(), 96);
    EXPECT_EQ(saved(0, 0x100000)->modifierFlags(), 0x100000U);
    EXPECT_EQ(saved(-1, -1)->modifierFlags(), ~0ULL);
}
