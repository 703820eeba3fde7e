#pragma once

#include <array>

#include "foundation/Program.h"
#include "foundation/ui/CBalloonToolTip.h"
#include "shell/MenuCommands.h"
#include "shell/ShellSettings.h"

class ShellMenus;
class ToolBar;

/// What the toolbar does in the shell: its buttons open menus and run commands, balloons tell what
/// they are for, and the user customises it.
class ToolBarCommands {
public:
    /// All outlive this.
    struct Parts {
        ToolBar& Toolbar;
        ShellMenus& Menus;
        shell::MenuState& State;
        const shell::MenuCommands& Commands;
        shell::ShellSettings& Settings;
    };

    ToolBarCommands(const Program& program, const Parts& parts,
                    std::function<void(const QString&)> tell);

    /// "AutoShowToolTips", "ToolbarCustomize", "SaveToolbarSetting", "LaunchDatebrook".
    void AddTo(shell::MenuCommands& commands);

    /// A click on the button of that number; nothing for one that no button has.
    void HandleToolButton(int index);

    /// The pointer rests on that button; 0: it has left, and the balloon goes.
    void ShowToolTip(int index);

    /// Keeps which buttons the user has kept. Every start sets the bar up from the catalogue all
    /// the same. @return false when that could not be written
    bool SaveToolbarLayout() const;

private:
    void PopupAtButton(int index, const QString& menu);
    void LaunchDatebrook();

    Program program_;
    Parts parts_;
    std::function<void(const QString&)> tell_;
    std::array<CBalloonToolTip, 2> balloonTips_;
};
