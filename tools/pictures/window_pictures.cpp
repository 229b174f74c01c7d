// Shows one window of Nocturo on the X server, in the looks asked for, and keeps what the server
// shows: window_pictures WINDOW FILE [dark] [rtl] [long] [tall | low]

#include "app/app_controller.h"
#include "app/app_menus.h"
#include "app/look_picker.h"
#include "automation/automation.h"
#include "automation/foreground.h"
#include "base/event_loop.h"
#include "base/notification_center.h"
#include "base/runtime_directory.h"
#include "base/texts/translated.h"
#include "base/texts/users_language.h"
#include "desktop/app_windows.h"
#include "desktop/menus/desktop_menus.h"
#include "desktop/qt/dark_palette.h"
#include "desktop/qt/qt_loop.h"
#include "desktop/qt/translations.h"
#include "desktop/test_card/test_card.h"
#include "displays/display_factory.h"
#include "displays/display_functions.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "documents/recent_documents.h"
#include "effects/color_filter_effect.h"
#include "effects/group_effect.h"
#include "session/autostart.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QScreen>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>
#include <QWindow>

#include <cstdio>

namespace {

using namespace nocturo;

/// Every text a third longer, as German and others are.
struct LongTexts : QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        const QString english = QString::fromUtf8(text);
        return english.size() < 4 ? english
                                  : english + QString(english.size() / 3 + 1, QLatin1Char('x'));
    }
};

/// Stands still, in an afternoon of spring.
struct StillClock : WallClock {
    Moment now() const override { return Moment(std::chrono::seconds(1'776'178'800)); }
    std::unique_ptr<Timer> wakeAt(Moment, std::function<void()>) override { return nullptr; }
};

struct GimpInFront : Foreground {
    bool isTold() const override { return true; }
    const InFront& inFront() const override { return told; }
    void displaysDidChange() override {}
    InFront told{{"gimp-2.10"}};
};

void show(AppWindows& windows, const QString& window) {
    if (window == QLatin1String("about")) {
        windows.showAboutBox();
        return;
    }
    if (window == QLatin1String("status-menu")) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String("statusMenu")) {
                static_cast<QMenu*>(top)->popup(QPoint(20, 20));
            }
        }
        return;
    }
    windows.showPreferences();
    const auto press = [](const char* name) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (auto* button = top->findChild<QAbstractButton*>(QString::fromLatin1(name))) {
                QTimer::singleShot(0, button, [button] { button->click(); });
            }
        }
    };
    if (window == QLatin1String("keep")) {
        NDColorFilterEffect::setVividness(1);
        NDEffect::userDefaults().setFloat(-1, "NDDimEffectLevel");
        press("dimScreen");
    } else if (window == QLatin1String("no-effect")) {
        press("dimScreen");
        press("closeButton");
    } else if (window == QLatin1String("save")) {
        press("saveButton");
    } else if (window == QLatin1String("screens")) {
        press("affectedScreens");
    } else if (window == QLatin1String("switching")) {
        windows.shownPreferences()->findChild<QTabWidget*>()->setCurrentIndex(1);
    } else if (window == QLatin1String("schedule")) {
        windows.shownPreferences()->findChild<QTabWidget*>()->setCurrentIndex(2);
    } else if (window == QLatin1String("rules")) {
        windows.shownPreferences()->findChild<QTabWidget*>()->setCurrentIndex(3);
    } else if (window == QLatin1String("curves")) {
        press("showCurves");
    }
}

int run(const QStringList& arguments) {
    auto& defaults = *DefaultsStore::standardUserDefaults();
    NotificationCenter workspace;
    NotificationCenter distributed;
    const NotificationCenters centers{NotificationCenter::defaultCenter(), workspace, distributed};
    EventLoop runLoop;
    const QtLoop qtLoop(runLoop);
    NDAppController controller(defaults, centers, runLoop);
    StillClock clock;
    Looks looks(QCoreApplication::applicationDirPath().toStdString() + "/looks", "", centers.local);
    Automation automation(defaults, centers.local, clock, runLoop, looks, *runtimeDirectory());
    controller.setAutomation(&automation);
    ChosenLook chosenLook(looks);
    LookPicker lookPicker(controller, chosenLook);
    AppWindows windows(controller, defaults, centers, lookPicker, {});
    const Autostart autostart(*runtimeDirectory() / "autostart", {}, "nocturo");
    windows.autostart = &autostart;
    controller.setUserInterface(&windows);
    DisplaySurroundings around;
    around.runtimeDirectory = *runtimeDirectory();
    around.drawPicture = writeTestCard;
    const auto displays = openDisplays(*parseDisplayChoice("simulated:2"), around, runLoop);
    setDisplayServices(displays->services.get());
    NDGroupEffect::effect();
    if (arguments[1] == QLatin1String("preferences")) {
        NDGroupEffect::effect().addEffect("NDInvertEffect");
        NDGroupEffect::effect().addEffect("NDColorFilterEffect");
        NDColorFilterEffect::setHue(35);
        NDColorFilterEffect::setVividness(0.4F);
    }
    // An effect there is always, or its absence would be asked about first.
    if (arguments[1] == QLatin1String("keep")) {
        NDGroupEffect::effect().addEffect("NDHDTVLuminanceEffect");
    } else {
        NDGroupEffect::effect().addEffect("NDDimEffect");
    }
    const RecentDocuments recentDocuments(*runtimeDirectory() / "recent.plist");
    AppMenus appMenus(controller, defaults, centers.local, lookPicker, recentDocuments, {});
    DesktopMenus menus(controller, windows, recentDocuments, appMenus, nullptr);
    if (arguments[1] == QLatin1String("schedule")) {
        defaults.setObject(std::string("52.52 13.4"), kPlace);
        defaults.setObject(
            PropertyArray{"sunset-00:30 Warm evening", "23:00 Night reading", "07:30 off"},
            kSchedule);
        defaults.setBool(true, kUseSchedule);
    }
    if (arguments[1] == QLatin1String("rules")) {
        defaults.setObject(
            PropertyArray{"fullscreen off", "program gimp-2.10 Just dimmer", "game Night reading"},
            kRules);
    }
    automation.start();
    controller.applicationDidFinishLaunching();
    automation.rules().setSources(
        {[](bool, const std::function<void()>&) { return std::make_unique<GimpInFront>(); }, {}});
    appMenus.setActivateItemTitles(controller.effectActive());
    appMenus.makeScreenMenus();
    show(windows, arguments[1]);
    if (QWidget* shown = windows.shownPreferences();
        shown != nullptr && arguments.contains(QLatin1String("tall"))) {
        shown->resize(shown->width(), 2 * shown->width());
    } else if (shown != nullptr && arguments.contains(QLatin1String("low"))) {
        shown->resize(640, 333); // 960 x 500 with text at 150 %
    }
    if (arguments[1] == QLatin1String("keep")) {
        QTimer::singleShot(100, [&] { menus.askToKeepColors(8, [](bool) {}); });
    }
    QTimer::singleShot(1000, [&] {
        QRect area;
        for (const QWindow* window : QGuiApplication::topLevelWindows()) {
            area |= window->isVisible() ? window->frameGeometry() : QRect();
        }
        area = area.marginsAdded({12, 12, 12, 12}) & QGuiApplication::primaryScreen()->geometry();
        const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(
            0, area.x(), area.y(), area.width(), area.height());
        QApplication::exit(picture.save(arguments[2]) ? 0 : 1);
    });
    const int result = runLoop.run();
    controller.applicationWillTerminate();
    setDisplayServices(nullptr);
    return result;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    setLanguageOfTexts(usersLanguage());
    installTranslations(*QCoreApplication::instance());
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("Usage: window_pictures WINDOW FILE [dark] [rtl] [long] [tall | low]\n", stderr);
        return 2;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (arguments.contains(QStringLiteral("dark"))) {
        QApplication::setPalette(darkPalette());
    }
    if (arguments.contains(QStringLiteral("rtl"))) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
    LongTexts texts;
    if (arguments.contains(QStringLiteral("long"))) {
        QApplication::installTranslator(&texts);
    }
    return run(arguments);
}
