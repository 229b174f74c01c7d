#include "app/screen_option_menu_manager.h"

#include "base/notification_center.h"
#include "base/notification_names.h"
#include "base/texts/translated.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "displays/display_names.h"
#include "settings/defaults_store.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

std::vector<CGDirectDisplayID> onlineDisplays() {
    std::array<CGDirectDisplayID, kZQMaxDisplays> displays{};
    std::uint32_t count = 0;
    if (CGGetOnlineDisplayList(kZQMaxDisplays, displays.data(), &count) != kCGErrorSuccess) {
        return {};
    }
    return {displays.begin(), displays.begin() + count};
}

std::vector<DisplayInfo> everyOnlineDisplay() {
    DisplayServices* services = displayServices();
    const auto* infos = services != nullptr ? services->onlineDisplays() : nullptr;
    return infos != nullptr ? *infos : std::vector<DisplayInfo>();
}

std::string displayName(CGDirectDisplayID display) {
    const std::vector<DisplayInfo> infos = everyOnlineDisplay();
    const auto info = std::ranges::find(infos, display, &DisplayInfo::id);
    return info != infos.end() ? info->name : std::string();
}

} // namespace

NDScreenOptionMenuManager::NDScreenOptionMenuManager(DefaultsStore& defaults,
                                                     NotificationCenter& localCenter, Menu& menu,
                                                     Menu::Id insertAfterItem, Menu::Id titleItem,
                                                     bool separator, bool hideSingular, int indent)
    : defaults_(defaults), localCenter_(localCenter), menu_(menu), afterItem_(insertAfterItem),
      titleItem_(titleItem), separator_(separator), hideSingular_(hideSingular), indent_(indent) {
    setupScreenMenu();
    localCenter_.addObserver(this, NSUserDefaultsDidChangeNotification,
                             [this](const Subjects& settings) {
                                 if (settings.containAnyOf(kAffectedScreenSettings)) {
                                     setupScreenMenu();
                                 }
                             });
    localCenter_.addObserver(this, NSApplicationDidChangeScreenParametersNotification,
                             [this] { setupScreenMenu(); });
}

NDScreenOptionMenuManager::~NDScreenOptionMenuManager() {
    localCenter_.removeObserver(this);
    for (const Menu::Id id : optionItems_) {
        MenuItem orphan = *menu_.item(id);
        orphan.picked = nullptr;
        menu_.setItem(id, std::move(orphan));
    }
}

void NDScreenOptionMenuManager::setupScreenMenu() {
    std::string summary;
    std::vector<MenuItem> run = options(summary);
    for (; optionItems_.size() > run.size(); optionItems_.pop_back()) {
        menu_.remove(optionItems_.back());
    }
    for (std::size_t position = 0; position < run.size(); ++position) {
        if (position < optionItems_.size()) {
            menu_.setItem(optionItems_[position], std::move(run[position]));
        } else {
            const Menu::Id before = position > 0 ? optionItems_.back() : afterItem_;
            optionItems_.push_back(menu_.insertAfter(before, std::move(run[position])));
        }
    }
    menu_.setText(titleItem_, summary);
}

void NDScreenOptionMenuManager::chooseAffectedScreen(std::int32_t tag) {
    nocturo::chooseAffectedScreen(defaults_, tag);
}

MenuItem NDScreenOptionMenuManager::option(std::int32_t tag, std::string title, bool isChecked) {
    MenuItem item;
    item.text = std::move(title);
    item.detail = tag != 0 ? DisplayNames::shared().monitorOf(static_cast<CGDirectDisplayID>(tag))
                           : std::string();
    item.toolTip = tag != 0 ? displayName(static_cast<CGDirectDisplayID>(tag)) : std::string();
    item.indent = indent_;
    item.isCheckable = true;
    item.isChecked = isChecked;
    item.picked = [this, tag] { chooseAffectedScreen(tag); };
    return item;
}

std::vector<MenuItem> NDScreenOptionMenuManager::options(std::string& summary) {
    const std::vector<double> affected = affectedScreenSet(defaults_);
    std::vector<MenuItem> run{option(0, translated("All Screens"), affected.empty())};
    int number = 0;
    for (const CGDirectDisplayID display : onlineDisplays()) {
        const std::string digits = std::to_string(++number);
        const auto tag = static_cast<std::int32_t>(display);
        const bool isChosen =
            std::binary_search(affected.begin(), affected.end(), static_cast<double>(tag));
        run.push_back(option(tag, translated("Screen %d", {digits}), isChosen));
        if (isChosen) {
            summary += summary.empty() ? run.back().text : translated(", %d", {digits});
        }
    }
    if (affected.empty()) {
        summary = run.front().text;
    } else if (summary.empty()) {
        summary = translated("None");
    }

    if (hideSingular_ && run.size() <= 2) {
        run.clear();
    } else if (separator_) {
        run.insert(run.begin() + 1, MenuItem::separator());
    }
    const std::vector<DisplayInfo> online = everyOnlineDisplay();
    if (!online.empty() && !run.empty()) {
        appendAbsent(run, online);
    }
    return run;
}

/// What is not connected is told by a name that it had once; without one it would be a number.
void NDScreenOptionMenuManager::appendAbsent(std::vector<MenuItem>& run,
                                             const std::vector<DisplayInfo>& online) {
    for (const CGDirectDisplayID display : absentAffectedDisplays(defaults_, online)) {
        const std::string name = DisplayNames::shared().nameOf(display);
        if (!name.empty()) {
            MenuItem item = option(static_cast<std::int32_t>(display),
                                   translated("%@, not connected", {withoutMnemonic(name)}), true);
            item.detail.clear();
            run.push_back(std::move(item));
        }
    }
}

} // namespace nocturo
