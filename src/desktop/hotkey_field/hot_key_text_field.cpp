#include "desktop/hotkey_field/hot_key_text_field.h"

#include "base/log.h"
#include "desktop/hotkey_field/hot_key_text_field_editor.h"
#include "desktop/mixed_color.h"
#include "desktop/qt/localized.h"
#include "hotkeys/hot_key_words.h"
#include "hotkeys/key_naming.h"

#include <QAccessibleWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFrame>

namespace nocturo {

namespace {

/// How much of the highlight colour lies over the field while it records: enough to be seen beside
/// another field, and text stays readable on light and dark palettes.
constexpr float kTint = 0.18F;

/// What the field shows is drawn, so screen readers are told it as its value.
class FieldAccessible : public QAccessibleWidget {
  public:
    explicit FieldAccessible(HXHotKeyTextField* field)
        : QAccessibleWidget(field, QAccessible::HotkeyField) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? static_cast<HXHotKeyTextField*>(object())->shownText()
                                          : QAccessibleWidget::text(kind);
    }
};

bool startsByItself(Qt::FocusReason reason) {
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::MouseFocusReason:
    case Qt::ShortcutFocusReason:
    case Qt::OtherFocusReason:
        return true;
    default:
        return false; // the user comes back to the window and may not even know where the focus is
    }
}

} // namespace

HXHotKeyTextField::HXHotKeyTextField(QWidget* parent) : QLineEdit(parent) {
    // Text arrives through setHotKey alone: no caret, pasting, dropping or input method.
    setReadOnly(true);
    setDragEnabled(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::ArrowCursor);
    QAccessible::registerAccessibleInterface(new FieldAccessible(this));
    setAccessibleName(localized("Hot key"));
    describe();
}

HXHotKeyTextField::~HXHotKeyTextField() {
    disconnect(this, &HXHotKeyTextField::hotKeyEdited, nullptr, nullptr);
    auto& editor = HXHotKeyTextFieldEditor::sharedEditor();
    if (editor.hotKeyField() == this) {
        editor.resignFirstResponder();
    }
    if (editor.isReleasing(*this)) {
        editor.finishRelease();
    }
}

void HXHotKeyTextField::setKeyboardLayout(KeyboardLayout* layout) {
    layout_ = layout;
    if (hotKey_) {
        showNameOf(hotKey_.get());
    }
}

void HXHotKeyTextField::setHotKey(std::shared_ptr<HXHotKey> hotKey) {
    if (hotKey == hotKey_) {
        return;
    }
    hotKey_ = std::move(hotKey);
    showNameOf(hotKey_.get());
}

void HXHotKeyTextField::showNameOf(const HXHotKey* hotKey) {
    const auto name = hotKey != nullptr
                          ? HXStringFromKeyCode(hotKey->keyCode(), hotKey->modifierFlags(), layout_)
                          : HXStringFromKeyCode(0, 0, layout_);
    setText(QString::fromStdString(name).toUpper());
    describe();
    update();
    QAccessibleValueChangeEvent change(this, shownText());
    QAccessible::updateAccessibility(&change);
}

void HXHotKeyTextField::setStringValue(const QString& stringValue) {
    logWarning(kLogHotKeys, "-[HXHotKeyTextField setStringValue:] is not what you want. "
                            "Use -[HXHotKeyTextField setHotKey:] instead.");
    setText(stringValue);
}

QString HXHotKeyTextField::stringValue() const {
    logWarning(kLogHotKeys, "-[HXHotKeyTextField stringValue] is not what you want. "
                            "Use -[HXHotKeyTextField hotKey] instead.");
    return text();
}

void HXHotKeyTextField::startRecording() {
    if (recording_ || !isEnabled()) {
        return;
    }
    startsWithFocus_ = true;
    if (hasFocus()) {
        beginEditing(false);
    } else {
        setFocus(Qt::OtherFocusReason);
    }
}

void HXHotKeyTextField::beginEditing(bool reachedByTab) {
    startsWithFocus_ = false;
    auto* editor = HXHotKeyTextFieldCell::fieldEditorForView(this);
    editor->setLetsTabPass(reachedByTab);
    editor->becomeFirstResponder();
}

void HXHotKeyTextField::didBeginEditing() {
    recording_ = true;
    needsModifier_ = false;
    describe();
    update();
    if (!std::exchange(takesKeys_, true)) {
        Q_EMIT recordingStarted();
    }
}

void HXHotKeyTextField::didIgnoreKey() {
    needsModifier_ = true;
    update();
    QAccessibleValueChangeEvent change(this, shownText());
    QAccessible::updateAccessibility(&change);
}

void HXHotKeyTextField::didEndEditing(bool keyIsDown) {
    recording_ = false;
    describe();
    update();
    const QPointer<HXHotKeyTextField> self(this); // whoever listens may do anything
    Q_EMIT hotKeyEdited();
    if (self && !keyIsDown && !recording_) {
        didReleaseKeys();
    }
}

void HXHotKeyTextField::didReleaseKeys() {
    if (std::exchange(takesKeys_, false)) {
        Q_EMIT recordingEnded();
    }
}

void HXHotKeyTextField::describe() {
    // Also how a screen reader hears of the change.
    const auto advice = recording_ ? localized("Press the new hot key, with Ctrl, Alt or Super, or "
                                               "Escape to leave it as it was.")
                                   : localized("Click or press Space to record another shortcut.");
    setToolTip(advice);
    const auto name = hotKey_ == nullptr || recording_ ? QString() : shownText() + ". ";
    setAccessibleDescription(name + advice);
}

QString HXHotKeyTextField::shownText() const {
    if (recording_) {
        return needsModifier_ ? localized("With Ctrl, Alt or Super")
                              : localized("Press keys, Esc cancels");
    }
    return hotKey_ == nullptr ? localized("None")
                              : QString::fromStdString(hotKeyWords(
                                    hotKey_->keyCode(), hotKey_->modifierFlags(), layout_));
}

QSize HXHotKeyTextField::minimumSizeHint() const {
    // What is said while it records may be long, and nobody scrolls a hot key's name.
    QSize size = QLineEdit::minimumSizeHint();
    for (const QString& text : {localized("With Ctrl, Alt or Super"),
                                localized("Press keys, Esc cancels"), shownText()}) {
        const int width = fontMetrics().horizontalAdvance(text);
        size.setWidth(std::max(size.width(), width + 4 * fontMetrics().averageCharWidth()));
    }
    return size;
}

QSize HXHotKeyTextField::sizeHint() const {
    const QSize air(4 * fontMetrics().averageCharWidth(), 0);
    return QLineEdit::sizeHint().expandedTo(minimumSizeHint() + air);
}

void HXHotKeyTextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    deselect();
    const auto reason = event->reason();
    if (startsWithFocus_ || startsByItself(reason)) {
        beginEditing(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
    }
}

void HXHotKeyTextField::focusOutEvent(QFocusEvent* event) {
    startsWithFocus_ = false;
    if (recording_) {
        HXHotKeyTextFieldEditor::sharedEditor().resignFirstResponder();
    }
    QLineEdit::focusOutEvent(event);
}

void HXHotKeyTextField::keyPressEvent(QKeyEvent* event) {
    const bool starts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    const auto modifiers = event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (starts && modifiers == Qt::NoModifier) {
        startRecording();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

// The mouse starts recording and selects nothing.

void HXHotKeyTextField::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton) {
        startRecording();
    }
}

void HXHotKeyTextField::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
}

void HXHotKeyTextField::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void HXHotKeyTextField::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event); // the first click may have been for the recording before
}

void HXHotKeyTextField::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    QPalette& colours = option.palette;
    if (recording_) {
        colours.setColor(QPalette::Base, mixedColor(colours.color(QPalette::Base),
                                                    colours.color(QPalette::Highlight), kTint));
    }
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const bool isNothing = !recording_ && hotKey_ == nullptr;
    painter.setPen(colours.color(isNothing ? QPalette::PlaceholderText : QPalette::Text));
    painter.drawText(inside, Qt::AlignCenter,
                     fontMetrics().elidedText(shownText(), Qt::ElideRight, inside.width()));
}

} // namespace nocturo
