#include <benchmark/benchmark.h>

#include <QApplication>

#include "Desk.h"
#include "clock/ui/frmTempolark.h"

using namespace Qt::StringLiterals;

namespace {

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
