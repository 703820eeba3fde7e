#pragma once

#include <QMainWindow>

#include "foundation/Program.h"
#include "shell/Launcher.h"
#include "shell/MenuFills.h"
#include "shell/ShellStages.h"
#include "shell/ShellVoice.h"
#include "shell/ZoneCommands.h"
#include "shell/ui/ShellPlacement.h"

class ClockArea;
class EditTargets;
class ShellFrame;
class ShellHeader;
class ShellLook;
class ShellMenus;
class ShellWindows;
class StatusBar;
class ToolBar;
class ToolBarCommands;

/// The shell: a multiple-document frame that hosts the clocks, launches them and acts on them. The
/// window holds its parts together and routes what happens to them; what they do is theirs.
///
/// The settings, the lists and the menus' contents are data of their own (`shell/`); what is drawn
/// is in the widgets that the window owns. A message for the user goes to `ShowStatusMsg`.
class frmMain final : public QMainWindow, public IForm, public IShell {
public:
    /// Makes all parts; no settings are read and nothing is shown before `Load`.
    /// @param program outlives the shell, which is the first of its `Windows`
    explicit frmMain(const Program& program);
    /// Takes the clocks along.
    ~frmMain() override;

    /// Start-up, up to the moment where the program waits for events.
    /// @return false when the program must end at once: its default file is lost.
    bool Load();

    /// Finds the zone for the command line, lays out the folders and reads the lists.
    bool ConfigSetup();

    /// What a later start of the program has asked for: comes to the front, and opens the zone that
    /// the command line names. With "/s", as a screen saver, the shell is maximised; its bars stay.
    /// A name that no file can have is told in the status bar.
    void TakeOver(const QString& commandLine);

    /// Writes the clocks that start by themselves, `ModuleState::AutoStartList`, into their file.
    void SaveAutoStartList() { lists_.SaveAutoStartList(); }

    /// What is to be told about the zone that a command line names; empty when nothing is.
    QString NoticeOf(const QString& commandLine) const;

    QString AppEXEName() const { return program_.Module.Paths.AppEXEName(); }
    /// The file that new settings of the shell are a copy of.
    QString DefaultIniFile() const { return program_.Module.Paths.CentralDefaultFile(); }
    /// The file of the shell's own settings.
    QString IniFile() const { return program_.Module.Paths.CentralFile; }

    /// Opens the shell's own settings, or the defaults of a new clock.
    void ShowCentralProperties(bool forNewClock);

    /// Ends the program, as the system asks it to. While a box waits for its answer that comes
    /// behind the answer.
    void Quit();

    /// The help of the shell, or of the file @p name; the window in front tells the page.
    void ShowHelp(const QString& name = {});

    /// Puts the eye's first picture into the status bar.
    void ShowEye();

    /// See `ClockProperties::CollectAskedNames`.
    void CollectAskedNames(std::shared_ptr<AskedNames> names) {
        settings_.CollectAskedNames(std::move(names));
    }

    /// What the menus and the toolbar can do, by name: a test calls them here.
    const shell::MenuCommands& Commands() const { return commands_; }

    // IForm
    QString Name() const override { return QStringLiteral("frmMain"); }
    QString Caption() const override { return windowTitle(); }
    int hwnd() const override { return handle_; }
    int WindowState() const override { return placement_.WindowState(); }
    void SetWindowState(int state) override { placement_.SetWindowState(state); }
    bool IsEnabled() const override { return isEnabled(); }
    void EnableWindow(bool enabled) override { setEnabled(enabled); }
    void Show() override { show(); }
    void SetFocus() override { activateWindow(); }
    void Unload() override { close(); }

    // IShell
    void ShowStatusMsg(const QString& text) override { stages_.ShowStatusMsg(text); }
    /// Asks the machine's dialogs, and waits for the answer.
    int ShowMsgbox(const QString& text, int flags, const QString& title) override;
    /// Takes `ModuleState::CurrentProperties` as the shell's settings and shows them; the window
    /// stays where it is. @p zoneName is not looked at. @return always 0: the property window
    /// itself opens a new clock
    int RefreshForm(const QString& zoneName) override;
    void SpeakMessage(const QString& text) override { voice_.SpeakMessage(text); }
    void PurgeSpeech() override { voice_.PurgeSpeech(); }
    void DoMenuItem(float menuId, int index) override { commands_.DoMenuItem(menuId, index); }
    int BackColor() const override;
    /// Hides the header when there is a clock to be seen.
    int LaunchTempolark(const QString& name) override;
    QString Setting(const QString& name) const override { return settings_.Setting(name); }
    QString RemoveZone(const QString& name) override { return zones_.RemoveZone(name); }
    void ShowClockHelp() override;
    void OpenWindow(ShellWindow window) override;
    void SetAutoStart(const QString& name, bool on) override { lists_.SetAutoStart(name, on); }

protected:
    /// Closes the windows that edit something, one of which may refuse; then all clocks, and saves
    /// the lists, the settings and the place of the window.
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// Of the area's inside: the header follows its size, and a right click opens the menu of
    /// windows.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Its parts (frmMainParts.cpp)
    void MakeInnerParts();
    void MakeMenus();
    void MakeBars(const QString& pictures);
    void MakeHeader();
    void HandleCommands();
    shell::ShellStages::Hooks StageHooks();
    shell::MenuFills::Sources MenuSources();

    // Start and stop (frmMain.cpp)
    /// Shows the settings; with @p keepPlacement the window stays where it is.
    void ApplyCentralProperties(bool keepPlacement);
    bool IsScreenSaverRun() const;
    void ApplyScreenSaverLook();
    /// What would hold up the window: the greeting, the background picture, the lists of
    /// colours and styles.
    void FirstTick();
    /// The window is brought into the screen, now that the size of its frame is known.
    void SecondTick();
    void ExitShell();
    void SaveWindowPlacement();

    void SetHeaderVisible(bool visible);
    /// Nothing before the first tick.
    void ShowHeaderWhenEmpty();
    void ShowWindowMenu(const QPoint& onScreen);
    void ToggleTitleBar();

    Program program_;
    int handle_;
    shell::MenuState menuState_;
    shell::MenuCommands commands_{menuState_};
    shell::ShellStages stages_;
    shell::ShellVoice voice_;
    shell::ShellSettings settings_;
    shell::UserLists lists_;
    shell::Launcher launcher_;
    shell::ZoneCommands zones_;
    shell::MenuFills fills_;
    ShellPlacement placement_{*this, settings_};

    ClockArea* area_ = nullptr;
    ToolBar* toolbar_ = nullptr;
    StatusBar* statusBar_ = nullptr;
    ShellFrame* frame_ = nullptr;
    ShellMenus* menus_ = nullptr;
    std::unique_ptr<ShellHeader> header_;
    std::unique_ptr<ShellLook> look_;
    std::unique_ptr<ShellWindows> windows_;
    std::unique_ptr<ToolBarCommands> buttons_;
    std::unique_ptr<EditTargets> edit_;
    int boxes_ = 0;           ///< that wait for their answers
    bool quitAsked_ = false;  ///< meanwhile
};
