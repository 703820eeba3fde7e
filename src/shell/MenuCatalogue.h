#pragma once

#include <QString>
#include <vector>

/// Every menu of the shell, as a table.
namespace shell {

/// An entry of a menu: an array of items of one name, numbered from 1. "-" is a separator, an empty
/// caption an item that is not shown until somebody fills it in.
struct MenuEntry {
    QString Name;  ///< empty for a separator that is never addressed; the same submenu may stand in
                   ///< several menus
    std::vector<QString> Captions;
    std::vector<MenuEntry> Children;  ///< not empty: the entry is a submenu
};

struct MenuTable {
    QString Name;
    QString Caption;  ///< as the menu bar shows it; empty for a menu that only pops up
    std::vector<MenuEntry> Entries;
};

/// All menus, in their order.
const std::vector<MenuTable>& MenuCatalogue();

}  // namespace shell
