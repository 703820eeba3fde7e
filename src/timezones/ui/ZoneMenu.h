#pragma once

#include <QMenu>
#include <functional>
#include <map>

#include "timezones/ZoneList.h"

/// The two pop-up menus of the window of zones.
class ZoneMenu {
public:
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

    /// What the menus show of the window.
    struct State {
        mduTimeZones::SourceMode Source = mduTimeZones::SourceMode::Windows;
        mduTimeZones::ShowFilter Show = mduTimeZones::ShowFilter::All;
        mduTimeZones::ZoneSort Sort = mduTimeZones::ZoneSort::None;
        bool HasRow = false;  ///< there is a current row
        bool MapVisible = true;
    };

    ZoneMenu(QWidget* owner, std::function<void(Item)> onItem);

    void Refresh(const State& state);
    QMenu& TimeZoneMenu() { return *timeZoneMenu_; }
    QMenu& MapMenu() { return *mapMenu_; }
    QAction& Action(Item item) const { return *actions_.at(item); }

private:
    QMenu* AddMenu(QMenu& menu, const QString& name, const QString& caption);
    void Add(QMenu& menu, Item item, const QString& name, const QString& caption,
             bool isChoice = false);
    void AddSorts();
    void AddSources();

    QWidget* owner_;
    std::function<void(Item)> onItem_;
    QMenu* timeZoneMenu_;
    QMenu* mapMenu_;
    std::map<Item, QAction*> actions_;
};
