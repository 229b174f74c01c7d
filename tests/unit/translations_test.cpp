#include "platform/desktop/localized.h"
#include "platform/desktop/translations.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <array>

namespace nocturo {
namespace {

TEST(LanguageOfTexts, IsThatOfTheFirstLanguageThatThereAreTextsFor) {
    for (const auto& [wanted, chosen] : {
             std::pair("de-AT", "de"),
             std::pair("fr-Latn-CA", "fr"),
             std::pair("pt-PT", "pt_BR"),
             std::pair("zh-SG", "zh_CN"),
             std::pair("zh-TW", ""), // written in another script
             std::pair("fi-FI:fi:sv:ja:de", "ja"),
             std::pair("fi:en-GB:de", ""), // who reads English gets it before German
             std::pair("C:de", ""),
             std::pair("ar", ""),
         }) {
        EXPECT_EQ(languageOfTexts(QString(wanted).split(':')), QString(chosen)) << wanted;
    }
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
    EXPECT_EQ(localized("Cancel"), "Abbrechen");
    EXPECT_EQ(localized("No text of ours"), "No text of ours");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight)
        << "texts in German are not to be mirrored because Arabic was wished for first";
}

} // namespace
} // namespace nocturo
