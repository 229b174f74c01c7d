#include "desktop/menus/main_menu.h"

#include "desktop/qt/localized.h"
#include "documents/recent_documents.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace nocturo {

namespace {

QAction* add(QMenu& menu, const QString& title, const std::function<void()>& handler,
             const QKeySequence& keys = {}) {
    QAction* item = menu.addAction(title);
    item->setShortcut(keys);
    QObject::connect(item, &QAction::triggered, item, handler);
    return item;
}

// For what a button of the window has the keys of already: two owners would leave them with none,
// so the menu's count only while it has the focus.
void showKeys(QAction& item, const QKeySequence& keys) {
    item.setShortcut(keys);
    item.setShortcutContext(Qt::WidgetShortcut);
}

} // namespace

MainMenu::MainMenu(Menu& effectMenu, const RecentDocuments& documents, const Handlers& handlers)
    : bar_(new QMenuBar),
      recent_(documents, recentMenu_, Menu::kNone, handlers.openRecentDocument) {
    addFileMenu(documents, handlers);
    effectMenu_.emplace(effectMenu, *bar_->addMenu(localized("&Effect")));
    addHelpMenu(handlers);
}

MainMenu::~MainMenu() {
    delete bar_;
}

void MainMenu::addFileMenu(const RecentDocuments& documents, const Handlers& handlers) {
    QMenu& file = *bar_->addMenu(localized("&File"));
    showKeys(*add(file, localized("&Open..."), handlers.openDocument), QKeySequence::Open);
    QMenu* recent = file.addMenu(localized("Open &Recent"));
    QObject::connect(&file, &QMenu::aboutToShow, recent,
                     [recent, &documents] { recent->setEnabled(!documents.paths().empty()); });
    recentMenu_.append(MenuItem::separator());
    MenuItem clear;
    clear.text = localized("&Clear Menu").toStdString();
    clear.picked = [&documents] { documents.clear(); };
    recentMenu_.append(std::move(clear));
    drawnRecent_.emplace(recentMenu_, *recent);
    showKeys(*add(file, localized("&Save..."), handlers.saveDocument), QKeySequence::Save);
    file.addSeparator();
    add(file, localized("&Preferences..."), handlers.openPreferences,
        QKeySequence(Qt::CTRL | Qt::Key_Comma));
    file.addSeparator();
    showKeys(*add(file, localized("&Close"), handlers.closeWindow), QKeySequence::Close);
    add(
        file, localized("&Quit Nocturo"), [] { QCoreApplication::quit(); },
        QKeySequence(Qt::CTRL | Qt::Key_Q))
        ->setMenuRole(QAction::QuitRole);
}

void MainMenu::addHelpMenu(const Handlers& handlers) {
    QMenu& help = *bar_->addMenu(localized("&Help"));
    if (handlers.openGuide) {
        add(help, localized("User &Guide"), handlers.openGuide, QKeySequence::HelpContents);
        help.addSeparator();
    }
    add(help, localized("&About Nocturo"), handlers.openAboutBox)->setMenuRole(QAction::AboutRole);
}

} // namespace nocturo
