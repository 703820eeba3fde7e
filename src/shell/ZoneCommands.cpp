#include "shell/ZoneCommands.h"

#include "foundation/RemovalQuestion.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/FileList.h"
#include "shell/OpenedMenu.h"
#include "timezones/ZoneFilesOfRows.h"

using namespace Qt::StringLiterals;

namespace shell {

ZoneCommands::ZoneCommands(const Program& program, MenuState& state, UserLists& lists,
                           IShell& shell, std::function<void()> launchFromFile)
    : program_(program),
      state_(state),
      lists_(lists),
      shell_(shell),
      launchFromFile_(std::move(launchFromFile)) {}

void ZoneCommands::AddTo(MenuCommands& commands) {
    commands.Handle(u"TimeZone"_s, [this](int, const MenuItem& item) { OpenZone(item); });
    commands.Handle(u"FileItem"_s, [this](int, const MenuItem& item) { OpenLast(item); });
    commands.Handle(u"DeleteTimeZone"_s, [this](int, const MenuItem& item) { ClickRemove(item); });
    commands.Handle(u"Opened"_s, [this](int index, const MenuItem&) { RunOpenedItem(index); });
}

// "More" has no zone of its own.
void ZoneCommands::OpenZone(const MenuItem& item) const {
    if (item.Tag.isEmpty()) {
        launchFromFile_();
    } else {
        shell_.LaunchTempolark(item.Tag);
    }
}

void ZoneCommands::OpenLast(const MenuItem& item) const {
    if (item.Caption == u"None"_s) {
        return;
    }
    QStringList names = {item.Tag};
    if (item.Caption == u"All"_s) {
        names.clear();
        const MenuArray& items = state_[u"FileItem"_s];
        for (int i = 1; i < items.Count(); ++i) {
            names += items(i).Tag;
        }
    }
    for (const QString& name : names) {
        shell_.LaunchTempolark(name);
        lists_.Opened().PushLastOpened(name);
    }
}

void ZoneCommands::RunOpenedItem(int index) const {
    const QString tag = state_[u"Action"_s](1).Caption;
    const MenuArray& opened = state_[u"Opened"_s];
    for (const OpenedCommand& command : OpenedCommands()) {
        if (command.Tag != tag) {
            continue;
        }
        if (command.Run != nullptr) {
            command.Run(program_.Windows, opened(index).Tag);
        } else {
            TurnAutoStart(opened, index);
        }
        return;
    }
}

// "All" goes by the first of the list.
void ZoneCommands::TurnAutoStart(const MenuArray& opened, int index) const {
    const bool all = index == opened.Count();
    SetAutoStartEntry(program_.Module.AutoStartList, opened, opened(index).Caption,
                      opened(all ? 1 : index).Checked);
    lists_.SaveAutoStartList();
}

void ZoneCommands::ClickRemove(const MenuItem& item) const {
    const bool all = item.Tag.isEmpty();
    const QStringList names =
        all ? PropertyFileNames(program_.Services.FileSystem, program_.Module.Paths.ZoneFileFolder)
            : QStringList{item.Tag};
    const QString question =
        all ? u"Do you want to remove all %1 time zones, with the settings of their clocks?"_s.arg(
                  names.size())
            : u"Do you want to remove the time zone %1, with the settings of its clock?"_s.arg(
                  item.Tag);
    if (shell_.ShowMsgbox(question, MsgBox::RemovalQuestion, u"Remove Time Zone"_s) !=
        MsgBox::Yes) {
        return;
    }
    for (const QString& name : names) {
        const QString problem = RemoveZone(name);
        shell_.ShowStatusMsg(problem.isEmpty() ? u"Removed the time zone %1"_s.arg(name) : problem);
    }
}

// A clock that is open goes first: it writes its file once more when it closes.
QString ZoneCommands::RemoveZone(const QString& name) const {
    CloseClocksOf(program_.Windows, name);
    if (IsClockWindowOpen(program_.Windows, name)) {
        return u"The clock of %1 is still open"_s.arg(name);
    }
    QString problem = mduTimeZones::DeleteZoneFile(program_.Services, program_.Module.Paths, name);
    if (problem.isEmpty()) {
        lists_.ForgetAutoStart(name);
    }
    return problem;
}

}  // namespace shell
