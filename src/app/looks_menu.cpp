#include "app/looks_menu.h"

#include "app/app_controller.h"
#include "app/look_picker.h"
#include "base/notification_center.h"
#include "base/texts/translated.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"

#include <utility>

namespace nocturo {

LooksMenu::LooksMenu(LookPicker& picker, NotificationCenter& localCenter, Menu& menu,
                     Menu::Id afterItem)
    : picker_(picker), localCenter_(localCenter), menu_(menu) {
    MenuItem title;
    title.text = translated("Looks");
    title_ = menu_.insertAfter(afterItem, std::move(title));
    list();
    localCenter_.addObserver(this, kLooksDidChangeNotification, [this] { list(); });
    localCenter_.addObserver(this, kEffectActivationNotification, [this] { tick(); });
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [this](const Subjects& settings) {
                                 if (settings.containAnyOf(kEffectSettings)) {
                                     tick();
                                 }
                             });
}

LooksMenu::~LooksMenu() {
    localCenter_.removeObserver(this);
    for (const Menu::Id id : items_) {
        menu_.remove(id);
    }
    menu_.remove(title_);
}

void LooksMenu::list() {
    const auto& looks = picker_.chosen().looks().all();
    for (; items_.size() > looks.size(); items_.pop_back()) {
        menu_.remove(items_.back());
    }
    ticked_ = picker_.shown();
    for (std::size_t place = 0; place < looks.size(); ++place) {
        MenuItem item;
        item.text = withoutMnemonic(looks[place].title);
        item.under = title_;
        item.isCheckable = true;
        item.isChecked = looks[place].name == ticked_;
        item.picked = [this, name = looks[place].name] { picker_.pick(name); };
        if (place < items_.size()) {
            menu_.setItem(items_[place], std::move(item));
        } else {
            items_.push_back(
                menu_.insertAfter(place > 0 ? items_.back() : title_, std::move(item)));
        }
    }
}

void LooksMenu::tick() {
    if (picker_.shown() != ticked_) {
        list();
    }
}

} // namespace nocturo
