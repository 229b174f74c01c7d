#pragma once

#include "hotkeys/hot_key.h"
#include "hotkeys/key_event.h"

#include <QObject>

#include <memory>
#include <optional>

class QKeyEvent;
class QWidget;

namespace nocturo {

class HXHotKeyTextField;

/// Reads the keyboard for whichever hot key field is recording: there is one editor in the process,
/// as there is one keyboard. While it is the first responder it takes every key event of the
/// application before any widget, shortcut or menu sees it. It has no look of its own; the field
/// draws.
///
/// After a key ended the editing, that key's repeats are taken too until it is up, so that they do
/// not press what the user did not mean.
class HXHotKeyTextFieldEditor : public QObject {
  public:
    static HXHotKeyTextFieldEditor& sharedEditor();

    /// The field being edited; null when there is none. Not owned.
    HXHotKeyTextField* hotKeyField() const { return hotKeyField_; }

    /// Notes the field's hot key as the one that Escape puts back.
    void setHotKeyField(HXHotKeyTextField* field);

    /// Whether a key was pressed since editing began; modifiers do not count.
    bool hasSeenKeyDown() const { return hasSeenKeyDown_; }

    /// Lets Tab and Shift+Tab leave the field until another key was pressed. Until editing ends.
    void setLetsTabPass(bool letsTabPass) { letsTabPass_ = letsTabPass; }

    /// Begins editing the field; false when it has none, or when that cannot take keys.
    bool becomeFirstResponder();

    /// Ends editing, tells the field and lets go of it. Always true, also when nothing was edited.
    bool resignFirstResponder();

    /// Records, ends or ignores; see HXHotKeyTextField. Nothing happens without a field.
    void processHotkeyEvent(const KeyEvent& event);

    /// Whether the key that ended the field's editing is still taken until it is up.
    bool isReleasing(const HXHotKeyTextField& field) const { return releasingField_ == &field; }

    /// Stops taking that key, whether it is up or not, and tells its field.
    void finishRelease();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool takeWhileEditing(const QObject* watched, QEvent& event);
    bool takeUntilRelease(QEvent& event);
    void takeKey(const QKeyEvent& event);
    bool passesTabOn(const QKeyEvent& event) const;
    void setGlobalMonitor(bool on);
    bool hasSeenKeyDown_ = false;
    bool globalMonitor_ = false; // whether the application's events are filtered
    bool letsTabPass_ = false;
    std::shared_ptr<HXHotKey> originalHotKey_;
    HXHotKeyTextField* hotKeyField_ = nullptr;
    HXHotKeyTextField* releasingField_ = nullptr; // its recording was ended by a key still down
    std::optional<quint32> endingKey_;            // scan code of the key that is or was processed
};

class HXHotKeyTextFieldCell {
  public:
    /// The shared editor, attached to the view; null when that is no hot key field. Ends what the
    /// editor was doing for another field.
    static HXHotKeyTextFieldEditor* fieldEditorForView(QWidget* view);
};

} // namespace nocturo
