#include "platform/desktop/localized.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace nocturo {

QString localized(const char* english, const char* table) {
    return QCoreApplication::translate(table, english);
}

QString filled(const QString& format, const QStringList& arguments) {
    static const QRegularExpression kPlaceholder(QStringLiteral("%(?:%|(?:([1-9])\\$)?[@d])"));
    QString result;
    qsizetype copied = 0;
    qsizetype next = 0;
    for (auto matches = kPlaceholder.globalMatch(format); matches.hasNext();) {
        const auto match = matches.next();
        result += QStringView(format).mid(copied, match.capturedStart() - copied);
        copied = match.capturedEnd();
        if (match.capturedView() == u"%%") {
            result += u'%';
            continue;
        }
        const qsizetype index = match.hasCaptured(1) ? match.capturedView(1).toInt() - 1 : next++;
        result += arguments.value(index, QStringLiteral("(null)"));
    }
    result += QStringView(format).mid(copied);
    return result;
}

} // namespace nocturo
