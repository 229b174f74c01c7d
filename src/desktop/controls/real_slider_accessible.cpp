#include "desktop/controls/real_slider_accessible.h"

#include "desktop/controls/real_slider.h"

namespace nocturo {

RealSliderAccessible::RealSliderAccessible(RealSlider* slider)
    : QAccessibleWidget(slider, QAccessible::Slider) {}

void RealSliderAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory([](const QString& /*className*/, QObject* object) {
            auto* slider = qobject_cast<RealSlider*>(object);
            return slider != nullptr
                       ? static_cast<QAccessibleInterface*>(new RealSliderAccessible(slider))
                       : nullptr;
        });
        return true;
    }();
    Q_UNUSED(installed)
}

RealSlider& RealSliderAccessible::slider() const {
    return *static_cast<RealSlider*>(object());
}

void* RealSliderAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QString RealSliderAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value
               ? slider().numberText().written(static_cast<double>(slider().realValue()))
               : QAccessibleWidget::text(kind);
}

QVariant RealSliderAccessible::currentValue() const {
    return static_cast<double>(slider().realValue()) * slider().numberText().scale;
}

void RealSliderAccessible::setCurrentValue(const QVariant& value) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber && slider().isEnabled()) {
        slider().moveTo(number / slider().numberText().scale);
    }
}

QVariant RealSliderAccessible::maximumValue() const {
    return slider().realMaximum() * slider().numberText().scale;
}

QVariant RealSliderAccessible::minimumValue() const {
    return slider().realMinimum() * slider().numberText().scale;
}

QVariant RealSliderAccessible::minimumStepSize() const {
    return slider().realSingleStep() * slider().numberText().scale;
}

} // namespace nocturo
