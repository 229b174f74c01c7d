#include "app/app_menus.h"

#include "app/app_controller.h"
#include "base/texts/translated.h"

#include <utility>

namespace nocturo {

namespace {

Menu::Id append(Menu& menu, std::string text, std::function<void()> picked) {
    MenuItem item;
    item.text = std::move(text);
    item.picked = std::move(picked);
    return menu.append(std::move(item));
}

} // namespace

AppMenus::AppMenus(NDAppController& controller, DefaultsStore& defaults,
                   NotificationCenter& localCenter, std::function<void()> quit)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter),
      quit_(std::move(quit)), activateItem_(append(effectMenu_, translated("&Activate Effect"),
                                                   [this] { controller_.activateEffect(); })),
      dockActivateItem_(fill(dockMenu_)), statusActivateItem_(fill(statusMenu_)) {}

/// The activate item.
Menu::Id AppMenus::fill(Menu& menu) {
    const Menu::Id activateItem =
        append(menu, translated("Activate Effect"), [this] { controller_.activateEffect(); });
    menu.append(MenuItem::separator());
    append(menu, translated("Preferences..."), [this] { controller_.openPreferences(); });
    append(menu, translated("About Nocturo"), [this] { controller_.openAboutBox(); });
    menu.append(MenuItem::separator());
    append(menu, translated("Quit Nocturo"), quit_);
    return activateItem;
}

void AppMenus::setActivateItemTitles(bool active) {
    effectMenu_.setText(activateItem_,
                        translated(active ? "&Deactivate Effect" : "&Activate Effect"));
    const std::string title = translated(active ? "Deactivate Effect" : "Activate Effect");
    dockMenu_.setText(dockActivateItem_, title);
    statusMenu_.setText(statusActivateItem_, title);
}

void AppMenus::makeScreenMenus() {
    const auto make = [this](auto& manager, Menu& menu, Menu::Id activateItem, int indent) {
        manager.emplace(defaults_, localCenter_, menu, activateItem, Menu::kNone, false, false,
                        indent);
    };
    make(mainScreens_, effectMenu_, activateItem_, 0);
    make(dockScreens_, dockMenu_, dockActivateItem_, 1);
    make(statusScreens_, statusMenu_, statusActivateItem_, 1);
}

} // namespace nocturo
