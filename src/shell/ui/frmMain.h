#pragma once

#include <QMainWindow>
#include <QPointer>
#include <array>
#include <functional>
#include <map>

#include "foundation/Program.h"
#include "foundation/ui/CBalloonToolTip.h"
#include "shell/Arrangement.h"
#include "shell/Eye.h"
#include "shell/LastOpened.h"
#include "shell/Launcher.h"
#include "shell/MenuCommands.h"
#include "shell/StatusMessages.h"

class ClockArea;
class HeaderArt;
class ShellFrame;
class ShellMenus;
class StatusBar;
class ToolBar;

/// The shell: a multiple-document frame that hosts the clocks, launches them and acts on them.
class frmMain final : public QMainWindow, public IForm, public IShell {
public:
    explicit frmMain(const Program& program);
    ~frmMain() override;

    /// Start-up, up to the moment where the program waits for events.
    /// @return false when the program must end at once: its default file is lost.
    bool Load();

    /// Finds the zone for the command line, lays out the folders and reads the lists.
    bool ConfigSetup();

    /// What a later start of the program has asked for: comes to the front, and opens the zone that
    /// the command line names. As a screen saver the shell fills the screen.
    void TakeOver(const QString& commandLine);

    void SaveAutoStartList();

    /// What is to be told about the zone that a command line names; empty when nothing is.
    QString NoticeOf(const QString& commandLine) const;

    QString AppEXEName() const;
    QString DefaultIniFile() const { return program_.Module.Paths.CentralDefaultFile(); }
    QString IniFile() const { return program_.Module.Paths.CentralFile; }

    /// Opens the shell's own settings, or the defaults of a new clock.
    void ShowCentralProperties(bool forNewClock);

    /// The help of the shell, or of the file @p name; the window in front tells the page.
    void ShowHelp(const QString& name = {});

    void ShowEye();  ///< puts the eye's first picture into the status bar

    /// What the menus can do, by name.
    const shell::MenuCommands& Commands() const { return commands_; }

    // IForm
    QString Name() const override { return QStringLiteral("frmMain"); }
    QString Caption() const override { return windowTitle(); }
    int hwnd() const override { return handle_; }
    int WindowState() const override { return isMinimized() ? 1 : isMaximized() ? 2 : 0; }
    void SetWindowState(int state) override;
    bool IsEnabled() const override { return isEnabled(); }
    void EnableWindow(bool enabled) override { setEnabled(enabled); }
    void Show() override { show(); }
    void SetFocus() override { activateWindow(); }
    void Unload() override { close(); }

    // IShell
    void ShowStatusMsg(const QString& text) override;
    int ShowMsgbox(const QString& text, int flags, const QString& title) override;
    int RefreshForm(const QString& zoneName) override;
    void SpeakMessage(const QString& text) override;
    void PurgeSpeech() override;
    void DoMenuItem(float menuId, int index) override;
    int BackColor() const override { return backColour_; }
    int LaunchTempolark(const QString& name) override;
    QString Setting(const QString& name) const override;
    QString RemoveZone(const QString& name) override;
    void ShowClockHelp() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Start and stop (frmMain.cpp)
    void MakeInnerParts();
    void MakeHeader();
    bool LaunchNamedClock();
    static bool NamesAClock(const QString& commandLine);
    void TellUnreadableLists();
    void TellBrokenSettings();
    void ExitShell();
    bool SaveOpenedForms();

    // The run of timerCtrl, the header and the panels (frmMainStages.cpp)
    void TimerCtrl();
    void FirstTick();
    void MessageTick();
    void FillLateMenus();
    void ShowTime();
    void SetHeaderVisible(bool visible);
    void ArrangeHeader();
    void ShowHeaderWhenEmpty();

    // Settings (frmMainSettings.cpp)
    void ApplyCentralProperties(bool keepPlacement);
    void ApplyPlacement();
    void ApplyWindowBorder(const QString& border);
    void ApplyTitleBar(bool shown);
    void ApplyToolbarPosition(const QString& value);
    void ApplyStatusBarPosition(const QString& value);
    void ShowStatusBarAgain();
    void ApplyBackgroundFile();
    int StoredWindowState() const;
    void LayOutHidden();
    bool IsScreenSaverRun() const;
    void ApplyScreenSaverLook();
    void ShowAtStart();
    void FitOnScreen();
    void SetBackgroundColour(const QString& colourName);
    void ApplyBackColour();
    void WriteSetting(const QString& key, const QString& value);
    bool WriteSettings();
    void TellSaved(const QString& what);
    void SaveCentralSettings();
    void SaveWindowPlacement();
    void SaveToolbarLayout();

    // What the menus show (frmMainMenus.cpp)
    void RefreshMenu(const QString& menu);
    void FillFileMenu();
    void FillOpenedAction();
    void RefreshAgentMenu();
    void RefreshBarMenus();
    void MarkItem(const QString& list, const QString& caption);
    void RefreshCentralMenu();
    void RefreshMainMenu();
    void RefreshWindowMenu();
    void ShowWindowMenu(const QPoint& onScreen);
    IForm* ActiveChild() const;

    // Buttons and the windows that they open (frmMainCommands.cpp)
    void HandleToolButton(int index);
    void ShowToolTip(int index);
    void PopupAtButton(int index, const QString& menu);
    void OpenProperties();
    void OpenShortcuts();
    void OpenTimeZones();
    void LaunchDatebrook();
    void OpenHelp(const QString& name, int otherwise);

    // What the entries of the menus do (frmMainMenuCommands.cpp)
    void HandleFileMenus();
    void HandleCentralMenus();
    void HandleClockMenus();
    void HandleWindowMenus();
    void OpenZone(const shell::MenuItem& item);
    void OpenLast(const shell::MenuItem& item);
    void ClickRemove(const shell::MenuItem& item);
    void RunOpenedItem(int index);
    void Arrange(shell::Arrangement code);

    Program program_;
    int handle_;
    int shellStage_ = 2;        ///< 2 until the first tick of timerCtrl, 3 for the next, then 1
    int backColour_ = 8411709;  ///< until a setting names one, that of the default file
    QSize normalSize_;
    QRect appliedPlace_;  ///< where the settings have put the window; null: not yet
    QString newClockTag_ = QStringLiteral("False");
    ClockProperties centralProperties_;
    shell::LastOpened lastOpened_;
    shell::Launcher launcher_;
    shell::StatusMessages status_;
    shell::Eye eye_;
    shell::MenuState menuState_;
    shell::MenuCommands commands_{menuState_};
    std::unique_ptr<platform::Ticker> timerCtrl_;
    std::unique_ptr<platform::Voice> voice_;
    std::array<CBalloonToolTip, 2> balloonTips_;

    ClockArea* area_ = nullptr;
    HeaderArt* header_ = nullptr;
    ToolBar* toolbar_ = nullptr;
    StatusBar* statusBar_ = nullptr;
    ShellFrame* frame_ = nullptr;
    ShellMenus* menus_ = nullptr;
    QPointer<QWidget> timeZones_;
};
