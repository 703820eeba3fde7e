#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>

#include "clock/ui/frmTempolark.h"
#include "foundation/SetupPaths.h"
#include "platform/AbsentDevices.h"
#include "platform/LocalFiles.h"
#include "platform/SystemClock.h"
#include "platform/SystemServices.h"
#include "platform/TzZoneDatabase.h"
#include "platform/ui/DesktopDialogs.h"

using namespace Qt::StringLiterals;

namespace {

/// A program folder with the default files, and a shell's frame to launch into.
struct Desk {
    QTemporaryDir Folder;
    platform::SystemClock Clock;
    platform::TzZoneDatabase Zones{Clock};
    platform::LocalFiles Files;
    platform::NamedAccount User{u"bench"_s};
    platform::FileSettings Settings{Folder.filePath(u"Settings.ini"_s)};
    platform::NoActions Actions;
    platform::NoVoices Voices;
    platform::NoPlayers Players;
    platform::NoSound Sound;
    platform::DesktopDialogs Dialogs;
    platform::NoTray Tray;
    platform::NoHelp Help;
    platform::SystemRandom Random{1};
    platform::Services Services{Clock,   Zones, Files,   User, Settings, Actions, Voices,
                                Players, Sound, Dialogs, Tray, Help,     Random};
    ModuleState Module;
    Forms Windows;
    QMdiArea Area;

    Desk() {
        QDir().mkdir(Folder.filePath(u"ini"_s));
        const QDir defaults(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini"));
        for (const QString& name : defaults.entryList(QDir::Files)) {
            QFile::copy(defaults.filePath(name), Folder.filePath(u"ini/"_s + name));
        }
        Module.Paths.AppFolder = Folder.path();
        ClockProperties central;
        mduMain::SetupFiles(Module, Services, u"UTC"_s, central);
        Area.resize(1000, 700);
        Area.show();
    }
};

/// From the name to a running clock: load, first tick, redraw. The zone has a file already.
void LaunchOneClock(benchmark::State& state) {
    Desk desk;
    const Program program{desk.Services, desk.Module, desk.Windows};
    for (auto _ : state) {
        auto* clock = new frmTempolark(program, nullptr, &desk.Area);
        clock->ShowMeMDIChild(u"Tokyo Standard Time"_s);
        clock->Tick();
        clock->Tick();
        state.PauseTiming();
        clock->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

BENCHMARK(LaunchOneClock)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
