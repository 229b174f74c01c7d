#include "app/effects_menu.h"

#include "base/notification_center.h"
#include "base/texts/translated.h"
#include "effects/effect_choices.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"
#include "settings/selectable_effects.h"

#include <array>
#include <cstddef>

namespace nocturo {

namespace {

/// In the order of the selectable effects.
constexpr std::array<ListedText, kSelectableEffects.size()> kTitles = {
    ListedText("Invert"), ListedText("Overexpose"), ListedText("Dim or lighten"),
    ListedText("Color filter"), ListedText("HDTV range")};

bool isSelected(std::string_view effect) {
    return NDGroupEffect::effect().containsEffect(effect);
}

void toggle(std::string_view effect) {
    if (isSelected(effect)) {
        NDGroupEffect::effect().removeEffect(effect);
    } else {
        chooseEffect(effect);
    }
}

} // namespace

EffectsMenu::EffectsMenu(NotificationCenter& localCenter, Menu& menu, Menu::Id afterItem)
    : localCenter_(localCenter), menu_(menu) {
    MenuItem title;
    title.text = translated("Effects");
    const Menu::Id submenu = menu_.insertAfter(afterItem, title);
    for (std::size_t i = 0; i < kTitles.size(); ++i) {
        MenuItem item;
        item.text = kTitles[i].translated();
        item.under = submenu;
        item.isCheckable = true;
        item.picked = [effect = kSelectableEffects[i].className] { toggle(effect); };
        items_.push_back(menu_.insertAfter(i > 0 ? items_.back() : submenu, std::move(item)));
    }
    tick();
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [this](const Subjects& settings) {
                                 if (settings.contain(kGroupEffect)) {
                                     tick();
                                 }
                             });
}

EffectsMenu::~EffectsMenu() {
    localCenter_.removeObserver(this);
}

void EffectsMenu::tick() {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        MenuItem item = *menu_.item(items_[i]);
        item.isChecked = isSelected(kSelectableEffects[i].className);
        menu_.setItem(items_[i], std::move(item));
    }
}

} // namespace nocturo
