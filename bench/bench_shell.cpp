// Commands to all of two hundred clocks at once, in the real shell.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "Desk.h"
#include "shell/ClockCommands.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Clocks = 200;
const QString All = u"0"_s;

struct ShellDesk : Desk {
    ShellDesk() {
        Module.CommandLine = u"UTC"_s;
        Shell = std::make_unique<frmMain>(Program{Services, Module, Windows});
        Shell->Load();
    }
    void Fill() {
        for (int i = Windows.Count() - 1; i < Clocks; ++i) {
            Shell->LaunchTempolark(u"UTC"_s);
        }
        QCoreApplication::processEvents();
    }
    void Run(int message, int wParam) {
        shell::SendToClock(Windows, All, message, wParam);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    std::unique_ptr<frmMain> Shell;
};

void CloseAll(benchmark::State& state) {
    ShellDesk desk;
    for (auto _ : state) {
        state.PauseTiming();
        desk.Fill();
        state.ResumeTiming();
        desk.Run(shell::WindowMessage::Close, 0);
    }
}
BENCHMARK(CloseAll)->Unit(benchmark::kMillisecond)->Iterations(3);

void MinimiseAndRestoreAll(benchmark::State& state) {
    ShellDesk desk;
    desk.Fill();
    for (auto _ : state) {
        desk.Run(shell::WindowMessage::SystemCommand, shell::WindowMessage::Minimise);
        desk.Run(shell::WindowMessage::SystemCommand, shell::WindowMessage::Restore);
    }
}
BENCHMARK(MinimiseAndRestoreAll)->Unit(benchmark::kMillisecond)->Iterations(3);

void DisableAndEnableAll(benchmark::State& state) {
    ShellDesk desk;
    desk.Fill();
    for (auto _ : state) {
        shell::EnableClock(desk.Windows, All, 0);
        shell::EnableClock(desk.Windows, All, -1);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(DisableAndEnableAll)->Unit(benchmark::kMillisecond)->Iterations(3);

/// A new kind for every clock, and back.
void ChangeTheKindOfAll(benchmark::State& state) {
    ShellDesk desk;
    desk.Fill();
    for (auto _ : state) {
        shell::BroadcastToClocks(desk.Windows, shell::Broadcast::Clocks, 2, {}, {});
        QCoreApplication::processEvents();
        shell::BroadcastToClocks(desk.Windows, shell::Broadcast::Clocks, 1, {}, {});
        QCoreApplication::processEvents();
    }
}
BENCHMARK(ChangeTheKindOfAll)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
