#include "desktop/controls/number_field.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <cmath>

namespace nocturo {

namespace {

constexpr QChar kMinus(0x2212); // as wide as the plus sign

} // namespace

NumberField::NumberField(QWidget* parent) : QDoubleSpinBox(parent) {
    setButtonSymbols(NoButtons);
    setAlignment(Qt::AlignRight);
    setKeyboardTracking(false);
    setDecimals(6); // to count with, not to show
}

QString NumberField::textFromValue(double value) const {
    const QString digits = locale().toString(std::abs(value), 'f', shownDecimals_);
    const bool isZero = digits == locale().toString(0.0, 'f', shownDecimals_); // has no sign
    if (isZero && !zero_.isEmpty()) {
        return zero_;
    }
    const QString sign = isZero      ? QString()
                         : value < 0 ? QString(kMinus)
                         : withSign_ ? QStringLiteral("+")
                                     : QString();
    return sign + digits + unit_;
}

std::optional<double> NumberField::read(QString text) const {
    text = text.simplified();
    if (const QString unit = unit_.trimmed(); !unit.isEmpty() && text.endsWith(unit)) {
        text.chop(unit.size());
    }
    text.remove(QChar::Space).replace(kMinus, QLatin1Char('-'));
    for (QLocale language : {locale(), QLocale::c()}) {
        // 0.500 is not five hundred, whatever a point separates.
        language.setNumberOptions(QLocale::RejectGroupSeparator);
        bool isNumber = false;
        const double number = language.toDouble(text, &isNumber);
        if (isNumber && std::isfinite(number)) {
            return number + 0.0; // no negative zero
        }
    }
    return std::nullopt;
}

double NumberField::valueFromText(const QString& text) const {
    const auto typed = read(text);
    return typed && typed != read(textFromValue(value())) ? *typed : value();
}

QValidator::State NumberField::validate(QString& /*text*/, int& /*position*/) const {
    return QValidator::Acceptable; // so that nobody is stopped half-way through a number
}

bool NumberField::event(QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if ((press || event->type() == QEvent::ShortcutOverride) && lineEdit()->isModified() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        if (press) {
            setValue(value());
            selectAll();
        }
        event->accept();
        return true;
    }
    return QDoubleSpinBox::event(event);
}

} // namespace nocturo
