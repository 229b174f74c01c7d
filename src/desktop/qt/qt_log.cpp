#include "desktop/qt/qt_log.h"

#include "base/log.h"

#include <QLoggingCategory>
#include <QString>

#include <map>
#include <memory>
#include <string>

namespace nocturo {

namespace {

const QLoggingCategory& categoryNamed(std::string_view name) {
    static std::map<std::string, std::unique_ptr<QLoggingCategory>, std::less<>> categories;
    auto found = categories.find(name);
    if (found == categories.end()) {
        found = categories.emplace(name, nullptr).first;
        // A category keeps only the pointer to its name; a map's keys stay where they are.
        found->second = std::make_unique<QLoggingCategory>(found->first.c_str(), QtWarningMsg);
    }
    return *found->second;
}

void writeToQt(LogLevel level, std::string_view category, std::string_view sentence) {
    const QLoggingCategory& qtCategory = categoryNamed(category);
    const auto text = QString::fromUtf8(sentence.data(), static_cast<qsizetype>(sentence.size()));
    if (level == LogLevel::warning) {
        qCWarning(qtCategory).noquote() << text;
    } else {
        qCInfo(qtCategory).noquote() << text;
    }
}

} // namespace

void installQtLogSink() {
    // Profiles are checked by us, with a sentence that names them.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.icc=false"));
    setLogSink(writeToQt);
}

} // namespace nocturo
