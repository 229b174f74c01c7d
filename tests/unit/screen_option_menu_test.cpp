#include "preferences/menus/screen_option_menu_manager.h"

#include "display_services_fixture.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/settings/defaults_store.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

#include <optional>

namespace nocturo {
namespace {

class ScreenOptionMenu : public DisplayServicesFixture {
  protected:
    ScreenOptionMenu() {
        for (std::uint32_t crtc = 1; crtc <= 3; ++crtc) {
            hardware_.add("D" + std::to_string(crtc), crtc);
        }
        start();
        after = menu.addAction("above");
        menu.addAction("below");
    }

    void make(bool separator = false, bool hideSingular = false, int indent = 0) {
        manager.emplace(store, center, menu, after, &title, separator, hideSingular, indent);
    }
    std::int64_t number(std::size_t index) { return id(index); }
    void setAffected(PropertyArray set) { store.setObject(std::move(set), "AffectedScreenSet"); }
    void tellOfDisplays() { center.post(NSApplicationDidChangeScreenParametersNotification); }
    void removeDisplay(const char* name) {
        hardware_.remove(name);
        tellOfDisplays();
    }
    /// The menu's texts with checked ones in brackets, separators as a line.
    std::string shown() const {
        QStringList texts;
        for (const QAction* item : menu.actions()) {
            texts << (item->isSeparator() ? "-"
                      : item->isChecked() ? "[" + item->text() + "]"
                                          : item->text());
        }
        return texts.join(" ").toStdString();
    }
    QAction* item(qsizetype index) const { return menu.actions().at(index); }
    void click(qsizetype index) {
        menu.popup({});
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(item(index)).center());
    }

    NotificationCenter center;
    DefaultsStore store{center};
    QMenu menu;
    QAction title;
    QAction* after = nullptr;
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
        setAffected(set);
        EXPECT_EQ(shown(), std::string("above ") + run + " below");
        EXPECT_EQ(title.text(), summary);
    }
    EXPECT_EQ(item(3)->toolTip(), "D2");
}

TEST_F(ScreenOptionMenu, FollowsTheArrangement) {
    make(true);
    setAffected({number(2)});
    removeDisplay("D1");
    EXPECT_EQ(shown(), "above All Screens - Screen 1 [Screen 2] below");
    EXPECT_EQ(item(4)->toolTip(), "D3");
    hardware_.lists = false;
    ++hardware_.generation;
    tellOfDisplays();
    EXPECT_EQ(shown(), "above All Screens - below");
    EXPECT_EQ(title.text(), "None");
    hardware_.lists = true;
    for (std::uint32_t crtc = 4; crtc <= 13; ++crtc) {
        hardware_.add("D" + std::to_string(crtc), crtc);
    }
    tellOfDisplays();
    EXPECT_EQ(menu.actions().size(), 2 + 2 + 10); // an eleventh display is not offered
}

TEST_F(ScreenOptionMenu, HidesTheRunOfASingleDisplayAlsoWhileThatIsPicked) {
    make(true, true);
    removeDisplay("D1");
    EXPECT_EQ(shown(), "above [All Screens] - Screen 1 Screen 2 below");
    QObject::connect(item(3), &QAction::triggered, &menu, [&] { removeDisplay("D2"); });
    click(3);
    EXPECT_EQ(shown(), "above below");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(menu.findChildren<QAction*>("", Qt::FindDirectChildrenOnly).size(), 3); // menuAction
    hardware_.add("D4", 4);
    setAffected({number(0)});
    EXPECT_EQ(shown(), "above All Screens - [Screen 1] Screen 2 below");
}

TEST_F(ScreenOptionMenu, StartsAtTheTopAndIndents) {
    after = nullptr;
    make(false, false, 1);
    EXPECT_EQ(shown(), "[\u2003\u2003All Screens] \u2003\u2003Screen 1 \u2003\u2003Screen 2 "
                       "\u2003\u2003Screen 3 above below");
    EXPECT_EQ(title.text(), "All Screens"); // the button that shows it is not indented
}

TEST_F(ScreenOptionMenu, PicksToggleAndAllScreensResets) {
    make();
    store.setInteger(number(2), "AffectedScreens"); // as the older key alone says it
    EXPECT_EQ(shown(), "above All Screens Screen 1 Screen 2 [Screen 3] below");
    PropertyArray both{std::min(number(0), number(2)), std::max(number(0), number(2))};
    for (const auto& [index, set, last] :
         {std::tuple(2, both, number(0)), std::tuple(4, PropertyArray{number(0)}, number(2)),
          std::tuple(2, PropertyArray{}, number(0)),
          std::tuple(3, PropertyArray{number(1)}, number(1)),
          std::tuple(1, PropertyArray{}, std::int64_t{0})}) {
        click(index);
        EXPECT_EQ(*store.arrayForKey("AffectedScreenSet"), set);
        EXPECT_EQ(store.integerForKey("AffectedScreens"), last);
    }
    EXPECT_EQ(shown(), "above [All Screens] Screen 1 Screen 2 Screen 3 below");
    click(1); // picked again it stays checked
    EXPECT_TRUE(item(1)->isChecked());
}

TEST_F(ScreenOptionMenu, ItsItemsOutliveItAndDoNothing) {
    make();
    manager.reset();
    click(2);
    EXPECT_EQ(store.objectForKey("AffectedScreens"), nullptr);
    menu.clear();
    make();
    EXPECT_EQ(shown(), "[All Screens] Screen 1 Screen 2 Screen 3");
}

} // namespace
} // namespace nocturo
