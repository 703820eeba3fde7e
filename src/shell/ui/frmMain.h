#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>

#include "foundation/Program.h"
#include "shell/Arrangement.h"
#include "shell/LastOpened.h"
#include "shell/Launcher.h"
#include "shell/MenuArray.h"
#include "shell/StatusMessages.h"

class MessagePanel;
class QMenu;
class QToolButton;

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

    void SaveAutoStartList();

    QString AppEXEName() const;
    QString DefaultIniFile() const { return program_.Module.Paths.CentralDefaultFile(); }
    QString IniFile() const { return program_.Module.Paths.CentralFile; }

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

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Start and stop (frmMain.cpp)
    void MakeInnerParts();
    bool LaunchNamedClock();
    void TellUnreadableLists();
    void SetHeaderVisible(bool visible);
    void PlaceHeader();
    void ExitShell();
    bool SaveOpenedForms();
    void TimerCtrl();
    void RefreshPanels();

    // Settings (frmMainSettings.cpp)
    void ApplyCentralProperties(bool keepPlacement);
    void ApplyPlacement();
    int StoredWindowState() const;
    void LayOutHidden();
    bool IsScreenSaverRun() const;
    void ApplyScreenSaverLook();
    void ShowAtStart();
    void SetBackgroundColour(const QString& colourName);
    void SaveWindowPlacement();

    // Menus and commands (frmMainMenus.cpp)
    void MakeToolbar();
    QToolButton* AddButton(const QString& tag, const QString& toolTip, QMenu* menu);
    QMenu* MakeFileMenu();
    void FillFileMenu();
    void FillZoneMenu(QMenu& menu);
    QMenu* MakeOpenedMenu(const QString& tag);
    void FillOpenedAction(const QString& tag, QMenu& menu);
    void RunOpenedItem(const QString& tag, int index);
    QMenu* MakeWindowMenu();
    void FillWindowMenu(QMenu& menu);
    void OpenLast(int index);
    void Arrange(shell::Arrangement code);
    IForm* ActiveChild() const;

    Program program_;
    int handle_;
    int backColour_ = 0;
    QSize normalSize_;
    ClockProperties centralProperties_;
    shell::LastOpened lastOpened_;
    shell::Launcher launcher_;
    shell::StatusMessages status_;
    std::unique_ptr<platform::Ticker> timerCtrl_;

    shell::MenuArray timeZone_, fileItem_, opened_, openedWindow_;
    QMenu* openMenu_ = nullptr;
    QMenu* lastOpenedMenu_ = nullptr;

    QMdiArea* area_ = nullptr;
    QLabel* header_ = nullptr;
    MessagePanel* messagePanel_ = nullptr;
    QLabel* timePanel_ = nullptr;
};
