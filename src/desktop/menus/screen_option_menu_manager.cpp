#include "desktop/menus/screen_option_menu_manager.h"

#include "base/notification_center.h"
#include "base/notification_names.h"
#include "desktop/qt/localized.h"
#include "displays/affected_screen_set.h"
#include "displays/display_functions.h"
#include "settings/defaults_store.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <array>

namespace nocturo {

namespace {

constexpr QChar kEmSpace(0x2003);
constexpr int kEmSpacesPerLevel = 2;

std::vector<CGDirectDisplayID> onlineDisplays() {
    std::array<CGDirectDisplayID, kZQMaxDisplays> displays{};
    std::uint32_t count = 0;
    if (CGGetOnlineDisplayList(kZQMaxDisplays, displays.data(), &count) != kCGErrorSuccess) {
        return {};
    }
    return {displays.begin(), displays.begin() + count};
}

QString displayName(CGDirectDisplayID display) {
    DisplayServices* services = displayServices();
    const auto* infos = services != nullptr ? services->onlineDisplays() : nullptr;
    if (infos == nullptr) {
        return {};
    }
    const auto info = std::find_if(infos->begin(), infos->end(),
                                   [&](const DisplayInfo& each) { return each.id == display; });
    return info != infos->end() ? QString::fromStdString(info->name) : QString();
}

} // namespace

NDScreenOptionMenuManager::NDScreenOptionMenuManager(DefaultsStore& defaults,
                                                     NotificationCenter& localCenter, QMenu& menu,
                                                     QAction* insertAfterItem, QAction* titleItem,
                                                     bool separator, bool hideSingular, int indent)
    : defaults_(defaults), localCenter_(localCenter), menu_(menu), afterItem_(insertAfterItem),
      titleItem_(titleItem), separator_(separator), hideSingular_(hideSingular), indent_(indent) {
    menu_.setToolTipsVisible(true);
    setupScreenMenu();
    for (const auto name : {NSUserDefaultsDidChangeNotification,
                            NSApplicationDidChangeScreenParametersNotification}) {
        localCenter_.addObserver(this, name, [this] { setupScreenMenu(); });
    }
}

NDScreenOptionMenuManager::~NDScreenOptionMenuManager() {
    localCenter_.removeObserver(this);
}

void NDScreenOptionMenuManager::setupScreenMenu() {
    QString summary;
    const std::vector<Option> run = options(summary);
    resizeRun(run.size());
    for (std::size_t position = 0; position < run.size(); ++position) {
        show(run[position], *optionItems_[position]);
    }
    placeRun();
    if (titleItem_ != nullptr) {
        titleItem_->setText(summary);
    }
}

void NDScreenOptionMenuManager::chooseAffectedScreen(const QAction& item) {
    nocturo::chooseAffectedScreen(defaults_, item.data().toInt());
}

std::vector<NDScreenOptionMenuManager::Option>
NDScreenOptionMenuManager::options(QString& summary) const {
    const std::vector<double> affected = affectedScreenSet(defaults_);
    std::vector<Option> run{{localized("All Screens"), {}, 0, affected.empty()}};
    int number = 0;
    for (const CGDirectDisplayID display : onlineDisplays()) {
        const QString digits = QString::number(++number);
        Option option{filled(localized("Screen %d"), {digits}), displayName(display),
                      static_cast<std::int32_t>(display)};
        option.checked =
            std::binary_search(affected.begin(), affected.end(), static_cast<double>(option.tag));
        if (option.checked) {
            summary += summary.isEmpty() ? option.title : filled(localized(", %d"), {digits});
        }
        run.push_back(std::move(option));
    }
    if (affected.empty()) {
        summary = run.front().title;
    } else if (summary.isEmpty()) {
        summary = localized("None");
    }

    if (hideSingular_ && run.size() <= 2) {
        run.clear();
    } else if (separator_) {
        Option line;
        line.separator = true;
        run.insert(run.begin() + 1, std::move(line));
    }
    return run;
}

void NDScreenOptionMenuManager::resizeRun(std::size_t count) {
    // What somebody else deleted, as clearing the menu does, is made anew.
    std::erase(optionItems_, nullptr);
    for (; optionItems_.size() > count; optionItems_.pop_back()) {
        QAction* item = optionItems_.back();
        menu_.removeAction(item);
        item->deleteLater(); // it may be the one whose pick is under way
    }
    while (optionItems_.size() < count) {
        auto* item = new QAction(&menu_);
        QObject::connect(item, &QAction::triggered, &triggering_,
                         [this, item] { chooseAffectedScreen(*item); });
        optionItems_.emplace_back(item);
    }
}

void NDScreenOptionMenuManager::show(const Option& option, QAction& item) const {
    item.setSeparator(option.separator);
    item.setCheckable(!option.separator);
    item.setChecked(option.checked);
    item.setText(option.separator
                     ? QString()
                     : QString(qsizetype{indent_} * kEmSpacesPerLevel, kEmSpace) + option.title);
    item.setToolTip(option.toolTip);
    item.setData(option.tag);
}

void NDScreenOptionMenuManager::placeRun() {
    const qsizetype index = menu_.actions().indexOf(afterItem_) + 1;
    const QList<QAction*> present = menu_.actions().mid(index, std::ssize(optionItems_));
    if (std::equal(optionItems_.begin(), optionItems_.end(), present.begin(), present.end())) {
        return;
    }
    for (QAction* item : optionItems_) {
        menu_.removeAction(item);
    }
    QAction* next = menu_.actions().value(menu_.actions().indexOf(afterItem_) + 1);
    for (QAction* item : optionItems_) {
        menu_.insertAction(next, item);
    }
}

} // namespace nocturo
