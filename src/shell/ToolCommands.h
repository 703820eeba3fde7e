#pragma once

#include <QString>

/// The catalogue of the toolbar's commands.
namespace shell {

/// The buttons by their numbers. 13 and 18 are separators. The buttons 2 to 8 act on the clock that
/// is chosen in their pop-up.
namespace Tool {
enum : int {
    Launch = 1,
    Close,
    Disable,
    Enable,
    Maximize,
    Minimize,
    Restore,
    AutoStart,
    Property,
    Shortcut,
    Timezone,
    ClockAgent,
    CProperty = 14,
    ManageClocks,
    OrganizeWindows,
    Datebrook,
    Help = 19,
    Exit,
    Count = Exit
};
}  // namespace Tool

/// One button as it is set up. A separator has an empty Key and no picture, and is visible.
struct ToolButton {
    int Image = 0;  ///< 1 to 18, counted over the buttons that are no separators
    QString Key;    ///< `"group,index"`, the quotes included: `"1,5"`
    /// What the button is for, in lines parted by CR and LF.
    QString ToolTipText;
    QString Tag;      ///< the command's short name
    QString Caption;  ///< the Tag, where the size shows captions
    /// The same for those who can't see the balloon.
    QString Description;
    bool Visible = true;
};

/// The button of that number from 1 to `Tool::Count`, as it looks at one of the four sizes ("Small
/// Size", "Large Size with Caption", ...). "Datebrook" is never visible.
ToolButton SetupToolButton(int index, const QString& sizeName);

/// What a click on a button does: it opens a menu of `MenuCatalogue` or runs a command of
/// `MenuCommands`. Both are empty for a separator, and for a number that no button has.
struct ToolAction {
    QString Menu;
    QString Command;
};
ToolAction ActionOfTool(int index);

/// The number of a button by its Key: what stands behind the comma. 0 for a text without one.
///
///     ToolIndexOfKey("\"1,5\"")  // 5
int ToolIndexOfKey(const QString& key);

}  // namespace shell
