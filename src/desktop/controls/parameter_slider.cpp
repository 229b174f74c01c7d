// The parts know only about where they stand: the slider in whole positions, the field in decimal
// digits. The value is kept beside them, so that what was set stays as it is until it is moved.

#include "desktop/controls/parameter_slider.h"

#include "desktop/controls/number_field.h"
#include "desktop/mixed_color.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <utility>

namespace nocturo {

namespace {

/// Styles draw disabled text too faint to be read. What an effect is set to is worth reading while
/// it is off.
constexpr float kDisabledInk = 0.62F;

/// What a screen reader gets of the slider: its value and range as they are shown beside it,
/// instead of the positions of its handle.
class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    SliderAccessible(TrackSlider* slider, ParameterSlider& row)
        : QAccessibleWidget(slider, QAccessible::Slider), row_(row) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? row_.spokenText() : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return shown(static_cast<double>(row_.value())); }
    void setCurrentValue(const QVariant& value) override {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (isNumber && row_.isEnabled()) {
            row_.moveTo(number / row_.parameter().scale);
        }
    }
    QVariant maximumValue() const override { return shown(row_.parameter().maximum); }
    QVariant minimumValue() const override { return shown(row_.parameter().minimum); }
    QVariant minimumStepSize() const override { return shown(row_.parameter().step); }

  private:
    double shown(double value) const { return value * row_.parameter().scale; }

    ParameterSlider& row_;
};

} // namespace

ParameterSlider::ParameterSlider(QWidget* parent)
    : QWidget(parent), slider_(new TrackSlider(this)), field_(new NumberField(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider_, 1);
    row->addWidget(field_);
    setFocusProxy(slider_);
    setFocusPolicy(slider_->focusPolicy()); // or a label would not give the focus to its buddy
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QAccessible::registerAccessibleInterface(new SliderAccessible(slider_, *this));
    connect(slider_, &QSlider::actionTriggered, this, &ParameterSlider::takeMove);
    connect(field_, &QDoubleSpinBox::valueChanged, this,
            [this](double number) { moveTo(number / parameter_.scale); });
    tintField();
}

void ParameterSlider::setParameter(const Parameter& parameter) {
    parameter_ = parameter;
    const auto positions = [&](double distance) {
        const double range = parameter.maximum - parameter.minimum;
        return static_cast<int>(std::lround(distance / range * TrackSlider::kPositions));
    };
    slider_->setTrack(parameter.track);
    slider_->setSingleStep(positions(parameter.step));
    slider_->setPageStep(positions(parameter.page));
    slider_->setDefaultPosition(
        static_cast<int>(std::lround(shareOf(parameter.defaultValue) * TrackSlider::kPositions)));
    const QSignalBlocker quiet(field_);
    field_->setUnit(parameter.unit);
    field_->setShown(parameter.decimals, parameter.zero);
    field_->setSigned(parameter.track == TrackSlider::Track::Middle);
    field_->setRange(parameter.minimum * parameter.scale, parameter.maximum * parameter.scale);
    field_->setSingleStep(parameter.step * parameter.scale);
    // The fields of several rows stand flush.
    const auto width = [&](const QString& text) {
        return field_->fontMetrics().horizontalAdvance(text);
    };
    const int text = std::max(width(field_->textFromValue(field_->minimum())),
                              width(field_->textFromValue(field_->maximum())));
    field_->setFixedWidth(field_->sizeHint().width() - text +
                          std::max(text, width(QStringLiteral("00,000 K"))));
    value_ = limited(static_cast<double>(value_));
    showValue();
}

float ParameterSlider::limited(double value) const {
    return static_cast<float>(
        std::clamp(std::isnan(value) ? 0.0 : value, parameter_.minimum, parameter_.maximum));
}

double ParameterSlider::shareOf(double value) const {
    const double low = parameter_.minimum;
    const double high = parameter_.maximum;
    return parameter_.reciprocal ? (1 / low - 1 / value) / (1 / low - 1 / high)
                                 : (value - low) / (high - low);
}

double ParameterSlider::valueAt(double share) const {
    const double low = parameter_.minimum;
    const double high = parameter_.maximum;
    return parameter_.reciprocal ? 1 / (1 / low - (1 / low - 1 / high) * share)
                                 : low + (high - low) * share;
}

QString ParameterSlider::shownText() const {
    return empty_ ? QString()
                  : field_->textFromValue(static_cast<double>(value_) * parameter_.scale);
}

void ParameterSlider::setEmpty() {
    empty_ = true;
    slider_->setHandleShown(false);
    field_->clear();
}

void ParameterSlider::setValue(float value) {
    const float before = std::exchange(value_, limited(static_cast<double>(value)));
    const bool wasEmpty = std::exchange(empty_, false);
    if (wasEmpty || std::bit_cast<std::uint32_t>(before) != std::bit_cast<std::uint32_t>(value_)) {
        showValue();
    }
}

void ParameterSlider::moveTo(double value) {
    const float before = std::exchange(value_, limited(value));
    const bool wasEmpty = std::exchange(empty_, false);
    showValue();
    if (wasEmpty || value_ != before) {
        Q_EMIT valueChangedByUser(value_);
    }
}

/// The slider stands at its new position and has told nobody else yet.
void ParameterSlider::takeMove() {
    const double share = 1.0 * slider_->sliderPosition() / TrackSlider::kPositions;
    moveTo(valueAt(share));
}

void ParameterSlider::showValue() {
    const QSignalBlocker quietSlider(slider_);
    const QSignalBlocker quietField(field_);
    const double value = static_cast<double>(value_);
    slider_->setHandleShown(true);
    slider_->setValue(static_cast<int>(std::lround(shareOf(value) * TrackSlider::kPositions)));
    field_->setValue(value * parameter_.scale);
    if (field_->hasFocus()) {
        field_->selectAll();
    }
}

void ParameterSlider::tintField() {
    QPalette colors = palette();
    colors.setColor(QPalette::Disabled, QPalette::Text,
                    mixedColor(colors.color(QPalette::Disabled, QPalette::Base),
                               colors.color(QPalette::Active, QPalette::Text), kDisabledInk));
    field_->setPalette(colors);
}

void ParameterSlider::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        tintField();
    }
}

/// A label names its buddy; what has the focus are the parts.
void ParameterSlider::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QString name = QAccessible::queryAccessibleInterface(this)->text(QAccessible::Name);
    if (name.endsWith(QLatin1Char(':'))) {
        name.chop(1);
    }
    for (QWidget* part : findChildren<QWidget*>()) {
        part->setAccessibleName(name);
    }
}

} // namespace nocturo
