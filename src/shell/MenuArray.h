#pragma once

#include <QString>
#include <vector>

/// The menus of the shell as data: what they hold, before any widget shows it.
/// A click on an item ends at its handler in `MenuCommands`, which is given a copy of it.
namespace shell {

/// One item as it stands in a menu. A separator has the caption "-".
struct MenuItem {
    /// What the user reads; it may also be what the item's command goes by.
    QString Caption;
    /// What the command goes by beside the caption: a handle, a zone, "Yes" or "No". The user never
    /// sees it.
    QString Tag;
    bool Visible = true;
    bool Enabled = true;
    bool Checked = false;
    QString Keys = {};  ///< keys that do the same, as the menu shows them; they are not bound by it
    bool operator==(const MenuItem&) const = default;
};

/// A menu array: items from 1; item 1 exists from the beginning and is never unloaded.
/// An index below 1, and one above `Count` but for `Load`, is not allowed; nothing checks it.
///
///     MenuArray items;
///     items.Load(3) = {"Tokyo", "Tokyo"};  // items 2 and 3 are new; 2 is an empty one
///     items.UnloadAbove(1);                // item 1 alone
class MenuArray {
public:
    MenuArray() : items_(1) {}

    int Count() const { return static_cast<int>(items_.size()); }
    MenuItem& operator()(int index) { return items_[static_cast<std::size_t>(index - 1)]; }
    const MenuItem& operator()(int index) const {
        return items_[static_cast<std::size_t>(index - 1)];
    }

    /// The item at @p index, loaded when the array is shorter.
    MenuItem& Load(int index) {
        if (index > Count()) {
            items_.resize(static_cast<std::size_t>(index));
        }
        return (*this)(index);
    }

    /// Unloads the items above @p count (at least 1 stays).
    void UnloadAbove(int count) {
        if (count < Count()) {
            items_.resize(static_cast<std::size_t>(count < 1 ? 1 : count));
        }
    }

private:
    std::vector<MenuItem> items_;
};

}  // namespace shell
