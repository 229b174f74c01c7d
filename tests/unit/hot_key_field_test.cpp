#include "desktop/hotkey_field/hot_key_text_field.h"
#include "hotkeys/key_event.h"
#include "hotkeys/keyboard/keyboard_layout.h"

#include <gmock/gmock.h>

#include <QTest>
#include <QtWidgets>

using namespace nocturo;

struct FakeLayout : KeyboardLayout {
    std::string textForKeyDown(std::uint16_t keyCode, std::uint32_t) override {
        return keyCode == 0 ? "a" : keyCode == 40 ? "k" : keyCode == 27 ? "ß" : "";
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
constexpr Key kReturn{Qt::Key_Return, 36, "\r"};
constexpr Key kEscape{Qt::Key_Escape, 9, "\x1b"};

struct HotKeyField : testing::Test {
    HotKeyField() {
        auto* box = new QVBoxLayout(&window);
        for (QLineEdit* widget : std::array<QLineEdit*, 4>{&other, &before, field, &after}) {
            box->addWidget(widget);
        }
        using Field = HXHotKeyTextField;
        for (const auto& [signal, word] : {std::pair(&Field::recordingStarted, "started "),
                                           std::pair(&Field::hotKeyEdited, "edited "),
                                           std::pair(&Field::recordingEnded, "ended ")}) {
            QObject::connect(field, signal, &window, [this, text = word] { said.append(text); });
        }
        field->setKeyboardLayout(&layout);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        before.setFocus();
    }
    static void send(QEvent::Type type, const Key& key, Qt::KeyboardModifiers modifiers = {},
                     bool repeat = false) {
        QKeyEvent event(type, key.qtKey, modifiers, key.scanCode, 0, 0, key.text, repeat);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    static void type(const Key& key, Qt::KeyboardModifiers modifiers = {}) {
        send(QEvent::KeyPress, key, modifiers);
        send(QEvent::KeyRelease, key, modifiers);
    }

    std::string said;
    FakeLayout layout;
    QWidget window;
    HXHotKeyTextField other;
    QLineEdit before;
    QLineEdit after;
    HXHotKeyTextField* field = new HXHotKeyTextField;
};

TEST_F(HotKeyField, RecordsKeysWithAModifierAndFunctionKeysAlone) {
    using Case = std::tuple<Key, Qt::KeyboardModifiers, int, std::uint64_t, const char*>;
    const Qt::KeyboardModifiers none;
    for (const auto& [key, modifiers, keyCode, flags, text] : {
             Case{kK, Qt::ShiftModifier | Qt::MetaModifier, 40, 0x120000, "⇧⌘K"},
             Case{kK, Qt::ControlModifier | Qt::AltModifier, 40, 0xC0000, "⌃⌥K"},
             Case{kF5, none, 96, 0x800000, "F5"},
             Case{{Qt::Key_Left, 113}, Qt::KeypadModifier, 123, 0x800000, "←"},
             Case{{Qt::Key_Delete, 119, "\x7f"}, none, 117, 0x800000, "⌦"},
             Case{kReturn, Qt::ControlModifier, 36, 0x40000, "⌃↩"},
             Case{kEscape, Qt::MetaModifier, 53, 0x100000, "⌘⎋"},
             Case{{Qt::Key_ssharp, 20, "ß"}, Qt::AltModifier, 27, 0x80000, "⌥SS"},
             Case{{Qt::Key_Dead_Acute, 21}, Qt::AltModifier, 24, 0x80000, "⌥"},
         }) {
        field->startRecording();
        type(key, modifiers);
        EXPECT_FALSE(field->isRecording()) << text;
        EXPECT_EQ(field->hotKey()->keyCode(), keyCode);
        EXPECT_EQ(field->hotKey()->modifierFlags(), flags) << text;
        EXPECT_EQ(field->text().toStdString(), text);
    }
    const Key circumflex{Qt::Key_Dead_Circumflex, 49};
    field->startRecording();
    EXPECT_EQ(QWidget::keyboardGrabber(), field) << "Alt+F4 is not for the window manager";
    send(QEvent::KeyRelease, circumflex, Qt::ControlModifier); // an input context took the press
    EXPECT_EQ(field->hotKey()->keyCode(), 50);
    EXPECT_EQ(said.substr(said.size() - 21), "started edited ended ");
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
    const auto old = field->hotKey();
    field->startRecording();
    type(kK);
    type({Qt::Key_Backspace, 22, "\b"});
    type({Qt::Key_Shift, 50}, Qt::ShiftModifier | Qt::ControlModifier);
    type({Qt::Key_unknown, 66}, Qt::ShiftModifier); // a level 5 shift
    type({Qt::Key_K, 0, "k"}, Qt::MetaModifier);    // no key position
    EXPECT_TRUE(field->isRecording());
    EXPECT_EQ(field->hotKey(), old);
}

TEST_F(HotKeyField, ShowsAndTellsScreenReadersWhatIsOnTheKeys) {
    const auto shown = [&] {
        return QAccessible::queryAccessibleInterface(field)->text(QAccessible::Value).toStdString();
    };
    EXPECT_EQ(shown(), "None");
    field->startRecording();
    EXPECT_EQ(shown(), "Press keys, Esc cancels");
    type(kK);
    EXPECT_EQ(shown(), "With Ctrl, Alt or Super");
    type(kK, Qt::ControlModifier | Qt::MetaModifier);
    EXPECT_EQ(shown(), "Ctrl+Super+K");
    field->setHotKey(nullptr);
    EXPECT_EQ(shown(), "None");
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
    type(kF5, Qt::MetaModifier);
    ASSERT_NE(field->hotKey(), first);
    field->hotKey()->invokeWithEvent({});
    EXPECT_EQ(runs, 1);
}

TEST_F(HotKeyField, ReturnsTheKeysWhenTheLastOneIsUp) {
    field->startRecording();
    send(QEvent::KeyPress, kK, Qt::MetaModifier);
    for (const auto event : {QEvent::KeyRelease, QEvent::KeyPress}) {
        send(event, kK, {}, true); // how Qt reports that a key repeats
    }
    EXPECT_EQ(said, "started edited ") << "a repeat may fire the new hot key or start again";
    EXPECT_FALSE(field->isRecording());
    send(QEvent::KeyRelease, kK);
    EXPECT_EQ(said, "started edited ended ");
}

TEST_F(HotKeyField, EndsHoweverTheFieldIsLeft) {
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [&] { QTest::mouseClick(&after, Qt::LeftButton); },
             [&] { QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(1, 1)); },
             [&] { field->setEnabled(false); }, [&] { field->hide(); },
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
    field->startRecording();
    said.clear();
    send(QEvent::KeyPress, kF5);
    delete field; // before the key is up
    EXPECT_EQ(said, "edited ended ");
}
