#include "app/menu.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace nocturo {

namespace {

constexpr std::string_view kLevel = "\u2003\u2003";

} // namespace

MenuItem MenuItem::separator() {
    MenuItem line;
    line.isSeparator = true;
    return line;
}

bool MenuItem::showsTheSameAs(const MenuItem& other) const {
    const auto shown = [](const MenuItem& item) {
        return std::tie(item.text, item.detail, item.toolTip, item.indent, item.under,
                        item.isSeparator, item.isVisible, item.isCheckable, item.isChecked);
    };
    return shown(*this) == shown(other);
}

std::size_t Menu::indexOf(Id id) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& each) { return each.id == id; });
    return static_cast<std::size_t>(found - entries_.begin());
}

const MenuItem* Menu::item(Id id) const {
    const std::size_t index = indexOf(id);
    return index < entries_.size() ? &entries_[index].item : nullptr;
}

bool Menu::hasSubmenu(Id id) const {
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const Entry& each) { return id != kNone && each.item.under == id; });
}

Menu::Id Menu::insertAt(std::size_t index, MenuItem item) {
    const Id id = ++lastId_;
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(index), {id, std::move(item)});
    changes_.post(kMenuDidChangeNotification);
    return id;
}

Menu::Id Menu::append(MenuItem item) {
    return insertAt(entries_.size(), std::move(item));
}

Menu::Id Menu::insertAfter(Id id, MenuItem item) {
    const std::size_t index = indexOf(id);
    return insertAt(index < entries_.size() ? index + 1 : 0, std::move(item));
}

void Menu::setItem(Id id, MenuItem item) {
    const std::size_t index = indexOf(id);
    if (index == entries_.size()) {
        return;
    }
    MenuItem& present = entries_[index].item;
    const bool isSeen = !present.showsTheSameAs(item);
    present = std::move(item);
    if (isSeen) {
        changes_.post(kMenuDidChangeNotification);
    }
}

void Menu::setText(Id id, const std::string& text) {
    if (const MenuItem* present = item(id)) {
        MenuItem changed = *present;
        changed.text = text;
        setItem(id, std::move(changed));
    }
}

void Menu::remove(Id id) {
    const std::size_t index = indexOf(id);
    if (index < entries_.size()) {
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
        changes_.post(kMenuDidChangeNotification);
    }
}

void Menu::pick(Id id) const {
    const MenuItem* picked = item(id);
    if (picked != nullptr && picked->picked) {
        const auto action = picked->picked; // it may change the item
        action();
    }
}

std::string withoutMnemonic(const std::string& name) {
    std::string text;
    for (const char letter : name) {
        text += letter == '&' ? "&&" : std::string(1, letter);
    }
    return text;
}

std::string indentedText(const MenuItem& item) {
    std::string text;
    for (int level = 0; level < item.indent; ++level) {
        text += kLevel;
    }
    text += item.text;
    return item.detail.empty() ? text : text + " \u2013 " + withoutMnemonic(item.detail);
}

} // namespace nocturo
