#pragma once

#include <functional>
#include <map>

#include "shell/MenuState.h"

namespace shell {

/// What the shell can be told to do, by name: a handler for each command of the menus, and for
/// those that only a button of the toolbar has.
class MenuCommands {
public:
    /// @param index the item's number within its entry, from 1
    /// @param item as the menu shows it at this moment
    using ItemHandler = std::function<void(int index, const MenuItem& item)>;

    /// @param state where the items of a click are looked up; it outlives this
    explicit MenuCommands(MenuState& state) : state_(state) {}

    void Handle(const QString& command, ItemHandler handler);
    /// The same for a command that is always the same, whatever item it was called from.
    void Handle(const QString& command, const std::function<void()>& handler);

    bool Handles(const QString& command) const { return handlers_.count(command) > 0; }
    QStringList Names() const;

    /// Calls a command by its name, as if no menu were open: its handler is given number 0 and an
    /// empty item. @return false for a name without a handler
    bool Run(const QString& command) const;

    /// The click on an item of a menu. @return false where nothing does anything: separators,
    /// numbers outside the entry, an unknown entry, a command without a handler
    bool Click(const QString& entry, int index) const;

    /// The same with a menu's number: 1 "TimeZone", 8 "WindowItem", 9 "MainItem". All others do
    /// nothing, "ViewItem" (4) and "ToolsItem" (6) among them.
    bool DoMenuItem(float menuId, int index) const;

    /// The commands that have no handler because they do nothing by themselves.
    static const QStringList& ThatDoNothing();

private:
    MenuState& state_;
    std::map<QString, ItemHandler> handlers_;
};

}  // namespace shell
