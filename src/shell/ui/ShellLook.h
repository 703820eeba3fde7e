#pragma once

#include "shell/MenuCommands.h"
#include "shell/ShellSettings.h"

class ClockArea;
class HeaderArt;
class ShellFrame;
class StatusBar;
class ToolBar;

/// What the shell looks like inside its window: its bars, its colour, its picture. It applies the
/// settings, and what the menus say about the look.
class ShellLook {
public:
    /// The parts of the window that it dresses; they outlive it.
    struct Parts {
        ClockArea& Area;
        HeaderArt& Header;
        ToolBar& Toolbar;
        StatusBar& Status;
        ShellFrame& Frame;
    };

    ShellLook(const Program& program, shell::ShellSettings& settings, const Parts& parts);

    /// "BGColour", "ToolBarSize", "ToolBarPositions", "HideStatusBar", "StatusBarAction".
    void AddTo(shell::MenuCommands& commands);

    /// Applies the settings, but for the picture, which comes late, and for the window itself.
    void ApplyCentralProperties();
    /// "Window Background File"; without one, and where it can't be read, the colour is seen alone.
    void ApplyBackgroundFile();

    /// By a name or a number; "Custom" asks for a colour, "Transparent" leaves the shell's as it
    /// is. The clocks that show the shell through follow, and the name is written.
    void SetBackgroundColour(const QString& colourName);
    int BackColor() const { return backColour_; }  ///< red in the low byte

    /// A value of "Tool Bar"; an unknown one leaves the bar as it is.
    void ApplyToolbarPosition(const QString& value);
    void ApplyStatusBarPosition(const QString& value);  ///< a value of "Status Bar"

    void HideBars();  ///< for the time of this run

    /// As it is at this moment, in a window of that state.
    shell::CentralLook Look(int windowState) const;

private:
    void ApplyWindowBorder(const QString& border);
    void ApplyBackColour();
    void ChooseToolbarSize(const QString& sizeName);
    void HideStatusBar(const QString& shown);
    void HideStatusBarForNow(const QString& shown);
    void ShowStatusBarAgain();

    Program program_;
    shell::ShellSettings& settings_;
    Parts parts_;
    int backColour_ = 8411709;  ///< until a setting names one, that of the default file
};
