#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <vector>

class QAction;
class QMenu;

namespace nocturo {

class DefaultsStore;
class NotificationCenter;

/// Keeps a run of items in a menu with which the user chooses the displays that the effect is
/// applied to: "All Screens" and one item per online display, "Screen 1" and so on in the order of
/// the online list, checked as the affected screen set says, with the display's name as tool tip.
/// An item's data is the display's identifier as a signed 32-bit integer, 0 for "All Screens".
///
/// The run follows every change of a setting and of the screen arrangement. Items that stay are
/// changed in place, so that an open menu, and what a desktop shows of an exported one, stays calm.
///
/// Main thread only. The store, the center, the menu and the two items must outlive the manager.
/// The items belong to the menu: they stay in it when the manager goes, and do nothing from then
/// on.
class NDScreenOptionMenuManager {
  public:
    /// Builds the run at once. It starts right after `insertAfterItem`, or at the top of the menu
    /// where that is null. The text of `titleItem`, which may be null too, is kept a summary of the
    /// choice: "All Screens", "Screen 1, 3", or "None" when no display of the set is online.
    /// `separator` asks for one after "All Screens"; `hideSingular` for no run at all when there is
    /// one display or none. `indent` is in levels.
    ///
    /// A level is a pair of em spaces before the text. A QMenu has no indentation, an icon would
    /// take the place of the check mark in some styles, and of an item that is exported to a panel
    /// only the text arrives; these spaces are collapsed nowhere and follow the reading direction.
    NDScreenOptionMenuManager(DefaultsStore& defaults, NotificationCenter& localCenter, QMenu& menu,
                              QAction* insertAfterItem, QAction* titleItem, bool separator,
                              bool hideSingular, int indent);
    ~NDScreenOptionMenuManager();
    NDScreenOptionMenuManager(const NDScreenOptionMenuManager&) = delete;
    NDScreenOptionMenuManager& operator=(const NDScreenOptionMenuManager&) = delete;

    /// Brings the run in line with the settings and the online displays.
    void setupScreenMenu();

    /// What picking `item` of the run does: all displays, or its display into the set or out of it.
    void chooseAffectedScreen(const QAction& item);

  private:
    struct Option {
        QString title;
        QString toolTip;
        std::int32_t tag = 0;
        bool checked = false;
        bool separator = false;
    };

    /// The run as it should be; sets `summary` to what the title item should say.
    std::vector<Option> options(QString& summary) const;
    void resizeRun(std::size_t count);
    void show(const Option& option, QAction& item) const;
    void placeRun();

    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    QMenu& menu_;
    QAction* afterItem_;
    QAction* titleItem_;
    std::vector<QPointer<QAction>> optionItems_; // in menu order, the separator included
    bool separator_;
    bool hideSingular_;
    int indent_;
    QObject triggering_; // ends the connections of the items with the manager
};

} // namespace nocturo
