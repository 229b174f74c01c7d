#include "desktop/menus/desktop_menus.h"

#include "app/app_controller.h"
#include "app/app_menus.h"
#include "app/listed_names.h"
#include "desktop/app_windows.h"
#include "desktop/menus/alert_box.h"
#include "desktop/qt/localized.h"
#include "documents/effect_document_file.h"
#include "documents/recent_documents.h"

#include <QCursor>
#include <QGuiApplication>

#include <utility>

namespace nocturo {

DesktopMenus::DesktopMenus(NDAppController& controller, AppWindows& windows,
                           const RecentDocuments& recentDocuments, AppMenus& menus,
                           XConnection* server)
    : controller_(controller), windows_(windows), recentDocuments_(recentDocuments),
      mainMenu_(menus.effectMenu(), recentDocuments, mainMenuHandlers()),
      drawnStatusMenu_(menus.statusMenu(), statusMenu_),
      statusItem_(statusMenu_, server, [&controller] { controller.activateEffect(); }) {
    statusMenu_.setObjectName(QStringLiteral("statusMenu"));
    statusItem_.waitingDidChange = [this] { updateStatusItemNotice(); };
    windows_.setMenuBar(mainMenu_.bar());
    windows_.documentWasUsed = [this](const QString& path) {
        recentDocuments_.note(path.toStdString());
    };
    windows_.documentFolder = [this] { return recentDocuments_.folder(); };
}

DesktopMenus::~DesktopMenus() {
    windows_.documentWasUsed = nullptr;
    windows_.documentFolder = nullptr;
}

MainMenu::Handlers DesktopMenus::mainMenuHandlers() {
    return {[this] { windows_.askForDocument(); },
            [this](const std::string& path) {
                windows_.loadPreferences();
                controller_.openFile(path);
            },
            [this] { windows_.askWhereToSave(); },
            [this] { windows_.closePreferences(); },
            [this] { controller_.openPreferences(); },
            [this] { controller_.openAboutBox(); },
            windows_.hasGuide() ? [this] { windows_.showGuide(); } : std::function<void()>()};
}

void DesktopMenus::updateStatusItemNotice() {
    const bool waiting = statusItem_.isWaitingForTray();
    windows_.setNotice(waiting ? localized("This desktop shows no tray at the moment; Nocturo can "
                                           "be reached through the applications menu.")
                               : QString());
}

void DesktopMenus::popUpStatusMenu(int x, int y) {
    // Some panels tell a place as seen from their own window. The click was at the pointer, which
    // Wayland keeps to itself.
    const bool isPointerKnown = QGuiApplication::platformName() == QStringLiteral("xcb");
    statusMenu_.popup(isPointerKnown ? QCursor::pos() : QPoint(x, y));
}

void DesktopMenus::showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered) {
    const auto toTell =
        std::make_shared<std::function<void(AlertAnswer answer)>>(std::move(answered));
    if (alert.overPreferences) {
        windows_.showPreferences();
    }
    QWidget* window = alert.overPreferences ? windows_.shownPreferences() : nullptr;
    auto box = shownAlert(window, alert, [this, toTell, window](AlertAnswer answer) {
        alert_.release()->deleteLater(); // the answer may bring the next one
        if (window != nullptr) {
            windows_.offerLooks();
        }
        (*toTell)(answer);
    });
    if (box == nullptr) {
        (*toTell)(AlertAnswer::unseen);
        return;
    }
    alert_ = std::move(box);
}

void DesktopMenus::askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered) {
    keepColorsBox_.show(windows_.shownPreferences(), secondsLeft, std::move(answered));
}

void DesktopMenus::showRefusedDocuments(const std::vector<std::string>& paths) {
    QStringList sentences;
    for (const std::string& path : firstNames(paths)) {
        sentences.append(filled(localized("“%@” is not an effect document."),
                                {QString::fromStdString(documentDisplayName(path))}));
    }
    if (const std::string more = howManyMore(paths); !more.empty()) {
        sentences.append(QString::fromStdString(more));
    }
    refusal_ = shownMessage(localized("Opening failed"), sentences.join(u'\n'));
}

} // namespace nocturo
