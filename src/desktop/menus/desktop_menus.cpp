#include "desktop/menus/desktop_menus.h"

#include "app/app_controller.h"
#include "app/app_menus.h"
#include "bus/launcher_menu.h"
#include "desktop/app_windows.h"
#include "desktop/menus/alert_box.h"
#include "desktop/menus/drawn_menu.h"
#include "desktop/menus/taskbar_presence.h"
#include "desktop/qt/localized.h"
#include "documents/effect_document_file.h"
#include "documents/recent_documents.h"

#include <QCoreApplication>
#include <QMenu>

#include <optional>

namespace nocturo {

struct DesktopMenus::Menus {
    Menus(NDAppController& controller, DefaultsStore& defaults, NotificationCenter& localCenter,
          const StatusItem::Surroundings& surroundings, const RecentDocuments& documents,
          const MainMenu::Handlers& handlers)
        : menus(controller, defaults, localCenter, [] { QCoreApplication::quit(); }),
          mainMenu(menus.effectMenu(), documents, handlers),
          drawnStatusMenu(menus.statusMenu(), statusMenu),
          statusItem(statusMenu, surroundings, [&controller] { controller.activateEffect(); }) {
        statusMenu.setObjectName(QStringLiteral("statusMenu"));
        if (surroundings.bus) {
            launcherMenu.emplace(*surroundings.bus);
            drawnDockMenu.emplace(menus.dockMenu(), launcherMenu->menu());
        }
    }

    AppMenus menus;
    MainMenu mainMenu;
    std::optional<LauncherMenu> launcherMenu; // where there is a bus
    std::optional<DrawnMenu> drawnDockMenu;
    QMenu statusMenu;
    DrawnMenu drawnStatusMenu;
    StatusItem statusItem;
    TaskbarPresence taskbarPresence;
};

DesktopMenus::DesktopMenus(NDAppController& controller, DefaultsStore& defaults,
                           NotificationCenter& localCenter, AppWindows& windows,
                           const RecentDocuments& recentDocuments,
                           StatusItem::Surroundings surroundings)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter), windows_(windows),
      recentDocuments_(recentDocuments), surroundings_(std::move(surroundings)) {
    windows_.documentWasUsed = [this](const QString& path) {
        recentDocuments_.note(path.toStdString());
    };
}

DesktopMenus::~DesktopMenus() {
    windows_.documentWasUsed = nullptr;
}

DesktopMenus::Menus& DesktopMenus::menus() {
    if (menus_ == nullptr) {
        menus_ = std::make_unique<Menus>(controller_, defaults_, localCenter_, surroundings_,
                                         recentDocuments_, mainMenuHandlers());
        menus_->statusItem.waitingDidChange = [this] { updateStatusItemNotice(); };
        windows_.setMenuBar(menus_->mainMenu.bar());
    }
    return *menus_;
}

MainMenu::Handlers DesktopMenus::mainMenuHandlers() {
    return {[this] { windows_.askForDocument(); },
            [this](const QString& path) {
                windows_.loadPreferences();
                controller_.openFile(path.toStdString());
            },
            [this] { windows_.askWhereToSave(); },
            [this] { windows_.closePreferences(); },
            [this] { controller_.openPreferences(); },
            [this] { controller_.openAboutBox(); }};
}

void DesktopMenus::updateStatusItemNotice() {
    const bool waiting = menus().statusItem.isWaitingForTray();
    windows_.setNotice(waiting ? localized("This desktop shows no tray at the moment; Nocturo can "
                                           "be reached through the applications menu.")
                               : QString());
}

void DesktopMenus::showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered) {
    auto box = shownAlert(alert, [this, answered](AlertAnswer answer) {
        alert_.release()->deleteLater(); // the answer may bring the next one
        answered(answer);
    });
    if (box == nullptr) {
        answered(AlertAnswer::unseen);
        return;
    }
    alert_ = std::move(box);
}

void DesktopMenus::showRefusedDocuments(const std::vector<std::string>& paths) {
    QStringList sentences;
    for (const std::string& path : paths) {
        sentences.append(filled(localized("“%@” is not an effect document."),
                                {QString::fromStdString(documentDisplayName(path))}));
    }
    refusal_ = shownMessage(localized("Opening failed"), sentences.join(u'\n'));
}

void DesktopMenus::setActivateItemTitles(bool active) {
    menus().menus.setActivateItemTitles(active);
}

void DesktopMenus::setStatusItemShown(bool shown) {
    menus().taskbarPresence.setHidden(shown);
    menus().statusItem.setShown(shown);
}

void DesktopMenus::setStatusItemImage(bool active) {
    menus().statusItem.setActive(active);
}

void DesktopMenus::makeScreenMenus() {
    menus().menus.makeScreenMenus();
    if (menus().launcherMenu) {
        menus().launcherMenu->offer();
    }
}

} // namespace nocturo
