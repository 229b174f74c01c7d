#include "app/documents_menu.h"

#include "base/notification_center.h"
#include "documents/effect_document_file.h"
#include "documents/recent_documents.h"

#include <cstddef>
#include <utility>

namespace nocturo {

DocumentsMenu::DocumentsMenu(const RecentDocuments& documents, Menu& menu, Menu::Id title,
                             std::function<void(const std::string& path)> open)
    : documents_(documents), menu_(menu), open_(std::move(open)), title_(title) {
    list();
    menu_.changes().addObserver(this, kMenuWillOpenNotification, [this] { list(); });
}

DocumentsMenu::~DocumentsMenu() {
    menu_.changes().removeObserver(this);
}

void DocumentsMenu::list() {
    const std::vector<std::string> paths = documents_.paths();
    for (; items_.size() > paths.size(); items_.pop_back()) {
        menu_.remove(items_.back());
    }
    for (std::size_t place = 0; place < paths.size(); ++place) {
        MenuItem item;
        item.text = withoutMnemonic(documentDisplayName(paths[place]));
        item.toolTip = paths[place];
        item.under = title_;
        item.picked = [this, path = paths[place]] { open_(path); };
        if (place < items_.size()) {
            menu_.setItem(items_[place], std::move(item));
        } else {
            items_.push_back(
                menu_.insertAfter(place > 0 ? items_.back() : title_, std::move(item)));
        }
    }
    if (const MenuItem* title = menu_.item(title_)) {
        MenuItem shown = *title;
        shown.isVisible = !paths.empty();
        menu_.setItem(title_, std::move(shown));
    }
}

} // namespace nocturo
