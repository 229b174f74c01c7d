#include "hotkeys/field/hot_key_text_field.h"
#include "hotkeys/field/hot_key_text_field_editor.h"
#include "platform/keyboard/keyboard_layout.h"
#include "platform/log.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <map>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

struct FakeLayout : KeyboardLayout {
    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t) override {
        const std::map<int, std::string> texts{{0, "a"}, {40, "k"}, {27, "ß"}};
        const auto found = texts.find(keyCode);
        return found == texts.end() ? "" : found->second;
    }
};

// X key codes of the keys pressed here, as an X server sends them.
struct Key {
    int qtKey;
    quint32 scanCode;
    const char* text = "";
};
constexpr Key kK{Qt::Key_K, 45, "k"};
constexpr Key kF5{Qt::Key_F5, 71};
constexpr Key kTab{Qt::Key_Tab, 23, "\t"};
constexpr Key kReturn{Qt::Key_Return, 36, "\r"};
constexpr Key kEscape{Qt::Key_Escape, 9, "\x1b"};

class HotKeyField : public testing::Test {
  protected:
    HotKeyField() {
        auto* box = new QVBoxLayout(&window);
        menu.addMenu("Screen")->addAction(&action);
        action.setShortcut(QKeySequence("Ctrl+S"));
        for (QWidget* widget : std::initializer_list<QWidget*>{&menu, &before, field, &after}) {
            box->addWidget(widget);
        }
        listen(*field);
        field->setKeyboardLayout(&layout);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        before.setFocus();
    }
    ~HotKeyField() override {
        setLogSink([](LogLevel, std::string_view, std::string_view) {});
    }

    void listen(HXHotKeyTextField& source) {
        QObject::connect(&source, &HXHotKeyTextField::recordingStarted, &window,
                         [this] { said.append("started "); });
        QObject::connect(&source, &HXHotKeyTextField::hotKeyEdited, &window,
                         [this] { said.append("edited "); });
        QObject::connect(&source, &HXHotKeyTextField::recordingEnded, &window,
                         [this] { said.append("ended "); });
    }

    static void send(QEvent::Type type, const Key& key, Qt::KeyboardModifiers modifiers = {},
                     quint32 native = 0, bool repeat = false) {
        QKeyEvent event(type, key.qtKey, modifiers, key.scanCode, 0, native, key.text, repeat);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    static void press(const Key& key, Qt::KeyboardModifiers modifiers = {}, quint32 native = 0) {
        send(QEvent::KeyPress, key, modifiers, native);
    }
    static void type(const Key& key, Qt::KeyboardModifiers modifiers = {}, quint32 native = 0) {
        press(key, modifiers, native);
        send(QEvent::KeyRelease, key, modifiers, native);
    }

    /// The whole way of a key through the application, shortcuts included.
    void typeIntoWindow(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    void click(QWidget& widget, QPoint position = {}) {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, position);
    }

    std::string said;
    FakeLayout layout;
    QWidget window;
    QMenuBar menu;
    QAction action{"Save"};
    QPushButton before{"&Before"};
    QLineEdit after;
    HXHotKeyTextField* field = new HXHotKeyTextField;
};

TEST_F(HotKeyField, RecordsKeysWithAModifierAndFunctionKeysAlone) {
    struct Case {
        Key key;
        Qt::KeyboardModifiers modifiers;
        quint32 native;
        int keyCode; // -1: nothing is recorded and the recording goes on
        std::uint64_t flags;
        const char* text;
    };
    const Qt::KeyboardModifiers none;
    for (const auto& [key, modifiers, native, keyCode, flags, text] : {
             Case{kK, Qt::ShiftModifier | Qt::MetaModifier, 0, 40, 0x120000, "⇧⌘K"},
             Case{kK, Qt::ControlModifier | Qt::AltModifier, 2, 40, 0xD0000, "⌃⌥K"},
             Case{kK, none, 0, -1, 0, ""}, Case{kK, Qt::KeypadModifier, 2, -1, 0, ""},
             Case{kF5, none, 0, 96, 0x800000, "F5"},
             Case{{Qt::Key_Left, 113}, Qt::KeypadModifier, 0, 123, 0x800000, "←"},
             Case{{Qt::Key_Delete, 119, "\x7f"}, none, 0, 117, 0x800000, "⌦"},
             Case{{Qt::Key_Backspace, 22, "\b"}, none, 0, -1, 0, ""},
             Case{kTab, none, 0, -1, 0, ""},
             Case{kReturn, Qt::ControlModifier, 0, 36, 0x40000, "⌃↩"},
             Case{kEscape, Qt::MetaModifier, 0, 53, 0x100000, "⌘⎋"},
             Case{{Qt::Key_ssharp, 20, "ß"}, Qt::AltModifier, 0, 27, 0x80000, "⌥SS"},
             Case{{Qt::Key_Dead_Acute, 21}, Qt::AltModifier, 0, 24, 0x80000, "⌥"},
             Case{{Qt::Key_Shift, 50}, Qt::ShiftModifier | Qt::ControlModifier, 0, -1, 0, ""},
             Case{{Qt::Key_unknown, 66}, Qt::ShiftModifier, 0, -1, 0, ""}, // a level 5 shift
             Case{{Qt::Key_K, 0, "k"}, Qt::MetaModifier, 0, -1, 0, ""},    // no key position
         }) {
        field->startRecording();
        const auto old = field->hotKey();
        type(key, modifiers, native);
        if (keyCode < 0) {
            EXPECT_EQ(field->hotKey(), old);
            EXPECT_TRUE(field->isRecording()) << key.scanCode;
            continue;
        }
        EXPECT_FALSE(field->isRecording()) << key.scanCode;
        ASSERT_TRUE(field->hotKey());
        EXPECT_EQ(field->hotKey()->keyCode(), keyCode);
        EXPECT_EQ(field->hotKey()->modifierFlags(), flags) << key.scanCode;
        EXPECT_EQ(field->text().toStdString(), text);
    }
}

TEST_F(HotKeyField, ReturnKeepsAndEscapePutsBack) {
    int runs = 0;
    const auto first = HXHotKey::hotKeyWithKeyCode(96, 0, [&](const KeyEvent&) { ++runs; });
    const auto second = HXHotKey::hotKeyWithKeyCode(40, 0x100000, nullptr);
    for (const auto& [key, kept, text] :
         {std::tuple(kReturn, second, "⌘K"), std::tuple(kEscape, first, "F5")}) {
        field->setHotKey(first);
        field->startRecording();
        field->setHotKey(second); // somebody else changed the setting meanwhile
        type(key);
        EXPECT_EQ(field->hotKey(), kept);
        EXPECT_EQ(field->text().toStdString(), text);
        EXPECT_FALSE(field->isRecording());
        EXPECT_TRUE(field->hasFocus()) << "Tab would start from the top of the window";
    }
    type(kReturn); // starts again; what is recorded does what the old one did
    EXPECT_THAT(field->accessibleDescription().toStdString(), HasSubstr("Escape"));
    type(kF5, Qt::MetaModifier);
    EXPECT_THAT(field->accessibleDescription().toStdString(), StartsWith("Super+F5."));
    ASSERT_NE(field->hotKey(), first);
    field->hotKey()->invokeWithEvent({});
    EXPECT_EQ(runs, 1);

    HXHotKeyTextField empty;
    empty.setKeyboardLayout(&layout);
    window.layout()->addWidget(&empty);
    empty.show();
    empty.startRecording();
    type({Qt::Key_Escape, 66, "\x1b"}); // a layout with Escape in the place of caps lock
    EXPECT_EQ(empty.text(), "A");
    EXPECT_EQ(empty.hotKey(), nullptr);
    empty.setParent(nullptr);
}

TEST_F(HotKeyField, TakesEveryKeyOfTheApplicationWhileItRecords) {
    int triggered = 0;
    QObject::connect(&action, &QAction::triggered, &window, [&] { ++triggered; });
    QObject::connect(&before, &QPushButton::pressed, &window, [&] { ++triggered; });
    click(*field);
    for (const bool records : {true, false}) {
        typeIntoWindow(Qt::Key_S, Qt::ControlModifier);
        typeIntoWindow(Qt::Key_B, Qt::AltModifier);
        typeIntoWindow(Qt::Key_Tab);
        EXPECT_EQ(triggered, records ? 0 : 2);
        EXPECT_EQ(field->hasFocus(), records);
        click(window, QPoint(1, window.height() - 1)); // an empty place
        EXPECT_FALSE(field->isRecording());
    }
    field->setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(field->isRecording()) << "the user only came back to the window";
}

TEST_F(HotKeyField, TabPassesThroughUntilAnotherKeyIsPressed) {
    typeIntoWindow(Qt::Key_Tab);
    EXPECT_TRUE(field->isRecording());
    typeIntoWindow(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    typeIntoWindow(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(field->isRecording());
    typeIntoWindow(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before.hasFocus());
    EXPECT_EQ(field->hotKey(), nullptr);
    typeIntoWindow(Qt::Key_Tab);
    type(kK);
    type(kTab, Qt::ShiftModifier);
    EXPECT_EQ(field->text(), "⇧⇥");
}

TEST_F(HotKeyField, ReturnsTheKeysWhenTheLastOneIsUp) {
    for (const Key& ending : {kK, kReturn}) {
        said.clear();
        field->startRecording();
        press(ending, ending.qtKey == Qt::Key_K ? Qt::MetaModifier : Qt::NoModifier);
        for (const auto event : {QEvent::KeyRelease, QEvent::KeyPress}) {
            send(event, ending, {}, 0, true); // how Qt reports that a key repeats
        }
        EXPECT_EQ(said, "started edited ") << "a repeat may fire the new hot key or start again";
        EXPECT_FALSE(field->isRecording());
        send(QEvent::KeyRelease, ending);
        EXPECT_EQ(said, "started edited ended ");
    }
    said.clear();
    field->startRecording();
    press(kF5);
    press(kK); // F5 was released elsewhere
    EXPECT_EQ(said, "started edited ended ");
}

TEST_F(HotKeyField, EndsHoweverTheFieldIsLeft) {
    HXHotKeyTextField other;
    window.layout()->addWidget(&other);
    other.show();
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [&] { click(after); }, [&] { field->setEnabled(false); }, [&] { field->hide(); },
             [&] { other.startRecording(); }}) {
        field->setEnabled(true);
        field->show();
        field->startRecording();
        ASSERT_TRUE(field->isRecording());
        said.clear();
        leave();
        EXPECT_FALSE(field->isRecording());
        EXPECT_EQ(said, "edited ended ");
    }
    EXPECT_TRUE(other.isRecording());
    other.setParent(nullptr);

    for (const bool keyIsDown : {false, true}) {
        auto* brief = new HXHotKeyTextField(&window);
        brief->show();
        brief->startRecording();
        if (keyIsDown) {
            press(kF5);
        }
        said.clear();
        listen(*brief);
        delete brief;
        EXPECT_EQ(said, "ended ");
    }
}

TEST_F(HotKeyField, WarnsWhenItsTextIsUsedAsItsValue) {
    std::vector<std::string> lines;
    setLogSink([&](LogLevel level, std::string_view category, std::string_view sentence) {
        EXPECT_EQ(level, LogLevel::warning);
        lines.push_back(std::string(category) + ": " + std::string(sentence));
    });
    field->setHotKey(HXHotKey::hotKeyWithKeyCode(40, 0x100000, nullptr));
    EXPECT_THAT(lines, ElementsAre());
    field->setStringValue("x");
    EXPECT_EQ(field->stringValue(), "x");
    EXPECT_THAT(lines,
                ElementsAre("nocturo.hotkeys: -[HXHotKeyTextField setStringValue:] is not what you "
                            "want. Use -[HXHotKeyTextField setHotKey:] instead.",
                            "nocturo.hotkeys: -[HXHotKeyTextField stringValue] is not what you "
                            "want. Use -[HXHotKeyTextField hotKey] instead."));
    EXPECT_EQ(HXHotKeyTextFieldCell::fieldEditorForView(&after), nullptr);
    field->setHotKey(nullptr);
    EXPECT_EQ(field->text(), "A");
}

} // namespace
} // namespace nocturo

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
