#pragma once

#include <QMainWindow>

#include "shell/FakeShell.h"
#include "shell/MenuCommands.h"
#include "shell/SettingsDesk.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/ShellFrame.h"
#include "shell/ui/ShellHeader.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"

/// The inner parts of the shell's window, in a window of the test.
struct BarsDesk : SettingsDesk {
    QStringList Log;
    FakeShell Shell;
    shell::MenuState State;
    shell::MenuCommands Commands{State};
    QMainWindow Window;
    ClockArea* Area = new ClockArea(&Window);
    ToolBar* Toolbar = new ToolBar(Machine.Files, QStringLiteral("no pictures"),
                                   {[](int) {}, [](int) {}, [](const QPoint&) {}}, &Window);
    StatusBar* Status = new StatusBar({}, &Window);
    ShellFrame* Frame = new ShellFrame(Area, Toolbar, Status, &Window);
    ShellMenus* Menus = new ShellMenus(
        &Window, State,
        {[this](const QString& menu) { Log += QStringLiteral("refresh ") + menu; }, {}});
    ShellHeader Header{TheProgram, *Area, Settings, [this] { Log += QStringLiteral("invited"); },
                       [this](const QPoint&) { Log += QStringLiteral("menu"); }};

    BarsDesk() {
        Window.setCentralWidget(Frame);
        Window.resize(600, 400);
    }

    /// Clicks an entry whose item says this.
    void Click(const QString& entry, const QString& caption, const QString& tag = {}) {
        State[entry](1) = {caption, tag};
        if (!Commands.Click(entry, 1)) {
            qFatal("no command: %s", qPrintable(entry));
        }
    }
};
