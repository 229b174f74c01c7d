#pragma once

#include "desktop/controls/number_text.h"

#include <QSlider>

namespace nocturo {

/// The slider of a ParameterSlider: a horizontal QSlider for a real number. The integer position of
/// QSlider only says where the handle is drawn; the value is kept beside it, to the last bit.
///
/// The groove takes a click as "here", not as a page: on a color wheel rolled out flat nothing else
/// would be understood.
class RealSlider : public QSlider {
    Q_OBJECT

  public:
    enum class Track { Plain, Hue };

    explicit RealSlider(QWidget* parent = nullptr);

    float realValue() const { return value_; }

    /// Limited to the range; emits nothing. What is no number becomes the value nearest to 0, where
    /// the effects change least.
    void setRealValue(float value);

    /// The same, as the user's doing: emits `moved` if the value is another one.
    void moveTo(double value);

    /// A number of single or page steps from here. Whoever starts on a round value stays on round
    /// ones: steps do not pile up rounding.
    void moveBySteps(int steps, double step);

    void setRealRange(double minimum, double maximum);
    void setRealSteps(double single, double page);
    void setDefaultValue(double value) { defaultValue_ = value; }
    void setMarkedMiddle(bool marked);
    void setTrack(Track track);

    /// How screen readers are told the value.
    void setNumberText(const NumberText& numberText) { numberText_ = numberText; }
    const NumberText& numberText() const { return numberText_; }

    double realMinimum() const { return minimum_; }
    double realMaximum() const { return maximum_; }
    double realSingleStep() const { return singleStep_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void moved(float value);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Way { // of the handle's middle
        double start;
        double length;
        bool mirrored;
    };

    float limited(double value) const;
    double middle() const { return minimum_ + (maximum_ - minimum_) / 2; }
    double share(double value) const { return (value - minimum_) / (maximum_ - minimum_); }
    void takeAction(int action);
    Way way() const;
    double positionOf(double value) const;
    void paintTrack(QPainter& painter) const;
    void paintMiddle(QPainter& painter) const;
    bool hasWheel() const;

    double minimum_ = 0.0;
    double maximum_ = 1.0;
    double singleStep_ = 0.01;
    double pageStep_ = 0.1;
    double defaultValue_ = 0.0;
    float value_ = 0.0F;
    bool markedMiddle_ = false;
    Track track_ = Track::Plain;
    NumberText numberText_;
    int wheelRest_ = 0;

    double pressedAt_ = 0.0; // where the mouse went down, and the value there
    double pressedValue_ = 0.0;
    double lastAt_ = 0.0;
};

} // namespace nocturo
