#include "platform/desktop/translations.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

// A static library's resources are dropped by the linker unless they are asked for by name, which
// must be done outside of any namespace.
static void keepResources() {
    Q_INIT_RESOURCE(translations);
}

namespace nocturo {

namespace {

const QString kTexts = QStringLiteral(":/translations");

QStringList languagesWithTexts() {
    QStringList languages;
    for (const QString& file : QDir(kTexts).entryList({QStringLiteral("nocturo_*.qm")})) {
        languages << file.section(u'_', 1).chopped(3);
    }
    return languages;
}

bool isEnglish(const QLocale& locale) {
    return locale.language() == QLocale::English || locale.language() == QLocale::C;
}

void install(QCoreApplication& application, const QString& file, const QString& directory) {
    auto translator = std::make_unique<QTranslator>(&application);
    // Qt's own texts come in a package that need not be there.
    if (translator->load(file, directory)) {
        QCoreApplication::installTranslator(translator.release());
    }
}

} // namespace

QString languageOfTexts(const QStringList& wanted) {
    keepResources();
    const QStringList languages = languagesWithTexts();
    for (const QString& name : wanted) {
        const QLocale reader(name);
        if (isEnglish(reader)) {
            break;
        }
        QString found;
        for (const QString& language : languages) {
            const QLocale texts(language);
            if (texts.language() != reader.language() || texts.script() != reader.script()) {
                continue;
            }
            if (found.isEmpty() || texts.territory() == reader.territory()) {
                found = language;
            }
        }
        if (!found.isEmpty()) {
            return found;
        }
    }
    return {};
}

void installTranslations(QCoreApplication& application) {
    keepResources();
    // What is installed last is asked first.
    install(application, QStringLiteral("nocturo_en"), kTexts);
    const QString language = languageOfTexts(QLocale::system().uiLanguages());
    if (language.isEmpty()) {
        return;
    }
    install(application, QStringLiteral("qtbase_") + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(application, QStringLiteral("nocturo_") + language, kTexts);
    if (QLocale(language).textDirection() == Qt::RightToLeft) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
}

} // namespace nocturo
