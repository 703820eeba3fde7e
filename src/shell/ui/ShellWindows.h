#pragma once

#include <QPointer>

#include "foundation/Program.h"
#include "shell/MenuCommands.h"
#include "shell/ShellSettings.h"

class ClockArea;
class QWidget;

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

    /// @param covered a window has been opened over the header
    ShellWindows(const Program& program, const Owner& owner, ClockArea& area,
                 const shell::ShellSettings& settings, std::function<void()> covered);

    /// "NewClock", "ChooseTimeZone", "SetShortcut", "Properties", "ActiveProperties", "Help",
    /// "About".
    void AddTo(shell::MenuCommands& commands);

    /// Opens the shell's own settings, or the defaults of a new clock.
    void ShowCentralProperties(bool forNewClock);

    /// The properties of the clock in front, or of the shell where none is.
    void OpenProperties();
    void OpenShortcuts();
    void OpenTimeZones();  ///< once: one that is open comes to the front

    /// The help of the shell, or of the file @p name; the window in front tells the page.
    void ShowHelp(const QString& name = {});
    void ShowClockHelp();
    void Open(ShellWindow window);  ///< one of them, for a clock that asks for it

private:
    void OpenHelp(const QString& name, int otherwise);
    void ShowAbout();
    bool ShowOpenTimeZones();

    Program program_;
    Owner owner_;
    ClockArea& area_;
    const shell::ShellSettings& settings_;
    std::function<void()> covered_;
    QPointer<QWidget> timeZones_;
};
