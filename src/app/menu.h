#pragma once

#include "base/notification_center.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

/// Posted by a menu's own center after every change of what the menu shows.
inline constexpr std::string_view kMenuDidChangeNotification = "NocturoMenuDidChangeNotification";

/// Posted there before the menu is shown, as far as whoever shows it says so.
inline constexpr std::string_view kMenuWillOpenNotification = "NocturoMenuWillOpenNotification";

/// What an item of a menu shows and does. A new one is an ordinary item that does nothing.
struct MenuItem {
    static MenuItem separator();

    std::string text;     // "&" stands before the letter that picks the item, "&&" for itself
    std::string detail{}; // shown behind the text; any "&" in it is one
    std::string toolTip;
    int indent = 0; // in levels
    int under = 0;  // the number of the item whose submenu it is in; 0 for the menu itself
    bool isSeparator = false;
    bool isVisible = true;
    bool isCheckable = false;
    bool isChecked = false;
    std::function<void()> picked; // what picking it does; may be empty

    bool showsTheSameAs(const MenuItem& other) const;
};

/// A menu as whoever shows it needs to know it: a window, a panel or a dock. Main thread only.
class Menu {
  public:
    /// The number of an item for as long as the menu lives; from 1, none is given twice.
    using Id = int;
    static constexpr Id kNone = 0;

    struct Entry {
        Id id;
        MenuItem item;
    };

    Menu() = default;
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    /// In the order in which they are shown.
    const std::vector<Entry>& entries() const { return entries_; }

    /// Null where there is none of that number.
    const MenuItem* item(Id id) const;

    /// Whether there are items under that one, which then opens a submenu.
    bool hasSubmenu(Id id) const;

    Id append(MenuItem item);

    /// Right after that item, or at the top for kNone or an item that is gone.
    Id insertAfter(Id id, MenuItem item);

    // These do nothing where there is no item of that number.

    /// Changes the item in place.
    void setItem(Id id, MenuItem item);
    void setText(Id id, const std::string& text);
    void remove(Id id);

    /// Does what picking the item by hand does. The item may be gone afterwards.
    void pick(Id id) const;

    /// Posts kMenuDidChangeNotification; whoever shows the menu posts kMenuWillOpenNotification.
    NotificationCenter& changes() { return changes_; }

  private:
    std::size_t indexOf(Id id) const; // the count of entries where there is none
    Id insertAt(std::size_t index, MenuItem item);

    std::vector<Entry> entries_;
    Id lastId_ = kNone;
    NotificationCenter changes_;
};

/// A name as the text of an item in which no letter picks it.
std::string withoutMnemonic(const std::string& name);

/// The text of an item with its indentation. A level is a pair of em spaces before the text: of an
/// item that a panel shows only the text arrives, and these spaces are collapsed nowhere and follow
/// the reading direction.
std::string indentedText(const MenuItem& item);

} // namespace nocturo
