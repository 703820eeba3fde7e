#pragma once

#include <QStringList>
#include <vector>

/// Every menu of the shell, as a table.
namespace shell {

/// One item of an entry, and what a click on it does.
struct MenuRow {
    QString Command;  ///< the name of its handler; empty for what nothing does
    QString Caption;  ///< "-": a separator; empty: not shown until somebody fills it in
};

/// An entry of a menu: an array of items of one name, numbered from 1. The items of most entries
/// share one command, of the entry's own name, and differ by number, caption and Tag; those of
/// "WindowItem", "MainItem" and "ToolsItem" have a command each.
struct MenuEntry {
    QString Name;  ///< empty for a separator that is never addressed; the same submenu may stand in
                   ///< several menus
    std::vector<MenuRow> Rows;
    std::vector<MenuEntry> Children;  ///< not empty: the entry is a submenu
};

struct MenuTable {
    QString Name;
    QString Caption;  ///< as the menu bar shows it; empty for a menu that only pops up
    std::vector<MenuEntry> Entries;
};

/// All menus, in their order.
const std::vector<MenuTable>& MenuCatalogue();

/// The command of an item: that of its row, or the entry's own where the list has grown beyond its
/// rows. Empty for separators, submenus, and an entry that no menu holds.
///
///     CommandOf("WindowItem", 2)   // "Cascade"
///     CommandOf("TimeZone", 12)    // "TimeZone"
QString CommandOf(const QString& entry, int index);

/// Every command that an item of a menu has, each once.
QStringList CommandsOfMenus();

}  // namespace shell
