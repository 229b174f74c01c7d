#include "desktop/qt/translations.h"

#include "base/texts/users_language.h"

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

void install(QCoreApplication& application, const QString& file, const QString& directory) {
    auto translator = std::make_unique<QTranslator>(&application);
    // Qt's own texts come in a package that need not be there.
    if (translator->load(file, directory)) {
        QCoreApplication::installTranslator(translator.release());
    }
}

// Numbers are written as in the language of the texts, whatever else the session speaks, and as
// plainly as the texts that the program itself makes: without separators of thousands.
void setNumbersOf(const QString& language) {
    const QLocale texts(language.isEmpty() ? QStringLiteral("en") : language);
    QLocale numbers;
    if (numbers.language() != texts.language()) {
        numbers = texts;
    }
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(numbers);
}

} // namespace

void installTranslations(QCoreApplication& application) {
    keepResources();
    // What is installed last is asked first.
    install(application, QStringLiteral("nocturo_en"), kTexts);
    const QString language = QString::fromStdString(usersLanguage());
    setNumbersOf(language);
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
