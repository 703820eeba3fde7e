#include "shell/MenuFills.h"

#include <map>

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/SystemSettings.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/EditMenu.h"
#include "shell/FileList.h"
#include "shell/OpenedMenu.h"
#include "shell/ScreenSaver.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int MostFiles = 15;

/// What an entry shows while something holds, or does not.
struct Face {
    QString Caption, Tag;
};

void Show(MenuItem& item, const Face& face) {
    item.Caption = face.Caption;
    item.Tag = face.Tag;
}

}  // namespace

MenuFills::MenuFills(const Program& program, MenuState& state, ShellSettings& settings,
                     UserLists& lists, Sources sources)
    : program_(program),
      state_(state),
      settings_(settings),
      lists_(lists),
      sources_(std::move(sources)) {}

void MenuFills::Refresh(const QString& menu) const {
    static const std::map<QString, void (MenuFills::*)() const> fills = {
        {u"File"_s, &MenuFills::FillFileMenu},
        {u"OpenedAction"_s, &MenuFills::FillOpenedAction},
        {u"TempolarkAgent"_s, &MenuFills::RefreshAgentMenu},
        {u"CentralProperty"_s, &MenuFills::RefreshCentralMenu},
        {u"BarsMenu"_s, &MenuFills::RefreshBarMenus},
        {u"MainMenu"_s, &MenuFills::RefreshMainMenu},
        {u"Window"_s, &MenuFills::RefreshWindowMenu},
        {u"View"_s, &MenuFills::RefreshViewMenu},
        {u"Edit"_s, &MenuFills::RefreshEditMenu},
    };
    const auto found = fills.find(menu);
    if (found != fills.end()) {
        (this->*found->second)();
    }
}

void MenuFills::FillFileMenu() const {
    platform::Files& files = program_.Services.FileSystem;
    const QString& folder = program_.Module.Paths.ZoneFileFolder;
    MenuArray& open = state_[u"TimeZone"_s];
    FillFileList(open, files, folder, u"More"_s, MostFiles);
    MarkOpenItems(open, program_.Windows);
    MenuArray& remove = state_[u"DeleteTimeZone"_s];
    FillFileList(remove, files, folder, u"All"_s, MostFiles);
    MarkOpenItems(remove, program_.Windows);

    // A list that could not be saved is not read back: it would come without its newest names.
    if (lists_.SaveOpenedForms()) {
        lists_.LoadOpenedForms();
    }
    MenuArray& last = state_[u"FileItem"_s];
    lists_.FillLastOpenedMenu(last);
    MarkOpenItems(last, program_.Windows);
}

void MenuFills::FillOpenedAction() const {
    const QString tag = state_[u"Action"_s](1).Caption;
    for (const OpenedCommand& command : OpenedCommands()) {
        if (command.Tag != tag) {
            continue;
        }
        MenuArray& opened = state_[u"Opened"_s];
        FillOpenedMenu(opened, program_.Windows, ClockWindowName, command.StyleMask);
        if (command.Run == nullptr) {
            MarkAutoStartItems(opened, program_.Module.AutoStartList);
        }
    }
}

// No agent runs: there is none yet.
void MenuFills::RefreshAgentMenu() const {
    state_[u"TempolarkAgentSpeakerMenu"_s](1).Visible = false;
    state_[u"sp1"_s](1).Visible = false;
    MenuArray& actions = state_[u"TempolarkAgentAction"_s];
    actions(1) = {u"Add Tempolark Agent To Tray"_s, u"0"_s, true, true, false};
    actions(2) = {u"Run Tempolark Agent"_s, u"0"_s, true, true, false};
}

// The menus of what can be hidden: they stand under CProperty, under View and on the bars.
void MenuFills::RefreshBarMenus() const {
    const CentralLook look = sources_.Look();
    const auto toggle = [this](const QString& item, bool holds, const Face& whenTrue,
                               const Face& whenFalse) {
        Show(state_[item](1), holds ? whenTrue : whenFalse);
    };
    toggle(u"WindowTitleBar"_s, settings_.Says(u"Window Title Bar"_s),
           {u"Hide Title Bar"_s, u"Yes"_s}, {u"Show Title Bar"_s, u"No"_s});
    toggle(u"AutoShowToolTips"_s, settings_.Says(u"Auto Show Balloon Tips"_s),
           {u"Hind Tool Tips"_s, u"No"_s},  // spelt as meant
           {u"Auto Show Tool Tips"_s, u"Yes"_s});
    // Not what the file says: the bar may be hidden for now, and one click brings it back.
    for (const QString& item : {u"HideStatusBar"_s, u"StatusBarAction"_s}) {
        toggle(item, look.StatusBarVisible, {u"Hide Status Bar"_s, u"Yes"_s},
               {u"Show Status Bar"_s, u"No"_s});
    }
    state_[u"ClearStatusMessage"_s](1).Enabled = sources_.HasMessage();
    MarkItem(u"ToolBarSize"_s, look.ToolbarSize);
    MarkItem(u"ToolBarPositions"_s, look.ToolbarVisible
                                        ? mduUILib::ToolbarPositionName(look.ToolbarAlign, true)
                                        : u"Hide"_s);
}

void MenuFills::MarkItem(const QString& list, const QString& caption) const {
    MenuArray& items = state_[list];
    for (int i = 1; i <= items.Count(); ++i) {
        items(i).Checked = items(i).Caption == caption;
    }
}

void MenuFills::RefreshCentralMenu() const {
    RefreshBarMenus();
    MarkItem(u"BGColour"_s, settings_.Setting(u"Window Background Colour"_s));
    FillScreenSaverMenu(state_[u"ScreenSaverTime"_s], program_.Services.Settings,
                        program_.Module.Paths.AppEXEName());
}

void MenuFills::RefreshMainMenu() const {
    const QString program = program_.Module.Paths.AppEXEName();
    FillScreenSaverMenu(state_[u"ScreenSaverTimeMain"_s], program_.Services.Settings, program);
    RefreshAutoStartItem(state_[u"AutoStart"_s](1), program_.Services.Settings, program);
}

void MenuFills::RefreshWindowMenu() const {
    const QString windowNames =
        ClockWindowName + u"frmProperties"_s + u"frmShortcuts"_s + u"frmTimeZones"_s;
    MenuArray& windows = state_[u"OpenedWindow"_s];
    FillOpenedMenu(windows, program_.Windows, windowNames, StyleFilter::None);
    state_[u"WindowItem"_s](9).Visible = windows(1).Enabled;
    const int active = sources_.ActiveHandle();
    for (int i = 1; i <= windows.Count(); ++i) {
        windows(i).Checked = active != 0 && mduAPILib::IntegerValue(windows(i).Tag) == active;
    }
}

void MenuFills::RefreshViewMenu() const {
    RefreshBarMenus();
    MenuItem& startup = state_[u"ToolsItem"_s](15);
    startup.Caption =
        mduLib::IsInRunKey(program_.Services.Settings, program_.Module.Paths.AppEXEName())
            ? u"Remove Auto Start"_s
            : u"Setup Auto Start"_s;
    startup.Enabled = false;  // tells how things are; it does nothing
}

void MenuFills::RefreshEditMenu() const {
    RefreshEditItems(state_[u"EditItem"_s], sources_.CanEdit, sources_.EditKeysHold());
}

}  // namespace shell
