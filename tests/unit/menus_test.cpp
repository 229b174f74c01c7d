// The main menu with the documents that it remembers, and the run of screens in other menus.

#include "app/documents_menu.h"
#include "app/effects_menu.h"
#include "app/screen_option_menu_manager.h"
#include "base/notification_names.h"
#include "desktop/help/guide_window.h"
#include "desktop/menus/drawn_menu.h"
#include "desktop/menus/main_menu.h"
#include "desktop/menus/status_image.h"
#include "desktop/menus/taskbar_presence.h"
#include "display_services_fixture.h"
#include "documents/recent_documents.h"
#include "temporary_directory.h"

#include <QTest>
#include <QtWidgets>

#include <gmock/gmock.h>

#include <optional>

using namespace nocturo;

using testing::ElementsAre;
using testing::IsEmpty;

Menu::Id append(Menu& menu, const char* text, Menu::Id under = Menu::kNone, bool isVisible = true) {
    MenuItem item;
    item.text = text;
    item.under = under;
    item.isVisible = isVisible;
    return menu.append(std::move(item));
}

struct RecentlyOpened : testing::Test {
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

TEST_F(RecentlyOpened, EveryItemOfTheMainMenuCanBeTyped) {
    Menu effects;
    const MainMenu menu(effects, documents, {});
    const auto items = menu.bar()->findChildren<QAction*>();
    EXPECT_GE(items.size(), 10);
    for (const QAction* item : items) {
        EXPECT_TRUE(item->isSeparator() || item->text().contains(u'&'))
            << item->text().toStdString();
    }
}

TEST_F(RecentlyOpened, TheMenuOffersAndForgetsThem) {
    std::string opened;
    MainMenu::Handlers handlers;
    handlers.openRecentDocument = [&](const std::string& path) { opened = path; };
    Menu effects;
    const MainMenu menu(effects, documents, handlers);
    const auto menus = menu.bar()->findChildren<QMenu*>();
    QMenu& recent = **std::find_if(menus.begin(), menus.end(), [](const QMenu* each) {
        return each->title().contains("Recent");
    });
    documents.note(document("R&D.nocturo"));
    Q_EMIT recent.aboutToShow();
    ASSERT_EQ(recent.actions().size(), 3); // the document, a separator, Clear Menu
    EXPECT_EQ(recent.actions()[0]->text(), "R&&D.nocturo");
    recent.actions()[0]->trigger();
    EXPECT_EQ(opened, directory / "R&D.nocturo");
    recent.actions()[2]->trigger();
    EXPECT_THAT(documents.paths(), IsEmpty());
}

TEST(Guide, ShowsItsPicturesAndGoesWhereItRefersTo) {
    GuideWindow guide(QStringLiteral(NOCTURO_DOCS "/user-guide.md"));
    guide.showInFront();
    const QTextDocument& text = *guide.document();
    EXPECT_GT(text.size().height(), 3000);
    const QVariant picture = guide.loadResource(QTextDocument::ImageResource,
                                                QUrl(QStringLiteral("images/preferences.png")));
    EXPECT_EQ(picture.value<QImage>().width(), 760);
    const auto click = [&](const char* link) { Q_EMIT guide.anchorClicked(QUrl(link)); };
    click("#in-a-bar");
    EXPECT_EQ(guide.textCursor().block().text(), "In a bar");
    click("nowhere.md");
    click("limits.md#other-programs-that-change-the-colors");
    EXPECT_EQ(guide.source().fileName(), "limits.md");
    EXPECT_EQ(guide.textCursor().block().text(), "Other programs that change the colors");
}

TEST_F(SettingsFixture, TheEffectsMenuTicksThoseThatAreSelected) {
    Menu menu;
    const EffectsMenu effects(center_, menu, Menu::kNone);
    const auto tickedAfterPick = [&menu](std::size_t place) {
        menu.pick(menu.entries().at(place).id);
        std::string texts;
        for (const Menu::Entry& entry : menu.entries()) {
            texts += entry.item.isChecked ? entry.item.text + "." : "";
        }
        return texts;
    };
    EXPECT_EQ(tickedAfterPick(1), "Invert.");
    EXPECT_EQ(tickedAfterPick(3), "Invert.Dim or lighten.");
    EXPECT_EQ(tickedAfterPick(1), "Dim or lighten.");
}

TEST_F(RecentlyOpened, TheTrayListsThemWheneverItsMenuOpens) {
    Menu menu;
    std::string opened;
    const DocumentsMenu list(documents, menu, append(menu, "Open Recent"),
                             [&](const std::string& path) { opened = path; });
    EXPECT_FALSE(menu.entries().at(0).item.isVisible);
    documents.note(document("a_&_b.nocturo"));
    menu.changes().post(kMenuWillOpenNotification);
    EXPECT_TRUE(menu.entries().at(0).item.isVisible);
    EXPECT_EQ(menu.entries().at(1).item.text, "a_&&_b.nocturo");
    menu.pick(menu.entries().at(1).id);
    EXPECT_EQ(opened, directory / "a_&_b.nocturo");
}

TEST(Submenu, IsDrawnBelowItsItemAndFollowsIt) {
    Menu model;
    QMenu menu;
    const DrawnMenu drawn(model, menu);
    const Menu::Id looks = append(model, "Looks");
    append(model, "first", looks);
    const Menu::Id second = append(model, "second", looks);
    append(model, "below");
    ASSERT_EQ(menu.actions().size(), 2);
    const QMenu* submenu = menu.actions()[0]->menu();
    ASSERT_NE(submenu, nullptr);
    EXPECT_EQ(menu.actions()[1]->text(), "below");
    EXPECT_EQ(submenu->actions().value(1)->text(), "second");
    model.remove(second);
    EXPECT_EQ(submenu->actions().size(), 1);
}

struct ScreenOptionMenu : DisplayServicesFixture {
    ScreenOptionMenu() {
        hardware_.addUpTo(3);
        start();
        append(model, "above");
        append(model, "below");
    }

    void make(bool separator = false, bool hideSingular = false) {
        title = append(model, "", Menu::kNone, false);
        manager.emplace(*store_, center_, model, model.entries().front().id, title, separator,
                        hideSingular, 0);
    }
    std::int64_t number(std::size_t index) { return id(index); }
    void removeDisplay(const char* name) {
        hardware_.remove(name);
        center_.post(NSApplicationDidChangeScreenParametersNotification);
    }
    /// The menu's texts with checked ones in brackets, separators as a line.
    std::string shown() const {
        QStringList texts;
        for (const QAction* item : menu.actions()) {
            if (item->isVisible()) {
                texts << (item->isSeparator() ? "-"
                          : item->isChecked() ? "[" + item->text() + "]"
                                              : item->text());
            }
        }
        return texts.join(" ").toStdString();
    }
    QAction* item(qsizetype index) const { return menu.actions().at(index); }
    void click(qsizetype index) {
        const QPoint place = menu.actionGeometry(item(index)).center();
        QTest::mouseMove(&menu, place + QPoint(0, 100)); // Qt ignores clicks of a still pointer
        menu.popup({});
        QTest::mouseClick(&menu, Qt::LeftButton, {}, place);
    }

    Menu model;
    QMenu menu;
    DrawnMenu drawn{model, menu};
    Menu::Id title = Menu::kNone;
    std::optional<NDScreenOptionMenuManager> manager;
};

TEST_F(ScreenOptionMenu, FollowsTheSetAndSumsItUp) {
    make();
    for (const auto& [set, run, summary] :
         {std::tuple(PropertyArray{number(1)}, "All Screens Screen 1 [Screen 2] Screen 3",
                     "Screen 2"),
          std::tuple(PropertyArray{number(2), 7LL, number(0)},
                     "All Screens [Screen 1] Screen 2 [Screen 3]", "Screen 1, 3"),
          std::tuple(PropertyArray{7LL}, "All Screens Screen 1 Screen 2 Screen 3", "None"),
          std::tuple(PropertyArray{}, "[All Screens] Screen 1 Screen 2 Screen 3", "All Screens")}) {
        store_->setObject(set, "AffectedScreenSet");
        EXPECT_EQ(shown(), std::string("above ") + run + " below");
        EXPECT_EQ(model.item(title)->text, summary);
    }
    EXPECT_EQ(item(3)->toolTip(), "D2");
}

TEST_F(ScreenOptionMenu, FollowsTheArrangement) {
    make();
    store_->setObject(PropertyArray{number(2)}, "AffectedScreenSet");
    removeDisplay("D1");
    EXPECT_EQ(shown(), "above All Screens Screen 1 [Screen 2] below");
    EXPECT_EQ(item(3)->toolTip(), "D3");
    hardware_.addUpTo(12);
    removeDisplay("D2");
    EXPECT_EQ(menu.actions().size(), 2 + 1 + 10 + 1); // an eleventh display is not offered
    hardware_.lists = false;
    removeDisplay("D3");
    EXPECT_EQ(shown(), "above All Screens below");
    EXPECT_EQ(model.item(title)->text, "None");
}

TEST_F(ScreenOptionMenu, NamesMonitorsThatAreThereAndThatWere) {
    auto& edid = hardware_.heads[1].edid = {0, 255, 255, 255, 255, 255, 255, 0};
    edid.resize(128);
    const std::string_view descriptor("\0\0\0\xFC\0R&D 27\n", 12);
    std::copy(descriptor.begin(), descriptor.end(), edid.begin() + 54);
    ++hardware_.generation;
    make();
    store_->setObject(PropertyArray{number(1)}, "AffectedScreenSet");
    EXPECT_EQ(shown(), "above All Screens Screen 1 [Screen 2 \u2013 R&&D 27] Screen 3 below");
    removeDisplay("D2");
    EXPECT_EQ(shown(), "above All Screens Screen 1 Screen 2 [R&&D 27, not connected] below");
    click(4);
    EXPECT_EQ(shown(), "above [All Screens] Screen 1 Screen 2 below");
}

TEST_F(ScreenOptionMenu, HidesTheRunOfASingleDisplayAlsoWhileThatIsPicked) {
    make(true, true);
    removeDisplay("D1");
    EXPECT_EQ(shown(), "above [All Screens] - Screen 1 Screen 2 below");
    QObject::connect(item(3), &QAction::triggered, &menu, [&] { removeDisplay("D2"); });
    click(3);
    EXPECT_EQ(shown(), "above below");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(menu.findChildren<QAction*>("", Qt::FindDirectChildrenOnly).size(), 4); // menuAction
}

TEST_F(ScreenOptionMenu, PicksToggleAndAllScreensResets) {
    make();
    store_->setInteger(number(2), "AffectedScreens"); // as the older key alone says it
    EXPECT_EQ(shown(), "above All Screens Screen 1 Screen 2 [Screen 3] below");
    for (const auto& [index, run, last] :
         {std::tuple(2, "All Screens [Screen 1] Screen 2 [Screen 3]", number(0)),
          std::tuple(4, "All Screens [Screen 1] Screen 2 Screen 3", number(2)),
          std::tuple(2, "[All Screens] Screen 1 Screen 2 Screen 3", number(0)),
          std::tuple(3, "All Screens Screen 1 [Screen 2] Screen 3", number(1)),
          std::tuple(1, "[All Screens] Screen 1 Screen 2 Screen 3", std::int64_t{0}),
          std::tuple(1, "[All Screens] Screen 1 Screen 2 Screen 3", std::int64_t{0})}) {
        click(index);
        EXPECT_EQ(shown(), std::string("above ") + run + " below");
        EXPECT_EQ(store_->integerForKey("AffectedScreens"), last);
    }
    manager.reset();
    click(2); // its items outlive it and do nothing
    EXPECT_EQ(store_->integerForKey("AffectedScreens"), 0);
}

/// The part of the pixels of two gray images that are clearly told apart.
double difference(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 64 ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (one.width() * one.height());
}

TEST(StatusImages, AreSeenOnPanelsOfUnknownColor) {
    for (const int side : {16, 22, 24, 48}) {
        for (const int shade : {0, 0x36, 0x80, 0xff}) {
            QImage ground(side, side, QImage::Format_Grayscale8);
            ground.fill(QColor(shade, shade, shade));
            const auto drawn = [&](std::string_view name) {
                QImage image = ground;
                QPainter painter(&image);
                statusIcon(name, QColor()).paint(&painter, image.rect());
                return image;
            };
            const QImage off = drawn(kStatusTemplate);
            const QImage on = drawn(kStatusActiveTemplate);
            const double least =
                std::min({difference(off, ground), difference(on, ground), difference(on, off)});
            EXPECT_GT(least, 0.15) << side << " on " << shade;
        }
    }
}

TEST(TaskbarPresence, HidesWindowsThatNoTaskBarBringsBack) {
    QWidget window;
    window.show();
    TaskbarPresence presence;
    presence.setHidden(true);
    window.setWindowState(Qt::WindowMinimized);
    EXPECT_FALSE(window.isVisible());
    window.showNormal();
    presence.setHidden(false);
    window.setWindowState(Qt::WindowMinimized);
    EXPECT_TRUE(window.isVisible());
}
