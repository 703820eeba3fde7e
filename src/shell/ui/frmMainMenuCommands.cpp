// What the entries of the menus do.
#include <QMdiSubWindow>
#include <QScrollBar>
#include <functional>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/RemovalQuestion.h"
#include "platform/Dialogs.h"
#include "platform/ZoneDatabase.h"
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

/// The menus as `DoMenuItem` counts them.
namespace MenuId {
constexpr float TimeZone = 1;
constexpr float Window = 8;
constexpr float Main = 9;
}  // namespace MenuId

const QString IniFilter = u"Ini File (*.ini)"_s;

}  // namespace

void frmMain::ClickMenu(const QString& name, int index) {
    const auto handler = handlers_.find(name);
    if (handler != handlers_.end()) {
        handler->second(index, menuState_[name](index));
    }
}

void frmMain::HandleFileMenus() {
    using shell::MenuItem;
    handlers_[u"NewClock"_s] = [this](int, const MenuItem&) { ShowCentralProperties(true); };
    handlers_[u"TimeZone"_s] = [this](int i, const MenuItem&) { DoMenuItem(MenuId::TimeZone, i); };
    handlers_[u"FileItem"_s] = [this](int, const MenuItem& item) { OpenLast(item); };
    handlers_[u"ChooseTimeZone"_s] = [this](int, const MenuItem&) { OpenTimeZones(); };
    handlers_[u"DeleteTimeZone"_s] = [this](int, const MenuItem& item) { ClickRemove(item); };
    handlers_[u"Exit"_s] = [this](int, const MenuItem&) { Unload(); };
    handlers_[u"SetShortcut"_s] = [this](int, const MenuItem&) { OpenShortcuts(); };
    handlers_[u"Opened"_s] = [this](int i, const MenuItem&) { RunOpenedItem(i); };
    handlers_[u"WindowItem"_s] = [this](int i, const MenuItem&) { DoMenuItem(MenuId::Window, i); };
    handlers_[u"OpenedWindow"_s] = [this](int, const MenuItem& item) {
        shell::ActivateWindowByHandle(program_.Windows, mduAPILib::IntegerValue(item.Tag));
    };
    handlers_[u"MainItem"_s] = [this](int i, const MenuItem&) { DoMenuItem(MenuId::Main, i); };
    // What comes with the agent and with the system's settings answers until then.
    const auto answer = [this](const QString& text) {
        return [this, text](int, const MenuItem&) { ShowStatusMsg(text); };
    };
    handlers_[u"TempolarkAgentAction"_s] = answer(u"Tempolark Agent is not here yet"_s);
    handlers_[u"AutoStart"_s] = answer(u"Starting with the system can't be set yet"_s);
    handlers_[u"ScreenSaverTime"_s] = answer(u"The screen saver can't be set yet"_s);
    handlers_[u"ScreenSaverTimeMain"_s] = handlers_[u"ScreenSaverTime"_s];
}

void frmMain::HandleCentralMenus() {
    using shell::MenuItem;
    handlers_[u"BGColour"_s] = [this](int, const MenuItem& item) {
        SetBackgroundColour(item.Caption);
    };
    handlers_[u"WindowTitleBar"_s] = [this](int, const MenuItem&) {
        const bool shown = !(windowFlags() & Qt::FramelessWindowHint);
        ApplyTitleBar(!shown);
        WriteSetting(u"Window Title Bar"_s, mduUILib::BoolToYesNo(!shown));
    };
    handlers_[u"ToolBarSize"_s] = [this](int, const MenuItem& item) {
        toolbar_->ApplyToolbarSize(item.Caption);
        const QString place = Setting(u"Tool Bar"_s);
        if (place != u"None"_s && place != u"Hide"_s) {
            toolbar_->show();
        }
    };
    handlers_[u"ToolBarPositions"_s] = [this](int, const MenuItem& item) {
        ApplyToolbarPosition(item.Caption);
    };
    handlers_[u"AutoShowToolTips"_s] = [this](int, const MenuItem& item) {
        WriteSetting(u"Auto Show Balloon Tips"_s, item.Tag);
    };
    handlers_[u"ToolbarCustomize"_s] = [this](int, const MenuItem&) { Customize(*toolbar_, this); };
    handlers_[u"SaveToolbarSetting"_s] = [this](int, const MenuItem&) {
        if (SaveToolbarLayout()) {
            TellSaved(u"the toolbar"_s);
        } else {
            ShowStatusMsg(u"The toolbar can't be written"_s);
        }
    };
    handlers_[u"HideStatusBar"_s] = [this](int, const MenuItem& item) {
        if (item.Tag == u"Yes"_s) {
            ApplyStatusBarPosition(u"No"_s);
            WriteSetting(u"Status Bar"_s, u"No"_s);
        } else {
            ShowStatusBarAgain();
        }
    };
    handlers_[u"SaveTempolarkCentralSettings"_s] = [this](int, const MenuItem&) {
        SaveCentralSettings();
    };
    handlers_[u"StatusBarAction"_s] = [this](int, const MenuItem& item) {
        if (item.Tag == u"Yes"_s) {
            statusBar_->hide();  // for now: the file does not hear of it
        } else {
            ShowStatusBarAgain();
        }
    };
    handlers_[u"ClearStatusMessage"_s] = [this](int, const MenuItem&) {
        status_.Clear();
        statusBar_->SetMessage({});
    };
}

void frmMain::HandleClockMenus() {
    using shell::Broadcast;
    using shell::MenuItem;
    const auto tell = [this](Broadcast kind) {
        return [this, kind](int index, const MenuItem& item) {
            shell::BroadcastToClocks(program_.Windows, kind, index, item.Tag, item.Caption);
        };
    };
    handlers_[u"Clocks"_s] = tell(Broadcast::Clocks);
    handlers_[u"SaveSettings"_s] = tell(Broadcast::SaveSettings);
    // "More" and "Custom" ask once, for all clocks.
    handlers_[u"ClockStyles"_s] = [this, tell](int index, MenuItem item) {
        if (item.Tag.isEmpty()) {
            item.Tag = program_.Services.Dialog.OpenFile(
                u"Clock Styles"_s, program_.Module.Paths.StylesFolder, IniFilter);
        }
        if (!item.Tag.isEmpty()) {
            tell(Broadcast::ClockStyles)(index, item);
        }
    };
    handlers_[u"ClockColours"_s] = [this, tell](int index, MenuItem item) {
        if (mduUILib::IsCustomColour(item.Caption)) {
            const int picked = program_.Services.Dialog.PickColour(backColour_);
            if (picked < 0) {
                return;
            }
            item.Tag = QString::number(picked);
        }
        tell(Broadcast::ClockColours)(index, item);
    };
}

void frmMain::DoMenuItem(float menuId, int index) {
    if (menuId == MenuId::TimeZone) {
        const shell::MenuArray& zones = menuState_[u"TimeZone"_s];
        if (index < 1 || index > zones.Count()) {
            return;
        }
        const QString tag = zones(index).Tag;
        if (!tag.isEmpty()) {
            LaunchTempolark(tag);
        } else if (launcher_.LaunchFromFileDialog() != 0) {
            SetHeaderVisible(false);
        }
    } else if (menuId == MenuId::Window) {
        switch (index) {
            case 1:
            case 2:
            case 3:
                Arrange(static_cast<shell::Arrangement>(index));
                break;
            case 4:
                shell::MaximiseAllChildren(program_.Windows, *this);
                break;
            case 5:
                shell::RestoreAllChildren(program_.Windows);
                break;
            case 6:
                shell::MinimiseAllChildren(program_.Windows);
                break;
            case 8:
                shell::CloseAllChildren(program_.Windows);
                break;
            default:
                break;
        }
    } else if (menuId == MenuId::Main) {
        switch (index) {
            case 3:
                Unload();
                break;
            case 5:
                ShowHelp();
                break;
            case 6:
                ShowAboutBox(this, mduTimeZones::EditionText(program_.Services.Zones.Edition()));
                break;
            case 8:
                SaveCentralSettings();
                break;
            case 9:
                ShowCentralProperties(false);
                break;
            default:
                break;
        }
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
