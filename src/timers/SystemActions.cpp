#include "timers/SystemActions.h"

#include "foundation/FileHelpers.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int CriticalBox = 16;
constexpr int ExclamationBox = 48;

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

void ShowRefusal(const TimerContext& context, const QString& reason, int flags) {
    if (!reason.isEmpty()) {
        context.Host.ShowMsgbox(reason, flags, u"ExecuteLink"_s);
    }
}

// Nothing for an address, which has no folder on this machine.
QString FolderOf(const platform::Files& files, const QString& path) {
    const qsizetype end = path.lastIndexOf(u'/');
    const QString folder = end < 0 ? QString() : path.left(qMax(end, qsizetype{1}));
    return files.FolderExists(folder) ? folder : QString();
}

}  // namespace

void RunAction(const TimerContext& context, const QString& action) {
    platform::SystemActions& machine = context.Services.Actions;
    for (const ExitAction& exit : ExitActions) {
        if (action == exit.Text) {
            ShowRefusal(context, machine.ExitWindowsEx(exit.Flags), ExclamationBox);
            return;
        }
    }
    if (action == ActionText::LockWorkstation) {
        ShowRefusal(context, machine.LockWorkStation(), ExclamationBox);
        return;
    }
    if (action.isEmpty()) {
        return;
    }
    const QString path =
        mduLib::ResolveAppPath(mduLib::ToStoredPath(action), context.Module.Paths.AppFolder);
    ShowRefusal(context, machine.Open(path, FolderOf(context.Services.FileSystem, path)),
                CriticalBox);
}

}  // namespace timers
