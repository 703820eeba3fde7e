#pragma once

#include <QPointer>

#include "foundation/Program.h"
#include "shell/MenuCommands.h"
#include "shell/ShellSettings.h"

class ClockArea;
class QMdiSubWindow;
class QWidget;
class frmShortcuts;
class frmTimeZones;

/// The windows that the shell opens beside the clocks: time zones, properties, shortcuts, help, the
/// about box.
class ShellWindows {
public:
    /// What a window is opened for. @p Owner is the shell as a window, as a form, and as what the
    /// other windows ask; all three outlive this.
    struct Owner {
        QWidget& Window;
        IForm& Form;
        IShell& Shell;
    };

    /// @param menus the menus of the shell, whose `NewClock` keeps that a clock is being made
    /// @param covered a window has been opened over the header
    ShellWindows(const Program& program, const Owner& owner, ClockArea& area,
                 const shell::ShellSettings& settings, shell::MenuState& menus,
                 std::function<void()> covered);

    /// "NewClock", "ChooseTimeZone", "SetShortcut", "Properties", "ActiveProperties", "Help",
    /// "About".
    void AddTo(shell::MenuCommands& commands);

    /// Opens the shell's own settings, or the defaults of a new clock whose name is to be typed.
    /// Like all windows that edit a file it comes to the front where it is open already.
    void ShowCentralProperties(bool forNewClock);

    /// The properties of the clock in front, beside it, or of the shell where none is. Nothing more
    /// is opened while a window of properties is in front.
    void OpenProperties();
    void OpenShortcuts();  ///< once: one that is open comes to the front
    void OpenTimeZones();  ///< likewise

    /// Closes the windows that edit something, each behind its question.
    /// @return false when one stays, since what was to be saved could not be
    bool CloseEditors();

    /// The help of the shell, or of the file @p name; the window in front tells the page.
    void ShowHelp(const QString& name = {});
    void ShowClockHelp();
    void Open(ShellWindow window);  ///< one of them, for a clock that asks for it

private:
    void OpenHelp(const QString& name, int otherwise);
    void ShowAbout();
    void OpenClockProperties(IClock& clock);
    /// @param clock where it stands in the area, in pixels; null for a window that is of none
    void ShowProperties(const QString& zoneName, int ownerHandle, const QRect& clock);
    /// Brings the window to the front that edits a file; empty for a new one. @return whether there
    /// is one
    bool ShowOpenEditor(const QString& file);
    /// Gives a window a frame in the area.
    QMdiSubWindow* AddChild(QWidget* window);
    /// The place of a window beside a clock, or over the corner of the area.
    QRect PlaceFor(const QRect& clock, const QSize& size) const;

    Program program_;
    Owner owner_;
    ClockArea& area_;
    const shell::ShellSettings& settings_;
    shell::MenuState& menus_;
    std::function<void()> covered_;
    QPointer<frmTimeZones> timeZones_;
    QPointer<frmShortcuts> shortcuts_;
};
