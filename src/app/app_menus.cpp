#include "app/app_menus.h"

#include "app/app_controller.h"
#include "base/texts/translated.h"

#include <utility>

namespace nocturo {

namespace {

Menu::Id append(Menu& menu, std::string text, std::function<void()> picked,
                Menu::Id under = Menu::kNone) {
    MenuItem item;
    item.text = std::move(text);
    item.under = under;
    item.picked = std::move(picked);
    return menu.append(std::move(item));
}

} // namespace

// A dock shows its menu below the actions of the desktop entry, which are the rest of the status
// menu.
AppMenus::AppMenus(NDAppController& controller, DefaultsStore& defaults,
                   NotificationCenter& localCenter, LookPicker& looks,
                   const RecentDocuments& documents, Actions actions)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter), looks_(looks),
      documents_(documents), openDocument_(std::move(actions.openDocument)),
      activateItem_(appendActivateItem(effectMenu_)),
      dockActivateItem_(appendActivateItem(dockMenu_)),
      statusActivateItem_(appendActivateItem(statusMenu_)) {
    setActivateItemTitles(false);
    appendPauses(effectMenu_);
    appendPauses(statusMenu_);
    statusMenu_.append(MenuItem::separator());
    append(statusMenu_, translated("Preferences..."), [this] { controller_.openPreferences(); });
    append(statusMenu_, translated("About Nocturo"), [this] { controller_.openAboutBox(); });
    statusMenu_.append(MenuItem::separator());
    append(statusMenu_, translated("Quit Nocturo"), std::move(actions.quit));
}

Menu::Id AppMenus::appendActivateItem(Menu& menu) {
    return append(menu, {}, [this] { controller_.activateEffect(); });
}

void AppMenus::appendPauses(Menu& menu) {
    const Menu::Id title = append(menu, translated("Pause"), {});
    const auto appendPause = [&](std::string text, const char* words) {
        append(
            menu, std::move(text), [this, words] { controller_.pause(words); }, title);
    };
    appendPause(translated("30 minutes"), "30m");
    appendPause(translated("1 hour"), "1h");
    appendPause(translated("Until tomorrow"), "until tomorrow");
}

void AppMenus::setActivateItemTitles(bool active) {
    effectMenu_.setText(activateItem_,
                        translated(active ? "&Deactivate Effect" : "&Activate Effect"));
    const std::string title = translated(active ? "Deactivate Effect" : "Activate Effect");
    dockMenu_.setText(dockActivateItem_, title);
    statusMenu_.setText(statusActivateItem_, title);
}

void AppMenus::makeScreenMenus() {
    // The last first: the run of screens starts right after the activate item.
    MenuItem recent;
    recent.text = translated("Open Recent");
    statusDocuments_.emplace(documents_, statusMenu_,
                             statusMenu_.insertAfter(statusActivateItem_, std::move(recent)),
                             openDocument_);
    statusEffects_.emplace(localCenter_, statusMenu_, statusActivateItem_);
    mainLooks_.emplace(looks_, localCenter_, effectMenu_, activateItem_);
    statusLooks_.emplace(looks_, localCenter_, statusMenu_, statusActivateItem_);
    const auto make = [this](auto& manager, Menu& menu, Menu::Id activateItem, int indent) {
        manager.emplace(defaults_, localCenter_, menu, activateItem, Menu::kNone, false, false,
                        indent);
    };
    make(mainScreens_, effectMenu_, activateItem_, 0);
    make(dockScreens_, dockMenu_, dockActivateItem_, 1);
    make(statusScreens_, statusMenu_, statusActivateItem_, 1);
}

} // namespace nocturo
