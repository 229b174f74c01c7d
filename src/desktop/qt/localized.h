#pragma once

#include <QString>
#include <QStringList>

namespace nocturo {

/// The text in the user's language; the English text is the key, and stands in where there is no
/// other. `table` names the table of texts ("Localizable" unless they have one of their own).
QString localized(const char* english, const char* table = "Localizable");

/// A format with its arguments filled in, as by filledText() of what is printed.
QString filled(const QString& format, const QStringList& arguments);

} // namespace nocturo
