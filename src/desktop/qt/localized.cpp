#include "desktop/qt/localized.h"

#include "base/texts/translated.h"

#include <QCoreApplication>

#include <string>
#include <vector>

namespace nocturo {

QString localized(const char* english, const char* table) {
    return QCoreApplication::translate(table, english);
}

QString filled(const QString& format, const QStringList& arguments) {
    std::vector<std::string> texts;
    for (const QString& argument : arguments) {
        texts.push_back(argument.toStdString());
    }
    return QString::fromStdString(filledText(format.toStdString(), texts));
}

} // namespace nocturo
