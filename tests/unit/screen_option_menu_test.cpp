#include "preferences/menus/screen_option_menu_manager.h"

#include "fake_gamma_hardware.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/ramp_display_services.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/settings/defaults_store.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <optional>

namespace nocturo {
namespace {

class ScreenOptionMenu : public testing::Test {
  protected:
    ScreenOptionMenu() {
        for (std::uint32_t crtc = 1; crtc <= 3; ++crtc) {
            hardware.add("D" + std::to_string(crtc), crtc);
        }
        setDisplayServices(&services);
        menu.addAction("before");
        after = menu.addAction("activate");
        menu.addAction("below");
    }
    ~ScreenOptionMenu() override { setDisplayServices(nullptr); }

    void make(bool separator = false, bool hideSingular = false, int indent = 0) {
        manager.emplace(store, center, menu, after, &title, separator, hideSingular, indent);
    }
    std::int64_t id(std::size_t index) { return services.onlineDisplays()->at(index).id; }
    void setAffected(PropertyArray set) { store.setObject(std::move(set), "AffectedScreenSet"); }
    void removeDisplay(const char* name) {
        hardware.remove(name);
        center.post(NSApplicationDidChangeScreenParametersNotification);
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

    FakeGammaHardwareState hardware;
    RampDisplayServices services{std::make_unique<FakeGammaHardware>(hardware)};
    NotificationCenter center;
    DefaultsStore store{center};
    QMenu menu;
    QAction title;
    QAction* after = nullptr;
    std::optional<NDScreenOptionMenuManager> manager;
};

TEST_F(ScreenOptionMenu, FollowsTheSetAndSumsItUp) {
    make();
    EXPECT_EQ(shown(), "before activate [All Screens] Screen 1 Screen 2 Screen 3 below");
    EXPECT_EQ(title.text(), "All Screens");
    for (const auto& [set, run, summary] :
         {std::tuple(PropertyArray{id(1)}, "All Screens Screen 1 [Screen 2] Screen 3", "Screen 2"),
          std::tuple(PropertyArray{id(2), 7LL, id(0)}, "All Screens [Screen 1] Screen 2 [Screen 3]",
                     "Screen 1, 3"),
          std::tuple(PropertyArray{7LL}, "All Screens Screen 1 Screen 2 Screen 3", "None"),
          std::tuple(PropertyArray{}, "[All Screens] Screen 1 Screen 2 Screen 3", "All Screens")}) {
        setAffected(set);
        EXPECT_EQ(shown(), std::string("before activate ") + run + " below");
        EXPECT_EQ(title.text(), summary);
    }
    EXPECT_EQ(item(4)->toolTip(), "D2");
    EXPECT_EQ(item(4)->data().toInt(), id(1));
}

TEST_F(ScreenOptionMenu, FollowsTheArrangement) {
    make(true);
    setAffected({id(2)});
    removeDisplay("D1");
    EXPECT_EQ(shown(), "before activate All Screens - Screen 1 [Screen 2] below");
    EXPECT_EQ(item(5)->toolTip(), "D3");
    hardware.lists = false;
    ++hardware.generation;
    center.post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(shown(), "before activate All Screens - below");
    EXPECT_EQ(title.text(), "None");
    hardware.lists = true;
    for (std::uint32_t crtc = 4; crtc <= 13; ++crtc) {
        hardware.add("D" + std::to_string(crtc), crtc);
    }
    center.post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(menu.actions().size(), 3 + 2 + 10); // an eleventh display is not offered
}

TEST_F(ScreenOptionMenu, HidesTheRunOfASingleDisplay) {
    make(true, true);
    removeDisplay("D1");
    EXPECT_EQ(shown(), "before activate [All Screens] - Screen 1 Screen 2 below");
    removeDisplay("D2");
    EXPECT_EQ(shown(), "before activate below");
    EXPECT_EQ(title.text(), "All Screens");
    hardware.add("D4", 4);
    setAffected({id(0)});
    EXPECT_EQ(shown(), "before activate All Screens - [Screen 1] Screen 2 below");
}

TEST_F(ScreenOptionMenu, StartsAtTheTopAndIndents) {
    after = nullptr;
    make(false, false, 1);
    EXPECT_EQ(shown(), "[\u2003\u2003All Screens] \u2003\u2003Screen 1 \u2003\u2003Screen 2 "
                       "\u2003\u2003Screen 3 before activate below");
    EXPECT_EQ(title.text(), "All Screens"); // the button that shows it is not indented
}

TEST_F(ScreenOptionMenu, PicksToggleAndAllScreensResets) {
    make();
    store.setInteger(id(2), "AffectedScreens"); // as the older key alone says it
    EXPECT_EQ(shown(), "before activate All Screens Screen 1 Screen 2 [Screen 3] below");
    PropertyArray both{id(0), id(2)};
    if (id(2) < id(0)) {
        std::swap(both[0], both[1]);
    }
    for (const auto& [index, set, last] :
         {std::tuple(3, both, id(0)), std::tuple(5, PropertyArray{id(0)}, id(2)),
          std::tuple(3, PropertyArray{}, id(0)), std::tuple(4, PropertyArray{id(1)}, id(1)),
          std::tuple(2, PropertyArray{}, std::int64_t{0}),
          std::tuple(2, PropertyArray{}, std::int64_t{0})}) {
        click(index);
        EXPECT_EQ(*store.arrayForKey("AffectedScreenSet"), set);
        EXPECT_EQ(store.integerForKey("AffectedScreens"), last);
        EXPECT_EQ(item(index)->isChecked(), index == 2 || set.size() == 2 || index == 4);
    }
    EXPECT_EQ(shown(), "before activate [All Screens] Screen 1 Screen 2 Screen 3 below");
}

TEST_F(ScreenOptionMenu, AnItemMayGoWhileItIsPicked) {
    make(false, true);
    QObject::connect(item(3), &QAction::triggered, &menu, [&] { removeDisplay("D3"); });
    QObject::connect(item(3), &QAction::triggered, &menu, [&] { removeDisplay("D2"); });
    click(3);
    EXPECT_EQ(shown(), "before activate below");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(menu.findChildren<QAction*>("", Qt::FindDirectChildrenOnly).size(), 4); // menuAction
}

TEST_F(ScreenOptionMenu, AnOpenMenuStaysCalm) {
    make(true);
    menu.popup({});
    menu.setActiveAction(item(5));
    QSignalSpy changed(item(5), &QAction::changed);
    store.setFloat(0.5F, "NDDimAmount");
    EXPECT_EQ(changed.count(), 0);
    setAffected({id(1)});
    EXPECT_TRUE(item(5)->isChecked());
    EXPECT_EQ(menu.activeAction(), item(5));
}

TEST_F(ScreenOptionMenu, ItsItemsOutliveItAndDoNothing) {
    make();
    manager.reset();
    click(3);
    setAffected({id(1)});
    EXPECT_EQ(store.objectForKey("AffectedScreens"), nullptr);
    EXPECT_EQ(menu.actions().size(), 7);

    make(); // the former run stays, below the new one
    menu.clear();
    setAffected({});
    EXPECT_EQ(shown(), "[All Screens] Screen 1 Screen 2 Screen 3");
}

} // namespace
} // namespace nocturo
