#pragma once

#include <QMenu>
#include <functional>
#include <map>

/// `PropertyMenu`, the pop-up menu of the window of properties. It does nothing but tell which
/// entry was chosen.
class PropertyMenu {
public:
    /// The entries. In the menu each is an action whose `objectName` is the same word.
    enum class Item {
        NameAscending,
        NameDescending,
        ValueAscending,
        ValueDescending,
        CategorizedAscending,
        CategorizedDescending,
        SortNone,
        ReloadProperties,
        RefreshByDefault,
        RefreshTimeZoneDefaults,
        Close,
        Undo,
        Redo,
        Cut,
        Copy,
        Paste,
        Find,
        BackToDefault,
        Launch,
        None  ///< a separator
    };

    /// What the menu shows of the window.
    struct State {
        QString Tag;  ///< the order that is checked, as the grid's `Tag` has it
        bool IsEditable = false;
        bool HasRow = false;
        bool DiffersFromDefault = false;  ///< the current row
        bool CanUndo = false;
        bool CanRedo = false;
        bool CanPaste = false;
        bool CanRefreshTimeZone = false;
        bool CanLaunch = false;  ///< the zone has no open clock; else the entry is not there
    };

    /// @param owner owns the menu and outlives this object
    /// @param onItem is called with each entry that is chosen
    PropertyMenu(QWidget* owner, std::function<void(Item)> onItem);

    /// Shows the menu at a place of the screen.
    void Popup(const State& state, const QPoint& at);
    /// Checks what holds and greys what can't be done.
    void Refresh(const State& state);

    /// The order that an entry asks for, as a `Tag`; empty for one that sorts nothing.
    static QString SortTagOf(Item item);

private:
    struct Row;
    static const std::vector<Row>& Rows();
    QMenu& MenuOf(const Row& row);
    void Add(const Row& row);
    QAction& Action(Item item) { return *actions_.at(item); }

    QWidget* owner_;
    std::function<void(Item)> onItem_;
    QMenu* menu_;
    std::map<Item, QAction*> actions_;
};
