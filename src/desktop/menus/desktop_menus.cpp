#include "desktop/menus/desktop_menus.h"

#include "app/app_controller.h"
#include "bus/launcher_menu.h"
#include "desktop/app_windows.h"
#include "desktop/menus/alert_box.h"
#include "desktop/menus/screen_option_menu_manager.h"
#include "desktop/menus/taskbar_presence.h"
#include "desktop/qt/localized.h"
#include "documents/effect_document_file.h"
#include "documents/recent_documents.h"

#include <QCoreApplication>
#include <QMenu>

#include <array>
#include <optional>

namespace nocturo {

struct DesktopMenus::Menus {
    Menus(NDAppController& controller, const StatusItem::Surroundings& surroundings,
          const RecentDocuments& documents, const MainMenu::Handlers& handlers)
        : mainMenu(documents, handlers),
          statusItem(statusMenu, surroundings, [&controller] { controller.activateEffect(); }) {
        statusMenu.setObjectName(QStringLiteral("statusMenu"));
        statusActivateItem = fill(statusMenu, controller);
        if (surroundings.bus) {
            launcherMenu.emplace(*surroundings.bus);
            dockActivateItem = fill(launcherMenu->menu(), controller);
        }
    }

    /// The activate item.
    static QAction* fill(QMenu& menu, NDAppController& controller) {
        const auto add = [&menu](const QString& title, auto action) {
            QAction* item = menu.addAction(title);
            QObject::connect(item, &QAction::triggered, item, action);
            return item;
        };
        QAction* activateItem =
            add(localized("Activate Effect"), [&controller] { controller.activateEffect(); });
        menu.addSeparator();
        add(localized("Preferences..."), [&controller] { controller.openPreferences(); });
        add(localized("About Nocturo"), [&controller] { controller.openAboutBox(); });
        menu.addSeparator();
        add(localized("Quit Nocturo"), [] { QCoreApplication::quit(); });
        return activateItem;
    }

    MainMenu mainMenu;
    std::optional<LauncherMenu> launcherMenu; // where there is a bus
    QMenu statusMenu;
    QAction* dockActivateItem = nullptr;
    QAction* statusActivateItem = nullptr;
    std::optional<NDScreenOptionMenuManager> mainScreens;
    std::optional<NDScreenOptionMenuManager> launcherScreens;
    std::optional<NDScreenOptionMenuManager> statusScreens;
    StatusItem statusItem;
    TaskbarPresence taskbarPresence;
};

DesktopMenus::DesktopMenus(NDAppController& controller, DefaultsStore& defaults,
                           NotificationCenter& localCenter, AppWindows& windows,
                           const RecentDocuments& recentDocuments,
                           StatusItem::Surroundings surroundings)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter), windows_(windows),
      recentDocuments_(recentDocuments), surroundings_(std::move(surroundings)) {
    controller_.setDesktopFace(this);
    windows_.documentWasUsed = [this](const QString& path) {
        recentDocuments_.note(path.toStdString());
    };
}

DesktopMenus::~DesktopMenus() {
    controller_.setDesktopFace(nullptr);
    windows_.documentWasUsed = nullptr;
}

DesktopMenus::Menus& DesktopMenus::menus() {
    if (menus_ == nullptr) {
        menus_ = std::make_unique<Menus>(controller_, surroundings_, recentDocuments_,
                                         mainMenuHandlers());
        menus_->statusItem.waitingDidChange = [this] { updateStatusItemNotice(); };
        windows_.setMenuBar(menus_->mainMenu.bar());
    }
    return *menus_;
}

MainMenu::Handlers DesktopMenus::mainMenuHandlers() {
    return {[this] { controller_.activateEffect(); },
            [this] { windows_.askForDocument(); },
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
    Menus& all = menus();
    all.mainMenu.activateItem()->setText(
        localized(active ? "&Deactivate Effect" : "&Activate Effect"));
    const QString title = localized(active ? "Deactivate Effect" : "Activate Effect");
    for (QAction* item : {all.dockActivateItem, all.statusActivateItem}) {
        if (item != nullptr) {
            item->setText(title);
        }
    }
}

void DesktopMenus::setStatusItemShown(bool shown) {
    menus().taskbarPresence.setHidden(shown);
    menus().statusItem.setShown(shown);
}

void DesktopMenus::setStatusItemImage(bool active) {
    menus().statusItem.setActive(active);
}

void DesktopMenus::makeScreenMenus() {
    Menus& all = menus();
    const auto make = [this](auto& manager, QMenu& menu, QAction* activateItem, int indent) {
        manager.emplace(defaults_, localCenter_, menu, activateItem, nullptr, false, false, indent);
    };
    make(all.mainScreens, *all.mainMenu.effectMenu(), all.mainMenu.activateItem(), 0);
    if (all.launcherMenu) {
        make(all.launcherScreens, all.launcherMenu->menu(), all.dockActivateItem, 1);
        all.launcherMenu->offer();
    }
    make(all.statusScreens, all.statusMenu, all.statusActivateItem, 1);
}

} // namespace nocturo
