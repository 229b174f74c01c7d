#include "base/texts/translated.h"
#include "base/texts/users_language.h"
#include "desktop/qt/localized.h"
#include "desktop/qt/translations.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <array>

using namespace nocturo;

TEST(UsersLanguage, IsTheFirstThatThereAreTextsFor) {
    const auto chosen = [](const char* wanted) {
        qputenv("LANGUAGE", wanted);
        return usersLanguage();
    };
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        qputenv(variable, "");
    }
    for (const auto& [wanted, language] : {
             std::pair("de-AT", "de"),
             std::pair("fr-Latn-CA", "fr"),
             std::pair("pt-PT", "pt_BR"),
             std::pair("zh-SG", "zh_CN"),
             std::pair("zh_Hans_HK", "zh_CN"),
             std::pair("zh_TW", ""), // written in another script
             std::pair("fi-FI:fi:sv::ja:de", "ja"),
             std::pair("fi:en-GB:de", ""), // who reads English gets it before German
             std::pair("C:de", ""),
             std::pair("ar", ""),
             std::pair("", ""),
         }) {
        EXPECT_EQ(chosen(wanted), language) << wanted;
    }
    qputenv("LANG", "es_MX.UTF-8");
    EXPECT_EQ(chosen(""), "es");
    qputenv("LC_MESSAGES", "de_DE@euro");
    EXPECT_EQ(chosen(""), "de");
    EXPECT_EQ(chosen("ja"), "ja");
    qputenv("LC_ALL", "C.UTF-8");
    EXPECT_EQ(chosen(""), "");
    EXPECT_EQ(chosen("ja"), "ja");
    qputenv("LC_ALL", "C");
    EXPECT_EQ(chosen("ja"), "") << "scripts count on it";
}

TEST(Translated, SaysTextsInTheLanguageWithTheirArguments) {
    const auto sentence = [] {
        return translated("There is no verb \"%@\"; nocturoctl --help lists them.", {"a%d"});
    };
    EXPECT_EQ(sentence(), "There is no verb \"a%d\"; nocturoctl --help lists them.");
    setLanguageOfTexts("de");
    EXPECT_EQ(sentence(), "Ein Verb „a%d“ gibt es nicht; nocturoctl --help nennt alle.");
    EXPECT_EQ(translated("No text of %2$@ %1$@, %@", {"ours", "not"}), "No text of not ours, ours");
    EXPECT_EQ(translated("%@ and %@", {"one"}), "one and (null)");
    setLanguageOfTexts("fi");
    EXPECT_EQ(sentence(), "There is no verb \"a%d\"; nocturoctl --help lists them.");
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
