#include "app/looks_menu.h"

#include "app/app_controller.h"
#include "base/notification_center.h"
#include "base/texts/translated.h"
#include "documents/chosen_look.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"

#include <utility>

namespace nocturo {

namespace {

/// An item's text in which no letter picks it.
std::string plainText(const std::string& title) {
    std::string text;
    for (const char letter : title) {
        text += letter == '&' ? "&&" : std::string(1, letter);
    }
    return text;
}

std::string nameOf(const Look* look) {
    return look != nullptr ? look->name : std::string();
}

} // namespace

LooksMenu::LooksMenu(NDAppController& controller, ChosenLook& chosen,
                     NotificationCenter& localCenter, Menu& menu, Menu::Id afterItem)
    : controller_(controller), chosen_(chosen), localCenter_(localCenter), menu_(menu) {
    MenuItem title;
    title.text = translated("Looks");
    title_ = menu_.insertAfter(afterItem, std::move(title));
    list();
    localCenter_.addObserver(this, kLooksDidChangeNotification, [this] { list(); });
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
    const auto& looks = chosen_.looks().all();
    for (; items_.size() > looks.size(); items_.pop_back()) {
        menu_.remove(items_.back());
    }
    ticked_ = nameOf(chosen_.inForce());
    for (std::size_t place = 0; place < looks.size(); ++place) {
        MenuItem item;
        item.text = plainText(looks[place].title);
        item.under = title_;
        item.isCheckable = true;
        item.isChecked = looks[place].name == ticked_;
        item.picked = [this, name = looks[place].name] { pick(name); };
        if (place < items_.size()) {
            menu_.setItem(items_[place], std::move(item));
        } else {
            items_.push_back(
                menu_.insertAfter(place > 0 ? items_.back() : title_, std::move(item)));
        }
    }
}

void LooksMenu::tick() {
    if (nameOf(chosen_.inForce()) != ticked_) {
        list();
    }
}

void LooksMenu::pick(const std::string& name) {
    if (name == ticked_) {
        static_cast<void>(chosen_.goBack()); // nothing was before the first
        return;
    }
    if (chosen_.apply(name) && !controller_.effectActive()) {
        controller_.setEffectActive(true, true);
    }
}

} // namespace nocturo
