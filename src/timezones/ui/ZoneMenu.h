#pragma once

#include <QMenu>
#include <functional>
#include <map>

#include "timezones/ZoneList.h"

/// The two pop-up menus of the window of zones: that of the list, with all entries but the last
/// one, and that of the map, with `HideMap` only. They do nothing but tell which entry was chosen.
class ZoneMenu {
public:
    /// The entries. In the menus each is an action whose `objectName` is the same word.
    /// `MapVisible` shows or hides the map, and says which of the two it would do.
    enum class Item {
        NameAscending,
        NameDescending,
        GMTAscending,
        GMTDescending,
        SelectAll,
        SelectNone,
        ShowTimeZoneDetailsMenu,
        SourceWindows,
        SourceTempolark,
        SourceSelected,
        SourceBoth,
        ShowAll,
        ShowSelected,
        ShowUnselected,
        DeleteSelected,
        MapVisible,
        Close,
        HideMap
    };

    /// What the menus show of the window. `DeleteSelected` can be chosen in the list of zone files
    /// only, `ShowTimeZoneDetailsMenu` where there is a current row; all else always.
    struct State {
        mduTimeZones::SourceMode Source = mduTimeZones::SourceMode::Windows;
        mduTimeZones::ShowFilter Show = mduTimeZones::ShowFilter::All;
        mduTimeZones::ZoneSort Sort = mduTimeZones::ZoneSort::None;
        bool HasRow = false;  ///< there is a current row
        bool MapVisible = true;
    };

    /// @param owner owns the menus and outlives this object
    /// @param onItem is called with each entry that is chosen
    ZoneMenu(QWidget* owner, std::function<void(Item)> onItem);

    /// Checks what holds and greys what can't be done; to be called before a menu is shown.
    void Refresh(const State& state);
    /// The menu of the list.
    QMenu& TimeZoneMenu() { return *timeZoneMenu_; }
    /// The menu of the map.
    QMenu& MapMenu() { return *mapMenu_; }
    /// The action of an entry; each item has one.
    QAction& Action(Item item) const { return *actions_.at(item); }

private:
    /// @param name the `objectName`, by which it can be found
    QMenu* AddMenu(QMenu& menu, const QString& name, const QString& caption);
    /// @param isChoice whether the entry can be checked
    void Add(QMenu& menu, Item item, const QString& name, const QString& caption,
             bool isChoice = false);
    /// Two inner menus, for the two columns.
    void AddSorts();
    void AddSources();

    QWidget* owner_;
    std::function<void(Item)> onItem_;
    QMenu* timeZoneMenu_;
    QMenu* mapMenu_;
    std::map<Item, QAction*> actions_;
};
