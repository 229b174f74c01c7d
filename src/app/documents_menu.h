#pragma once

#include "app/menu.h"

#include <functional>
#include <string>
#include <vector>

namespace nocturo {

class RecentDocuments;

/// Keeps the documents that were opened last in a menu. They are looked at when the menu is about
/// to be shown. Main thread only.
class DocumentsMenu {
  public:
    /// They are the submenu of `title`, which is hidden where there are none; for kNone, what comes
    /// first in the menu itself. All must outlive this.
    DocumentsMenu(const RecentDocuments& documents, Menu& menu, Menu::Id title,
                  std::function<void(const std::string& path)> open);
    ~DocumentsMenu();
    DocumentsMenu(const DocumentsMenu&) = delete;
    DocumentsMenu& operator=(const DocumentsMenu&) = delete;

  private:
    void list();

    const RecentDocuments& documents_;
    Menu& menu_;
    const std::function<void(const std::string& path)> open_;
    const Menu::Id title_;
    std::vector<Menu::Id> items_;
};

} // namespace nocturo
