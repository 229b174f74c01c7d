// Widgets see a key last: before them it is offered to shortcuts, menu mnemonics and focus
// traversal. A filter on the application comes before all of these. Qt asks first with a
// ShortcutOverride; accepting that keeps the shortcuts out, and the press that follows goes no
// further than the filter.

#include "desktop/hotkey_field/hot_key_text_field_editor.h"

#include "desktop/hotkey_field/hot_key_text_field.h"
#include "desktop/hotkey_field/qt_key_event.h"
#include "hotkeys/keyboard/modifier_flags.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>

namespace nocturo {

namespace {

constexpr std::uint16_t kEscapeKeyCode = 53;
constexpr std::uint64_t kCountedModifiers =
    NSShiftKeyMask | NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask | NSFunctionKeyMask;

bool isNewline(char16_t unit) {
    return (unit >= 0x0A && unit <= 0x0D) || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

// Layouts may put Escape on another key, usually that of caps lock.
bool isEscape(std::uint16_t keyCode, char16_t unit) {
    return keyCode == kEscapeKeyCode || unit == 0x1B;
}

/// An input context takes the press of a dead key for itself, and lets only the release through.
bool isReleasedDeadKey(const QKeyEvent& event) {
    return event.type() == QEvent::KeyRelease && event.key() >= Qt::Key_Dead_Grave &&
           event.key() <= Qt::Key_Dead_Longsolidusoverlay;
}

bool isKeyEvent(const QEvent& event) {
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
           event.type() == QEvent::ShortcutOverride;
}

} // namespace

HXHotKeyTextFieldEditor& HXHotKeyTextFieldEditor::sharedEditor() {
    static HXHotKeyTextFieldEditor editor;
    return editor;
}

void HXHotKeyTextFieldEditor::setHotKeyField(HXHotKeyTextField* field) {
    hotKeyField_ = field;
    originalHotKey_ = field != nullptr ? field->hotKey() : nullptr;
}

bool HXHotKeyTextFieldEditor::becomeFirstResponder() {
    if (hotKeyField_ == nullptr || !hotKeyField_->isEnabled()) {
        setHotKeyField(nullptr);
        return false;
    }
    hasSeenKeyDown_ = false;
    setGlobalMonitor(true);
    hotKeyField_->didBeginEditing();
    return true;
}

bool HXHotKeyTextFieldEditor::resignFirstResponder() {
    HXHotKeyTextField* field = hotKeyField_;
    if (field == nullptr) {
        return true;
    }
    setHotKeyField(nullptr);
    letsTabPass_ = false;
    const bool keyIsDown = endingKey_.has_value();
    if (keyIsDown) {
        releasingField_ = field;
    } else {
        setGlobalMonitor(false);
    }
    field->didEndEditing(keyIsDown);
    return true;
}

void HXHotKeyTextFieldEditor::finishRelease() {
    HXHotKeyTextField* field = std::exchange(releasingField_, nullptr);
    if (field == nullptr) {
        return;
    }
    endingKey_.reset();
    setGlobalMonitor(false);
    field->didReleaseKeys();
}

void HXHotKeyTextFieldEditor::processHotkeyEvent(const KeyEvent& event) {
    if (hotKeyField_ == nullptr || event.type != NSEventType::NSKeyDown) {
        return;
    }
    hasSeenKeyDown_ = true;
    if ((event.modifierFlags & kCountedModifiers) != 0) {
        hotKeyField_->setHotKey(
            HXHotKey::hotKeyWithKeyCode(event.keyCode, event.modifierFlags,
                                        originalHotKey_ ? originalHotKey_->task() : nullptr));
        resignFirstResponder();
        return;
    }
    const auto characters = QString::fromStdString(event.charactersIgnoringModifiers);
    const char16_t unit = characters.isEmpty() ? u'\0' : characters.front().unicode();
    if (isEscape(event.keyCode, unit)) {
        hotKeyField_->setHotKey(originalHotKey_);
        // The text may be another one although the hot key is the same.
        hotKeyField_->showNameOf(originalHotKey_.get());
        resignFirstResponder();
    } else if (isNewline(unit)) {
        resignFirstResponder();
    } else {
        hotKeyField_->didIgnoreKey();
    }
}

bool HXHotKeyTextFieldEditor::eventFilter(QObject* watched, QEvent* event) {
    if (hotKeyField_ != nullptr) {
        return takeWhileEditing(watched, *event);
    }
    return releasingField_ != nullptr && takeUntilRelease(*event);
}

bool HXHotKeyTextFieldEditor::takeWhileEditing(const QObject* watched, QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) {
        // Most surfaces do not take the focus when they are clicked. The window itself is asked
        // before the widget, and is not meant.
        if (watched->isWidgetType() && watched != hotKeyField_) {
            resignFirstResponder();
        }
        return false;
    }
    if (!isKeyEvent(event)) {
        return false;
    }
    const auto& keyEvent = static_cast<QKeyEvent&>(event);
    if (passesTabOn(keyEvent)) {
        if (event.type() == QEvent::KeyPress) {
            resignFirstResponder();
        }
        return false;
    }
    event.accept();
    // A repeat belongs to a press from before the recording, or to one that was ignored.
    if (event.type() == QEvent::KeyPress && !keyEvent.isAutoRepeat()) {
        takeKey(keyEvent);
    } else if (isReleasedDeadKey(keyEvent) && !keyEvent.isAutoRepeat()) {
        QGuiApplication::inputMethod()->reset(); // or the next letter typed gets the accent
        takeKey(QKeyEvent(QEvent::KeyPress, keyEvent.key(), keyEvent.modifiers(),
                          keyEvent.nativeScanCode(), 0, keyEvent.nativeModifiers()));
        finishRelease();
    }
    return true;
}

void HXHotKeyTextFieldEditor::takeKey(const QKeyEvent& event) {
    const auto keyEvent = keyEventFromQt(event);
    if (!keyEvent) {
        return;
    }
    endingKey_ = event.nativeScanCode();
    processHotkeyEvent(*keyEvent);
    if (releasingField_ == nullptr) {
        endingKey_.reset();
    }
}

bool HXHotKeyTextFieldEditor::passesTabOn(const QKeyEvent& event) const {
    const bool tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return tab && letsTabPass_ && !hasSeenKeyDown_ &&
           (event.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::NoModifier;
}

bool HXHotKeyTextFieldEditor::takeUntilRelease(QEvent& event) {
    if (isKeyEvent(event)) {
        const auto& keyEvent = static_cast<QKeyEvent&>(event);
        const bool release = event.type() == QEvent::KeyRelease;
        const bool endingKey = keyEvent.nativeScanCode() == endingKey_;
        if (endingKey && (release || keyEvent.isAutoRepeat())) {
            event.accept();
            if (release && !keyEvent.isAutoRepeat()) {
                finishRelease();
            }
            return true;
        }
        if (release || keyEvent.isAutoRepeat()) {
            return false;
        }
    } else if (event.type() != QEvent::MouseButtonPress &&
               event.type() != QEvent::ApplicationStateChange) {
        return false;
    }
    // The user has gone on; the release may have gone to another program.
    finishRelease();
    return false;
}

void HXHotKeyTextFieldEditor::setGlobalMonitor(bool on) {
    if (globalMonitor_ == on) {
        return;
    }
    globalMonitor_ = on;
    if (on) {
        QCoreApplication::instance()->installEventFilter(this);
        // Or the window manager acts on its shortcuts, and Alt+F4 closes the window.
        hotKeyField_->grabKeyboard();
    } else {
        QCoreApplication::instance()->removeEventFilter(this);
        if (auto* grabber = qobject_cast<HXHotKeyTextField*>(QWidget::keyboardGrabber())) {
            grabber->releaseKeyboard();
        }
    }
}

HXHotKeyTextFieldEditor* HXHotKeyTextFieldCell::fieldEditorForView(QWidget* view) {
    auto* field = qobject_cast<HXHotKeyTextField*>(view);
    if (field == nullptr) {
        return nullptr;
    }
    auto& editor = HXHotKeyTextFieldEditor::sharedEditor();
    editor.finishRelease();
    if (editor.hotKeyField() != field) {
        editor.resignFirstResponder();
        editor.setHotKeyField(field);
    }
    return &editor;
}

} // namespace nocturo
