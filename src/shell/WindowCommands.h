#pragma once

#include "foundation/Program.h"
#include "shell/Arrangement.h"
#include "shell/MenuCommands.h"

/// The commands that reach several windows at once: those of the menu Window, and those of "Manage
/// Clocks", which every clock follows.
namespace shell {

/// "Tile" to "CloseAll" and "OpenedWindow". @p shellWindow is maximised along with the others.
/// @param arrange places the child windows
void AddWindowCommands(MenuCommands& commands, const Forms& windows, IForm& shellWindow,
                       const std::function<void(Arrangement)>& arrange);

/// "Clocks", "ClockStyles", "ClockColours" and "SaveSettings". "More" and "Custom" ask once, for
/// all clocks, and do nothing when the user thinks better of it.
void AddClockCommands(MenuCommands& commands, const Program& program, const IShell& shell);

}  // namespace shell
