// What the entries of the menus do.
#include <QMdiSubWindow>
#include <QScrollBar>
#include <functional>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/RemovalQuestion.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/FileList.h"
#include "shell/OpenedMenu.h"
#include "shell/ui/AboutBox.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/CustomizeToolbar.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"
#include "shell/ui/frmMain.h"
#include "timezones/ZoneEdition.h"
#include "timezones/ZoneFilesOfRows.h"

using namespace Qt::StringLiterals;

namespace {

const QString IniFilter = u"Ini File (*.ini)"_s;

}  // namespace

void frmMain::HandleFileMenus() {
    using shell::MenuItem;
    commands_.Handle(u"NewClock"_s, [this] { ShowCentralProperties(true); });
    commands_.Handle(u"TimeZone"_s, [this](int, const MenuItem& item) { OpenZone(item); });
    commands_.Handle(u"FileItem"_s, [this](int, const MenuItem& item) { OpenLast(item); });
    commands_.Handle(u"ChooseTimeZone"_s, [this] { OpenTimeZones(); });
    commands_.Handle(u"DeleteTimeZone"_s, [this](int, const MenuItem& item) { ClickRemove(item); });
    commands_.Handle(u"Exit"_s, [this] { Unload(); });
    commands_.Handle(u"SetShortcut"_s, [this] { OpenShortcuts(); });
    commands_.Handle(u"Opened"_s, [this](int i, const MenuItem&) { RunOpenedItem(i); });
    // What comes with the agent and with the system's settings answers until then.
    const auto answer = [this](const QString& text) {
        return [this, text] { ShowStatusMsg(text); };
    };
    commands_.Handle(u"TempolarkAgentAction"_s, answer(u"Tempolark Agent is not here yet"_s));
    commands_.Handle(u"AutoStart"_s, answer(u"Starting with the system can't be set yet"_s));
    for (const QString& list : {u"ScreenSaverTime"_s, u"ScreenSaverTimeMain"_s}) {
        commands_.Handle(list, answer(u"The screen saver can't be set yet"_s));
    }
}

void frmMain::HandleWindowMenus() {
    using shell::MenuItem;
    const auto arranges = [this](shell::Arrangement code) {
        return [this, code] { Arrange(code); };
    };
    const Forms& windows = program_.Windows;
    commands_.Handle(u"Tile"_s, arranges(shell::Arrangement::TileRows));
    commands_.Handle(u"Cascade"_s, arranges(shell::Arrangement::TileColumns));
    commands_.Handle(u"ArrangeIcons"_s, arranges(shell::Arrangement::Icons));
    commands_.Handle(u"MaximiseAll"_s,
                     [this, &windows] { shell::MaximiseAllChildren(windows, *this); });
    commands_.Handle(u"RestoreAll"_s, [&windows] { shell::RestoreAllChildren(windows); });
    commands_.Handle(u"MinimiseAll"_s, [&windows] { shell::MinimiseAllChildren(windows); });
    commands_.Handle(u"CloseAll"_s, [&windows] { shell::CloseAllChildren(windows); });
    commands_.Handle(u"OpenedWindow"_s, [&windows](int, const MenuItem& item) {
        shell::ActivateWindowByHandle(windows, mduAPILib::IntegerValue(item.Tag));
    });
    commands_.Handle(u"Help"_s, [this] { ShowHelp(); });
    commands_.Handle(u"About"_s, [this] {
        ShowAboutBox(this, mduTimeZones::EditionText(program_.Services.Zones.Edition()));
    });
    commands_.Handle(u"Properties"_s, [this] { ShowCentralProperties(false); });
}

void frmMain::HandleCentralMenus() {
    using shell::MenuItem;
    commands_.Handle(u"BGColour"_s,
                     [this](int, const MenuItem& item) { SetBackgroundColour(item.Caption); });
    commands_.Handle(u"WindowTitleBar"_s, [this] {
        const bool shown = !(windowFlags() & Qt::FramelessWindowHint);
        ApplyTitleBar(!shown);
        WriteSetting(u"Window Title Bar"_s, mduUILib::BoolToYesNo(!shown));
    });
    commands_.Handle(u"ToolBarSize"_s, [this](int, const MenuItem& item) {
        toolbar_->ApplyToolbarSize(item.Caption);
        const QString place = Setting(u"Tool Bar"_s);
        if (place != u"None"_s && place != u"Hide"_s) {
            toolbar_->show();
        }
    });
    commands_.Handle(u"ToolBarPositions"_s,
                     [this](int, const MenuItem& item) { ApplyToolbarPosition(item.Caption); });
    commands_.Handle(u"AutoShowToolTips"_s, [this](int, const MenuItem& item) {
        WriteSetting(u"Auto Show Balloon Tips"_s, item.Tag);
    });
    commands_.Handle(u"ToolbarCustomize"_s, [this] { Customize(*toolbar_, this); });
    commands_.Handle(u"SaveToolbarSetting"_s, [this] {
        SaveToolbarLayout();
        TellSaved(u"the toolbar"_s);
    });
    commands_.Handle(u"HideStatusBar"_s, [this](int, const MenuItem& item) {
        if (item.Tag == u"Yes"_s) {
            ApplyStatusBarPosition(u"No"_s);
            WriteSetting(u"Status Bar"_s, u"No"_s);
        } else {
            ShowStatusBarAgain();
        }
    });
    commands_.Handle(u"SaveTempolarkCentralSettings"_s, [this] { SaveCentralSettings(); });
    commands_.Handle(u"StatusBarAction"_s, [this](int, const MenuItem& item) {
        if (item.Tag == u"Yes"_s) {
            statusBar_->hide();  // for now: the file does not hear of it
        } else {
            ShowStatusBarAgain();
        }
    });
    commands_.Handle(u"ClearStatusMessage"_s, [this] {
        status_.Clear();
        statusBar_->SetMessage({});
    });
}

void frmMain::HandleClockMenus() {
    using shell::Broadcast;
    using shell::MenuItem;
    const auto tell = [this](Broadcast kind) {
        return [this, kind](int index, const MenuItem& item) {
            shell::BroadcastToClocks(program_.Windows, kind, index, item.Tag, item.Caption);
        };
    };
    commands_.Handle(u"Clocks"_s, tell(Broadcast::Clocks));
    commands_.Handle(u"SaveSettings"_s, tell(Broadcast::SaveSettings));
    // "More" and "Custom" ask once, for all clocks.
    commands_.Handle(u"ClockStyles"_s, [this, tell](int index, MenuItem item) {
        if (item.Tag.isEmpty()) {
            item.Tag = program_.Services.Dialog.OpenFile(
                u"Clock Styles"_s, program_.Module.Paths.StylesFolder, IniFilter);
        }
        if (!item.Tag.isEmpty()) {
            tell(Broadcast::ClockStyles)(index, item);
        }
    });
    commands_.Handle(u"ClockColours"_s, [this, tell](int index, MenuItem item) {
        if (mduUILib::IsCustomColour(item.Caption)) {
            const int picked = program_.Services.Dialog.PickColour(backColour_);
            if (picked < 0) {
                return;
            }
            item.Tag = QString::number(picked);
        }
        tell(Broadcast::ClockColours)(index, item);
    });
}

void frmMain::DoMenuItem(float menuId, int index) {
    commands_.DoMenuItem(menuId, index);
}

// "More" has no zone of its own.
void frmMain::OpenZone(const shell::MenuItem& item) {
    if (!item.Tag.isEmpty()) {
        LaunchTempolark(item.Tag);
    } else if (launcher_.LaunchFromFileDialog() != 0) {
        SetHeaderVisible(false);
    }
}

void frmMain::OpenLast(const shell::MenuItem& item) {
    if (item.Caption == u"None"_s) {
        return;
    }
    QStringList names = {item.Tag};
    if (item.Caption == u"All"_s) {
        names.clear();
        const shell::MenuArray& items = menuState_[u"FileItem"_s];
        for (int i = 1; i < items.Count(); ++i) {
            names += items(i).Tag;
        }
    }
    for (const QString& name : names) {
        LaunchTempolark(name);
        lastOpened_.PushLastOpened(name);
    }
}

void frmMain::RunOpenedItem(int index) {
    const QString tag = menuState_[u"Action"_s](1).Caption;
    const shell::MenuArray& opened = menuState_[u"Opened"_s];
    for (const shell::OpenedCommand& command : shell::OpenedCommands()) {
        if (command.Tag != tag) {
            continue;
        }
        if (command.Run != nullptr) {
            command.Run(program_.Windows, opened(index).Tag);
            return;
        }
        const bool all = index == opened.Count();
        shell::SetAutoStartEntry(program_.Module.AutoStartList, opened, opened(index).Caption,
                                 opened(all ? 1 : index).Checked);
        SaveAutoStartList();
        return;
    }
}

void frmMain::ClickRemove(const shell::MenuItem& item) {
    const bool all = item.Tag.isEmpty();
    const QStringList names = all ? shell::PropertyFileNames(program_.Services.FileSystem,
                                                             program_.Module.Paths.ZoneFileFolder)
                                  : QStringList{item.Tag};
    const QString question =
        all ? u"Do you want to remove all %1 time zones, with the settings of their clocks?"_s.arg(
                  names.size())
            : u"Do you want to remove the time zone %1, with the settings of its clock?"_s.arg(
                  item.Tag);
    if (ShowMsgbox(question, MsgBox::RemovalQuestion, u"Remove Time Zone"_s) != MsgBox::Yes) {
        return;
    }
    for (const QString& name : names) {
        const QString problem = RemoveZone(name);
        ShowStatusMsg(problem.isEmpty() ? u"Removed the time zone %1"_s.arg(name) : problem);
    }
}

// A clock that is open goes first: it writes its file once more when it closes.
QString frmMain::RemoveZone(const QString& name) {
    shell::CloseClocksOf(program_.Windows, name);
    if (shell::IsClockWindowOpen(program_.Windows, name)) {
        return u"The clock of %1 is still open"_s.arg(name);
    }
    QString problem = mduTimeZones::DeleteZoneFile(program_.Services, program_.Module.Paths, name);
    if (problem.isEmpty() &&
        !mduLib::GetPropertyRaw(name, program_.Module.AutoStartList).isEmpty()) {
        shell::SetAutoStartEntry(program_.Module.AutoStartList, {}, name, true);
        SaveAutoStartList();
    }
    return problem;
}

void frmMain::Arrange(shell::Arrangement code) {
    // What is arranged begins at the area's own corner.
    area_->horizontalScrollBar()->setValue(0);
    area_->verticalScrollBar()->setValue(0);
    if (code == shell::Arrangement::Cascade) {
        area_->cascadeSubWindows();
        return;
    }
    const bool icons = code == shell::Arrangement::Icons;
    QList<QMdiSubWindow*> children;
    for (QMdiSubWindow* child : area_->subWindowList()) {
        if (child->isVisible() && child->isMinimized() == icons) {
            children += child;
        }
    }
    const int count = static_cast<int>(children.size());
    // Not the viewport's: what is arranged needs no scroll bars any more.
    const QSize room = area_->contentsRect().size();
    const std::vector<QRect> places =
        icons ? shell::IconPlaces(count, room, children.isEmpty() ? QSize() : children[0]->size())
              : shell::TilePlaces(count, room, code == shell::Arrangement::TileColumns);
    for (int i = 0; i < count; ++i) {
        if (!icons) {
            children[i]->showNormal();
        }
        children[i]->setGeometry(places[static_cast<std::size_t>(i)]);
    }
}
