#pragma once

#include "desktop/controls/real_slider.h"

#include <QWidget>

class QLineEdit;

namespace nocturo {

/// One parameter of an effect: a slider, and beside it a field that shows its value and takes a
/// typed one. To the outside it is one control: a label's buddy, one accessible name for both
/// parts, one signal. Main thread only.
///
/// The slider takes drags and clicks on its track, the wheel (with Control or Shift by pages; in a
/// scroll area only while it has the focus), arrows, Page keys, Home and End, and a double click
/// for the default. The field takes arrows and Page keys too, Return or leaving it as "that is it",
/// Escape as "never mind". What was typed is limited to the range; what is no number goes back.
class ParameterSlider : public QWidget {
    Q_OBJECT

  public:
    using Track = RealSlider::Track;

    /// Range 0 to 1, default 0, steps 0.01 and 0.1, two decimals, plain track.
    explicit ParameterSlider(QWidget* parent = nullptr);

    /// Nothing happens unless minimum < maximum. Limits the value, without a signal.
    void setRange(double minimum, double maximum);

    /// What a double click on the slider sets.
    void setDefaultValue(double value);

    void setStep(double single, double page);

    /// Marks the middle of the track, fills it from there instead of from the minimum, and catches
    /// the dragged handle within three pixels of it. The value shows a sign on either side.
    void setMarkedMiddle(bool marked);

    /// Hue: 0 to 360 as the colors that the color filter makes of white.
    void setTrack(Track track);

    // How the value is shown and typed: multiplied by the scale (100 for per cent), with this many
    // decimals, and the suffix as it stands. None of these changes the value.
    void setDisplayScale(double scale);
    void setDecimals(int decimals);
    void setSuffix(const QString& suffix);

    /// The value that was set, to the last bit, whatever is shown.
    float value() const;

    /// Limited to the range; what is no number becomes the value nearest to 0. Emits nothing. The
    /// value it already has leaves a number alone that is just being typed; another one replaces
    /// it.
    void setValue(float value);

  Q_SIGNALS:
    /// The user changed the value: once for every step, before the next event is taken in.
    void valueChangedByUser(float value);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void userMoved(float value);
    void takeTypedNumber();
    void showValue();
    void fitField();
    void tintField();
    void nameParts();
    bool fieldTakesKey(QKeyEvent& event);

    RealSlider* slider_;
    QLineEdit* field_;
    NumberText numberText_;
};

} // namespace nocturo
