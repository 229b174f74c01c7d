#pragma once

#include "hotkeys/hot_key.h"

#include <QLineEdit>

#include <memory>

namespace nocturo {

class KeyboardLayout;

/// A line edit whose value is a hot key: it shows what the key is called, which is not its text,
/// and records another one from the keyboard. It registers nothing itself. Main thread only.
///
/// Recording starts when the field is clicked, reached with Tab or given the focus by the program,
/// and with Return or Space when it has the focus without recording. It does not start when the
/// field's window merely becomes active again. While it records, the whole application gets no
/// keys, and where the desktop lets it neither does the window manager:
/// - a key with a modifier, or a function, arrow or navigation key, is recorded and ends it;
/// - Return and Escape alone end it; Escape puts the hot key back that was there at the start;
/// - other keys alone do nothing.
/// It also ends when the focus leaves and with a click elsewhere. After a key ended it, the field
/// keeps the focus, so that Tab goes on from here.
///
/// Tab does nothing either, except for somebody who is only passing through: when the field was
/// reached with Tab, Tab and Shift+Tab go on as long as no other key was pressed.
///
/// Qt has no cell objects: HXHotKeyTextFieldCell::fieldEditorForView serves every field.
class HXHotKeyTextField : public QLineEdit {
    Q_OBJECT

  public:
    /// Without a layout, keys that need one are named by their modifiers alone.
    explicit HXHotKeyTextField(QWidget* parent = nullptr);

    /// Ends a recording, without hotKeyEdited().
    ~HXHotKeyTextField() override;

    /// Names keys from now on, those shown already included. Not owned; it must outlive the field
    /// or be taken away with null.
    void setKeyboardLayout(KeyboardLayout* layout);

    /// Null until set.
    const std::shared_ptr<HXHotKey>& hotKey() const { return hotKey_; }

    /// Its text becomes the hot key's name in upper case, and for null the name of key code 0,
    /// which is an A on most layouts. Nothing happens for the record it has.
    void setHotKey(std::shared_ptr<HXHotKey> hotKey);

    /// Both work on the text alone, not on the hot key, and log a warning that says so.
    void setStringValue(const QString& stringValue);
    QString stringValue() const;

    /// What the field shows: the hot key as people find it on their keyboards, "None", or while it
    /// records what to do.
    QString shownText() const;

    bool isRecording() const { return recording_; }

    /// Takes the focus if it is elsewhere; in a window that is not active, recording starts when it
    /// becomes so. Nothing happens while the field is disabled.
    void startRecording();

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  Q_SIGNALS:
    /// The field takes all keys from here to recordingEnded(): until then, let go of the hot key
    /// that is registered with the desktop, or it fires and never reaches the field.
    void recordingStarted();

    /// The field's action, once for every recording, also when it brought nothing new, and when the
    /// window is destroyed around the field meanwhile: whoever listens must outlive the window.
    void hotKeyEdited();

    /// The key that ended the recording is up, or the user went elsewhere. Registering earlier
    /// would let a key that is still held down and repeats fire the hot key it has just become.
    void recordingEnded();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    friend class HXHotKeyTextFieldEditor;

    // What the editor tells.
    void didBeginEditing();
    void didEndEditing(bool keyIsDown);
    void didReleaseKeys();
    void didIgnoreKey();
    void showNameOf(const HXHotKey* hotKey);

    void beginEditing(bool reachedByTab);
    void describe();
    std::shared_ptr<HXHotKey> hotKey_;
    KeyboardLayout* layout_ = nullptr;
    bool recording_ = false;
    bool needsModifier_ = false; // a key was pressed that cannot be a hot key alone
    bool startsWithFocus_ = false;
    bool takesKeys_ = false; // from recordingStarted() to recordingEnded()
};

} // namespace nocturo
