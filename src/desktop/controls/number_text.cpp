#include "desktop/controls/number_text.h"

#include <cmath>

namespace nocturo {

namespace {

constexpr QChar kMinus(0x2212); // as wide as the plus sign

} // namespace

QString NumberText::written(double value) const {
    const double shown = value * scale;
    QString digits = locale.toString(std::abs(shown), 'f', decimals);
    if (digits == locale.toString(0.0, 'f', decimals)) {
        return digits + suffix; // what rounds to zero has no sign
    }
    const QString sign = shown < 0 ? QString(kMinus) : withSign ? QStringLiteral("+") : QString();
    return sign + digits + suffix;
}

std::optional<double> NumberText::read(QString text) const {
    text = text.simplified();
    if (const QString unit = suffix.trimmed(); !unit.isEmpty() && text.endsWith(unit)) {
        text.chop(unit.size());
    }
    text.remove(QChar::Space);
    text.replace(kMinus, QLatin1Char('-'));
    const bool negative = text.startsWith(QLatin1Char('-'));
    if (negative || text.startsWith(QLatin1Char('+'))) {
        text.remove(0, 1);
    }
    if (text.isEmpty() || !(text.front().isDigit() || text.front().isPunct())) {
        return std::nullopt; // names of infinity among others
    }
    bool isNumber = false;
    for (QLocale language : {locale, QLocale::c()}) {
        // 0.500 is not five hundred, whatever a point separates.
        language.setNumberOptions(QLocale::RejectGroupSeparator);
        const double number = language.toDouble(text, &isNumber);
        if (isNumber && std::isfinite(number)) {
            return (negative ? -number : number) / scale + 0.0; // no negative zero
        }
    }
    return std::nullopt;
}

} // namespace nocturo
