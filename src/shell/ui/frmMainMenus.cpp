// What the shell's menus show, filled in at the moment of opening.
#include <QMdiSubWindow>

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "platform/Files.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/FileList.h"
#include "shell/OpenedMenu.h"
#include "shell/ScreenSaver.h"
#include "shell/ToolbarLook.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/ShellFrame.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int MostFiles = 15;

}  // namespace

void frmMain::RefreshMenu(const QString& menu) {
    if (menu == u"File"_s) {
        FillFileMenu();
    } else if (menu == u"OpenedAction"_s) {
        FillOpenedAction();
    } else if (menu == u"TempolarkAgent"_s) {
        RefreshAgentMenu();
    } else if (menu == u"CentralProperty"_s) {
        RefreshCentralMenu();
    } else if (menu == u"BarsMenu"_s) {
        RefreshBarMenus();
    } else if (menu == u"MainMenu"_s) {
        RefreshMainMenu();
    } else if (menu == u"Window"_s) {
        RefreshWindowMenu();
    } else if (menu == u"View"_s) {
        RefreshBarMenus();
        shell::MenuItem& startup = menuState_[u"ToolsItem"_s](15);
        startup.Caption = shell::IsInRunKey(program_.Services.Settings, AppEXEName())
                              ? u"Remove Auto Start"_s
                              : u"Setup Auto Start"_s;
        startup.Enabled = false;  // tells how things are; it does nothing
    } else if (menu == u"Edit"_s) {
        shell::MenuArray& items = menuState_[u"EditItem"_s];
        for (int i = 1; i <= items.Count(); ++i) {
            items(i).Enabled = false;  // there is nothing in the shell to be edited
        }
    }
}

void frmMain::FillFileMenu() {
    platform::Files& files = program_.Services.FileSystem;
    const PathTable& paths = program_.Module.Paths;
    shell::MenuArray& open = menuState_[u"TimeZone"_s];
    shell::FillFileList(open, files, paths.ZoneFileFolder, u"More"_s, MostFiles);
    shell::MarkOpenItems(open, program_.Windows);
    shell::MenuArray& remove = menuState_[u"DeleteTimeZone"_s];
    shell::FillFileList(remove, files, paths.ZoneFileFolder, u"All"_s, MostFiles);
    shell::MarkOpenItems(remove, program_.Windows);

    // A list that could not be saved is not read back: it would come without its newest names.
    if (SaveOpenedForms()) {
        lastOpened_.LoadOpenedForms(files, paths.OpenedFormsFile());
    }
    shell::MenuArray& last = menuState_[u"FileItem"_s];
    lastOpened_.FillLastOpenedMenu(last, files, paths);
    shell::MarkOpenItems(last, program_.Windows);
}

void frmMain::FillOpenedAction() {
    const QString tag = menuState_[u"Action"_s](1).Caption;
    for (const shell::OpenedCommand& command : shell::OpenedCommands()) {
        if (command.Tag != tag) {
            continue;
        }
        shell::MenuArray& opened = menuState_[u"Opened"_s];
        shell::FillOpenedMenu(opened, program_.Windows, ClockWindowName, command.StyleMask);
        if (command.Run == nullptr) {
            shell::MarkAutoStartItems(opened, program_.Module.AutoStartList);
        }
    }
}

// No agent runs: there is none yet.
void frmMain::RefreshAgentMenu() {
    menuState_[u"TempolarkAgentSpeakerMenu"_s](1).Visible = false;
    menuState_[u"sp1"_s](1).Visible = false;
    shell::MenuArray& actions = menuState_[u"TempolarkAgentAction"_s];
    actions(1) = {u"Add Tempolark Agent To Tray"_s, u"0"_s, true, true, false};
    actions(2) = {u"Run Tempolark Agent"_s, u"0"_s, true, true, false};
}

// The menus of what can be hidden: they stand under CProperty, under View and on the bars.
void frmMain::RefreshBarMenus() {
    struct Face {
        QString Caption, Tag;
    };
    const auto toggle = [this](const QString& item, bool holds, const Face& whenTrue,
                               const Face& whenFalse) {
        const Face& face = holds ? whenTrue : whenFalse;
        menuState_[item](1).Caption = face.Caption;
        menuState_[item](1).Tag = face.Tag;
    };
    const auto says = [this](const QString& key) { return mduUILib::YesNoToBool(Setting(key)); };
    toggle(u"WindowTitleBar"_s, says(u"Window Title Bar"_s), {u"Hide Title Bar"_s, u"Yes"_s},
           {u"Show Title Bar"_s, u"No"_s});
    toggle(u"AutoShowToolTips"_s, says(u"Auto Show Balloon Tips"_s), {u"Hind Tool Tips"_s, u"No"_s},
           {u"Auto Show Tool Tips"_s, u"Yes"_s});
    // Not what the file says: the bar may be hidden for now, and one click brings it back.
    for (const QString& item : {u"HideStatusBar"_s, u"StatusBarAction"_s}) {
        toggle(item, statusBar_->isVisibleTo(frame_), {u"Hide Status Bar"_s, u"Yes"_s},
               {u"Show Status Bar"_s, u"No"_s});
    }
    menuState_[u"ClearStatusMessage"_s](1).Enabled = !status_.Panel().isEmpty();
    MarkItem(u"ToolBarSize"_s, toolbar_->SizeName());
    MarkItem(u"ToolBarPositions"_s, toolbar_->isVisibleTo(frame_)
                                        ? mduUILib::ToolbarPositionName(toolbar_->AlignCode(), true)
                                        : u"Hide"_s);
}

void frmMain::MarkItem(const QString& list, const QString& caption) {
    shell::MenuArray& items = menuState_[list];
    for (int i = 1; i <= items.Count(); ++i) {
        items(i).Checked = items(i).Caption == caption;
    }
}

void frmMain::RefreshCentralMenu() {
    RefreshBarMenus();
    MarkItem(u"BGColour"_s, Setting(u"Window Background Colour"_s));
    shell::FillScreenSaverMenu(menuState_[u"ScreenSaverTime"_s], program_.Services.Settings,
                               AppEXEName());
}

void frmMain::RefreshMainMenu() {
    shell::FillScreenSaverMenu(menuState_[u"ScreenSaverTimeMain"_s], program_.Services.Settings,
                               AppEXEName());
    shell::RefreshAutoStartItem(menuState_[u"AutoStart"_s](1), program_.Services.Settings,
                                AppEXEName());
}

void frmMain::RefreshWindowMenu() {
    const QString windowNames =
        ClockWindowName + u"frmProperties"_s + u"frmShortcuts"_s + u"frmTimeZones"_s;
    shell::MenuArray& windows = menuState_[u"OpenedWindow"_s];
    shell::FillOpenedMenu(windows, program_.Windows, windowNames, shell::StyleFilter::None);
    menuState_[u"WindowItem"_s](9).Visible = windows(1).Enabled;
    const IForm* active = ActiveChild();
    for (int i = 1; i <= windows.Count(); ++i) {
        windows(i).Checked =
            active != nullptr && mduAPILib::IntegerValue(windows(i).Tag) == active->hwnd();
    }
}

void frmMain::ShowWindowMenu(const QPoint& onScreen) {
    menus_->EndMenu();
    menus_->Popup(u"Window"_s, onScreen);
}

IForm* frmMain::ActiveChild() const {
    const QMdiSubWindow* active = area_->activeSubWindow();
    return active != nullptr ? dynamic_cast<IForm*>(active->widget()) : nullptr;
}
