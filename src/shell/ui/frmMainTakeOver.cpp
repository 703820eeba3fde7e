// What the shell does when the program is started once more.
#include "foundation/FileHelpers.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

// The bars stay, also for the screen saver: here somebody is at work with the shell, and goes on.
void frmMain::TakeOver(const QString& commandLine) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (commandLine == u"/s"_s) {
        SetWindowState(2);
        return;
    }
    const QString name = commandLine.trimmed();
    const QString problem = mduLib::ZoneNameProblem(name);
    if (!problem.isEmpty()) {
        ShowStatusMsg(problem);
    } else if (!name.isEmpty()) {
        LaunchTempolark(name);
        ShowStatusMsg(NoticeOf(commandLine));
    }
}
