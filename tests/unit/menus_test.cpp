// The main menu and the documents that it remembers.

#include "app/menus/main_menu.h"
#include "app/recent_documents.h"
#include "temporary_directory.h"

#include <QApplication>

#include <gmock/gmock.h>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecentlyOpened : public testing::Test {
  protected:
    std::string document(const std::string& name) {
        writeText(directory / name, "anything");
        return directory / name;
    }

    TemporaryDirectory directory;
    RecentDocuments documents{directory / "state/recent.plist"};
};

TEST_F(RecentlyOpened, TheLatestComesFirstAndWhatIsGoneIsLeftOut) {
    EXPECT_THAT(documents.paths(), IsEmpty());
    const std::string a = document("a");
    const std::string b = document("b");
    for (const std::string& path : {a, b, a}) {
        documents.note(path);
    }
    EXPECT_THAT(documents.paths(), ElementsAre(a, b));
    std::filesystem::remove(a);
    EXPECT_THAT(documents.paths(), ElementsAre(b));
    for (int i = 0; i < 12; ++i) {
        documents.note(document(std::to_string(i)));
    }
    EXPECT_EQ(documents.paths().size(), 10U);
    EXPECT_EQ(documents.paths()[0], directory / "11");
    writeText(directory / "state/recent.plist", "damaged");
    EXPECT_THAT(documents.paths(), IsEmpty());
}

TEST_F(RecentlyOpened, TheMenuOffersAndForgetsThem) {
    QString opened;
    MainMenu::Handlers handlers;
    handlers.openRecentDocument = [&](const QString& path) { opened = path; };
    const MainMenu menu(documents, handlers);
    const auto menus = menu.bar()->findChildren<QMenu*>();
    const auto found = std::find_if(menus.begin(), menus.end(), [](const QMenu* each) {
        return each->title().contains("Recent");
    });
    ASSERT_NE(found, menus.end());
    QMenu* recent = *found;
    documents.note(document("R&D.nocturo"));
    Q_EMIT recent->aboutToShow();
    ASSERT_EQ(recent->actions().size(), 3); // the document, a separator, Clear Menu
    EXPECT_EQ(recent->actions()[0]->text(), "R&&D.nocturo");
    recent->actions()[0]->trigger();
    EXPECT_EQ(opened.toStdString(), directory / "R&D.nocturo");
    recent->actions()[2]->trigger();
    EXPECT_THAT(documents.paths(), IsEmpty());
    Q_EMIT recent->aboutToShow();
    EXPECT_FALSE(recent->actions().last()->isEnabled());
}

} // namespace
} // namespace nocturo
