#pragma once

#include "desktop/controls/track_slider.h"

#include <QWidget>

namespace nocturo {

class NumberField;

/// One parameter of an effect: a slider, and beside it a field that shows its value and takes a
/// typed one. To the outside it is one control: a label's buddy, one accessible name for both
/// parts, one signal. Main thread only.
class ParameterSlider : public QWidget {
    Q_OBJECT

  public:
    struct Parameter {
        double minimum = 0.0;
        double maximum = 1.0;
        double defaultValue = 0.0;
        double step = 0.01;
        double page = 0.1;
        double scale = 1.0; // what is shown and typed is the value times this: 100 for per cent
        QString unit = {};
        TrackSlider::Track track = TrackSlider::Track::Fill; // with Middle the number has a sign
        bool reciprocal = false; // positions are even in 1 / value, as mired are of kelvin
        int decimals = 0;        // that are shown
        QString zero = {};       // shown instead of the number 0
    };

    explicit ParameterSlider(QWidget* parent = nullptr);

    /// Limits the value, without a signal.
    void setParameter(const Parameter& parameter);
    const Parameter& parameter() const { return parameter_; }

    /// The value that was set, to the last bit, whatever is shown.
    float value() const { return value_; }
    QString shownText() const;
    QString spokenText() const {
        return word_.isEmpty() ? shownText() : shownText() + ", " + word_;
    }

    /// Limited to the range; what is no number becomes the value nearest to 0. Emits nothing. The
    /// value it already has leaves a number alone that is just being typed; another one replaces
    /// it.
    void setValue(float value);

    /// The same, as the user's doing.
    void moveTo(double value);

    /// There is no value to show: the field is empty and the slider without a handle. Whoever sets
    /// or moves it gives it one again.
    void setEmpty();
    bool isEmpty() const { return empty_; }

    /// What a screen reader says after the value: "orange".
    void setWord(const QString& word) { word_ = word; }

    /// Colors of the track, from the minimum to the maximum.
    void setColors(QGradientStops colors) { slider_->setColors(std::move(colors)); }

    /// Where on the track a value stands, 0 to 1.
    double shareOf(double value) const;

    /// The value that stands there.
    double valueAt(double share) const;

  Q_SIGNALS:
    /// The user changed the value: once for every step, before the next event is taken in.
    void valueChangedByUser(float value);

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    float limited(double value) const;
    void takeMove();
    void showValue();
    void tintField();

    Parameter parameter_;
    float value_ = 0.0F;
    bool empty_ = false;
    QString word_;
    TrackSlider* slider_;
    NumberField* field_;
};

} // namespace nocturo
