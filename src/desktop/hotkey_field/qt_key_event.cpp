#include "desktop/hotkey_field/qt_key_event.h"

#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/keyboard/virtual_key_codes.h"

#include <QKeyEvent>

namespace nocturo {

namespace {

// The X protocol fixes this bit, and Qt's Wayland client builds its state the same way. Qt itself
// has no modifier for caps lock.
constexpr quint32 kLockMask = 0x2;

bool isModifierKey(const QKeyEvent& event, std::uint16_t keyCode) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
        return true;
    case 0:
    case Qt::Key_unknown:
        // Layouts with more levels put shifts that Qt does not know on the usual modifier keys.
        return keyCode >= 54 && keyCode <= 63;
    default:
        return false;
    }
}

std::uint64_t modifierFlags(const QKeyEvent& event, std::uint16_t keyCode) {
    const auto held = event.modifiers();
    std::uint64_t flags = 0;
    flags |= held.testFlag(Qt::ShiftModifier) ? NSShiftKeyMask : 0;
    flags |= held.testFlag(Qt::ControlModifier) ? NSControlKeyMask : 0;
    flags |= held.testFlag(Qt::AltModifier) ? NSAlternateKeyMask : 0;
    flags |= held.testFlag(Qt::MetaModifier) ? NSCommandKeyMask : 0;
    flags |= (event.nativeModifiers() & kLockMask) != 0 ? NSAlphaShiftKeyMask : 0;
    flags |= isFunctionKeyCode(keyCode) ? NSFunctionKeyMask : 0;
    return flags;
}

} // namespace

std::optional<KeyEvent> keyEventFromQt(const QKeyEvent& event) {
    const auto scanCode = event.nativeScanCode();
    if (scanCode < kEvdevToX11Offset) {
        return std::nullopt;
    }
    const auto keyCode = virtualKeyCodeFromEvdev(scanCode - kEvdevToX11Offset);
    if (!keyCode) {
        return std::nullopt;
    }
    KeyEvent result;
    result.type = isModifierKey(event, *keyCode)             ? NSEventType::NSFlagsChanged
                  : event.type() == QEvent::Type::KeyRelease ? NSEventType::NSKeyUp
                                                             : NSEventType::NSKeyDown;
    result.modifierFlags = modifierFlags(event, *keyCode);
    result.timestamp = static_cast<double>(event.timestamp()) / 1000;
    result.characters = event.text().toStdString();
    result.charactersIgnoringModifiers = result.characters;
    result.isARepeat = event.isAutoRepeat();
    result.keyCode = *keyCode;
    return result;
}

} // namespace nocturo
