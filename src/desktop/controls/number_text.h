#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace nocturo {

/// How a value is written beside its slider, and how one that was typed is read.
struct NumberText {
    double scale = 1.0; // what is shown is the value times this: 100 for per cent
    int decimals = 2;
    QString suffix;
    bool withSign = false; // a plus sign before positive values
    QLocale locale;

    QString written(double value) const;

    /// Nothing for what is no finite number. The suffix may be left out, and the decimal separator
    /// may be a point in every language.
    std::optional<double> read(QString text) const;
};

} // namespace nocturo
