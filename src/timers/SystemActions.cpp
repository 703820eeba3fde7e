#include "timers/SystemActions.h"

#include <QDebug>
#include <algorithm>
#include <iterator>

#include "foundation/FileHelpers.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/SystemActions.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int CriticalBox = 16;

struct ExitAction {
    QLatin1StringView Text;
    unsigned Flags;
};

// Logging off, shutting down (1), restarting (2); forced (4) with the power switched off (8).
constexpr ExitAction ExitActions[] = {
    {ActionText::LogOff, 0},
    {ActionText::NormalShutdown, 1},
    {ActionText::Reboot, 2},
    {ActionText::ForcedShutdown, 13},
};

// Nothing for an address, which has no folder on this machine.
QString FolderOf(const platform::Files& files, const QString& path) {
    const qsizetype end = path.lastIndexOf(u'/');
    const QString folder = end < 0 ? QString() : path.left(qMax(end, qsizetype{1}));
    return files.FolderExists(folder) ? folder : QString();
}

}  // namespace

void ActionRunner::RunAction(const QString& action) {
    const auto exit = std::find_if(std::begin(ExitActions), std::end(ExitActions),
                                   [&](const ExitAction& each) { return action == each.Text; });
    if (exit != std::end(ExitActions)) {
        Exit(action, exit->Flags);
    } else if (action == ActionText::LockWorkstation) {
        Lock();
    } else if (!action.isEmpty()) {
        Open(action);
    }
}

void ActionRunner::Exit(const QString& action, unsigned flags) {
    context_.Services.Actions.Begin(
        [flags](platform::SystemActions& machine) { return machine.ExitWindowsEx(flags); },
        TellRefusal(action));
}

void ActionRunner::Lock() {
    context_.Services.Actions.Begin(
        [](platform::SystemActions& machine) { return machine.LockWorkStation(); },
        TellRefusal(ActionText::LockWorkstation));
}

void ActionRunner::Open(const QString& action) {
    const QString path =
        mduLib::ResolveAppPath(mduLib::ToStoredPath(action), context_.Module.Paths.AppFolder);
    const QString folder = FolderOf(context_.Services.FileSystem, path);
    context_.Services.Actions.Begin(
        [path, folder](platform::SystemActions& machine) { return machine.Open(path, folder); },
        [&dialogs = context_.Services.Dialog](const QString& reason) {
            if (!reason.isEmpty()) {
                dialogs.PostMessageBox(reason, CriticalBox, u"ExecuteLink"_s);
            }
        });
}

// The clock may have been closed by the time of the answer; the error output hears it all the same.
std::function<void(const QString&)> ActionRunner::TellRefusal(const QString& action) const {
    return
        [action, host = &context_.Host, life = std::weak_ptr<bool>(life_)](const QString& reason) {
            if (reason.isEmpty()) {
                return;
            }
            const QString text = u"%1 was refused: %2"_s.arg(action, reason);
            qWarning().noquote() << text;
            if (!life.expired()) {
                host->ShowStatus(text);
            }
        };
}

}  // namespace timers
