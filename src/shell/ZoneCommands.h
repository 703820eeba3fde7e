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

    /// Adds the handlers of these four; this outlives @p commands' last click.
    void AddTo(MenuCommands& commands);

    /// Removes a zone's file for good, and its clock, if that is open. It asks nobody.
    /// @return why that failed; empty when it is done
    QString RemoveZone(const QString& name) const;

private:
    /// The zone in the Tag; "More" has none and asks for a file.
    void OpenZone(const MenuItem& item) const;
    /// One of the clocks opened last, or all that the menu lists.
    void OpenLast(const MenuItem& item) const;
    /// What the pressed button of the toolbar does, to the clock of that item or to all.
    void RunOpenedItem(int index) const;
    void TurnAutoStart(const MenuArray& opened, int index) const;
    /// Asks, and then removes the zone of the Tag, or all zones where it is empty.
    void ClickRemove(const MenuItem& item) const;

    Program program_;
    MenuState& state_;
    UserLists& lists_;
    IShell& shell_;
    std::function<void()> launchFromFile_;
};

}  // namespace shell
