#include "platform/desktop/localized.h"
#include "platform/desktop/translations.h"

#include <QGuiApplication>

#include <gmock/gmock.h>

#include <array>
#include <string>

namespace nocturo {
namespace {

TEST(LanguageOfTexts, IsThatOfTheFirstLanguageThatThereAreTextsFor) {
    const auto chosen = [](const char* wanted) {
        return languageOfTexts(QString::fromLatin1(wanted).split(u':')).toStdString();
    };
    EXPECT_EQ(chosen("de"), "de");
    EXPECT_EQ(chosen("de-AT"), "de");
    EXPECT_EQ(chosen("fr-Latn-CA"), "fr");
    EXPECT_EQ(chosen("pt-BR"), "pt_BR");
    EXPECT_EQ(chosen("pt-PT"), "pt_BR");
    EXPECT_EQ(chosen("zh-SG"), "zh_CN");
    EXPECT_EQ(chosen("zh-TW"), "") << "written in another script";
    EXPECT_EQ(chosen("fi-FI:fi:sv:ja:de"), "ja");
    EXPECT_EQ(chosen("fi:en-GB:de"), "") << "who reads English gets it before German";
    EXPECT_EQ(chosen("C:de"), "");
    EXPECT_EQ(chosen("ar"), "");
}

TEST(InstalledTranslations, AreThoseOfTheEnvironment) {
    qputenv("LANGUAGE", "ar:de_AT:fr");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::string name = "test";
    std::array arguments{name.data()};
    int count = 1;
    QGuiApplication application(count, arguments.data());
    installTranslations(application);
    EXPECT_EQ(localized("Cancel"), QStringLiteral("Abbrechen"));
    EXPECT_EQ(localized("No text of ours"), QStringLiteral("No text of ours"));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight)
        << "texts in German are not to be mirrored because Arabic was wished for first";
}

} // namespace
} // namespace nocturo
