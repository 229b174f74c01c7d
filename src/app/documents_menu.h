#pragma once

#include "app/menu.h"

#include <functional>
#include <string>
#include <vector>

namespace nocturo {

class RecentDocuments;

/// Keeps the submenu "Open Recent" of a menu: the documents that were opened last, hidden where
/// there are none. It is looked at when the menu is about to be shown. Main thread only.
class DocumentsMenu {
  public:
    /// The item of the submenu stands right after `afterItem`. All must outlive this.
    DocumentsMenu(const RecentDocuments& documents, Menu& menu, Menu::Id afterItem,
                  std::function<void(const std::string& path)> open);
    ~DocumentsMenu();
    DocumentsMenu(const DocumentsMenu&) = delete;
    DocumentsMenu& operator=(const DocumentsMenu&) = delete;

  private:
    void list();

    const RecentDocuments& documents_;
    Menu& menu_;
    const std::function<void(const std::string& path)> open_;
    Menu::Id title_;
    std::vector<Menu::Id> items_;
};

} // namespace nocturo
