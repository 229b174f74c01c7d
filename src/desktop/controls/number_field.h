#pragma once

#include <QDoubleSpinBox>

#include <optional>

namespace nocturo {

/// Shows a number, without decimals unless told otherwise, and takes one with as many as are typed:
/// Return or leaving the field means "that is it", Escape "never mind". The unit may be left out,
/// and the decimal separator may be a point in every language. What was typed is limited to the
/// range; what is no number goes back. The number that is shown already changes nothing.
class NumberField : public QDoubleSpinBox {
  public:
    explicit NumberField(QWidget* parent);

    void setUnit(const QString& unit) { unit_ = unit; }

    /// What 0 is shown as; as a number where that is empty.
    void setShown(int decimals, const QString& zero) {
        shownDecimals_ = decimals;
        zero_ = zero;
    }

    /// A plus sign stands before positive numbers.
    void setSigned(bool withSign) { withSign_ = withSign; }

    QString textFromValue(double value) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

  protected:
    bool event(QEvent* event) override;

  private:
    std::optional<double> read(QString text) const;

    QString unit_;
    QString zero_;
    int shownDecimals_ = 0;
    bool withSign_ = false;
};

} // namespace nocturo
