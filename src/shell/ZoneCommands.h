#pragma once

#include "shell/MenuCommands.h"
#include "shell/UserLists.h"

namespace shell {

/// What the menu File and the pop-ups of the toolbar do with zones and their clocks: "TimeZone",
/// "FileItem", "DeleteTimeZone", "Opened".
class ZoneCommands {
public:
    /// @param launchFromFile asks for a property file and launches its zone
    ZoneCommands(const Program& program, MenuState& state, UserLists& lists, IShell& shell,
                 std::function<void()> launchFromFile);

    void AddTo(MenuCommands& commands);

    /// Removes a zone's file for good, and its clock, if that is open. It asks nobody.
    /// @return why that failed; empty when it is done
    QString RemoveZone(const QString& name) const;

private:
    void OpenZone(const MenuItem& item) const;
    void OpenLast(const MenuItem& item) const;
    void RunOpenedItem(int index) const;
    void TurnAutoStart(const MenuArray& opened, int index) const;
    void ClickRemove(const MenuItem& item) const;

    Program program_;
    MenuState& state_;
    UserLists& lists_;
    IShell& shell_;
    std::function<void()> launchFromFile_;
};

}  // namespace shell
