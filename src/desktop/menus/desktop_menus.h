#pragma once

#include "app/desktop_face.h"
#include "desktop/menus/main_menu.h"
#include "desktop/menus/status_item.h"

#include <memory>
#include <string>
#include <vector>

class QMessageBox;

namespace nocturo {

class AppWindows;
class DefaultsStore;
class NDAppController;
class NotificationCenter;
class RecentDocuments;

/// The desktop's face of Qt. Everything is made when first needed, so that nothing of it delays the
/// first effect. Needs a QApplication.
class DesktopMenus : public DesktopFace {
  public:
    /// All must outlive the menus.
    DesktopMenus(NDAppController& controller, DefaultsStore& defaults,
                 NotificationCenter& localCenter, AppWindows& windows,
                 const RecentDocuments& recentDocuments, StatusItem::Surroundings surroundings);
    ~DesktopMenus() override;

    void showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered) override;
    void showRefusedDocuments(const std::vector<std::string>& paths) override;
    void setActivateItemTitles(bool active) override;
    void setStatusItemShown(bool shown) override;
    void setStatusItemImage(bool active) override;
    void makeScreenMenus() override;

  private:
    struct Menus;
    Menus& menus();
    MainMenu::Handlers mainMenuHandlers();
    void updateStatusItemNotice();

    NDAppController& controller_;
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    AppWindows& windows_;
    const RecentDocuments& recentDocuments_;
    StatusItem::Surroundings surroundings_;
    std::unique_ptr<Menus> menus_;
    std::unique_ptr<QMessageBox> alert_;   // while it is not answered
    std::unique_ptr<QMessageBox> refusal_; // the last one, which may have been closed
};

} // namespace nocturo
