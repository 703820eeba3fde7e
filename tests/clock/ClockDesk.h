#pragma once

#include <QMdiArea>

#include "clock/ui/frmTempolark.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

/// A shell that remembers what it is told.
struct FakeShell final : IShell {
    QStringList Messages;
    QStringList Boxes;  ///< each as "title: text"
    int Colour = 0x804020;
    int Helps = 0;
    std::vector<ShellWindow> Opened;
    QStringList AutoStarts;  ///< each as "zone on" or "zone off"
    void ShowStatusMsg(const QString& text) override { Messages += text; }
    int ShowMsgbox(const QString& text, int, const QString& title) override {
        Boxes += title + u": "_s + text;
        return 1;
    }
    int RefreshForm(const QString&) override { return 0; }
    void SpeakMessage(const QString&) override {}
    void PurgeSpeech() override {}
    void DoMenuItem(float, int) override {}
    int BackColor() const override { return Colour; }
    int LaunchTempolark(const QString&) override { return 0; }
    QString Setting(const QString&) const override { return {}; }
    QString RemoveZone(const QString&) override { return {}; }
    void ShowClockHelp() override { ++Helps; }
    void OpenWindow(ShellWindow window) override { Opened.push_back(window); }
    void SetAutoStart(const QString& name, bool on) override {
        AutoStarts += name + (on ? u" on"_s : u" off"_s);
    }
};

/// A frame of the shell with nothing in it.
struct Desk : MachineWithZones {
    FakeShell Shell;
    QMdiArea Area;

    Desk() {
        ClockProperties central;
        mduMain::SetupFiles(Module, Services, u"UTC"_s, central);
        Area.resize(800, 600);
        Area.show();
    }

    frmTempolark* Launch(const QString& zone) {
        auto* clock = new frmTempolark(TheProgram, &Shell, &Area);
        if (!clock->ShowMeMDIChild(zone)) {
            delete clock;
            return nullptr;
        }
        return clock;
    }

    /// A clock after its first tick and its redraw.
    frmTempolark* Running(const QString& zone) {
        frmTempolark* clock = Launch(zone);
        Machine.Clock.Advance(30);
        return clock;
    }

    QString Key(const QString& zone, const QString& name) const {
        ClockProperties properties;
        mduLib::ReadPropertyFile(Machine.Files, Path(zone), properties);
        return mduLib::GetProperty(name, properties);
    }
    QString Path(const QString& zone) const {
        return Machine.AppFolder() + u"/tester/TimeZones/"_s + zone + u".ini"_s;
    }
    void Close(frmTempolark* clock) {
        clock->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};
