#pragma once

#include <QAccessibleWidget>

namespace nocturo {

class RealSlider;

/// What a screen reader gets of a RealSlider: its value and range as they are shown beside it,
/// instead of the positions of its handle.
class RealSliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit RealSliderAccessible(RealSlider* slider);

    /// Makes Qt use this for every RealSlider. More than once does no harm.
    static void install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override; // as the user's doing
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

  private:
    RealSlider& slider() const;
};

} // namespace nocturo
