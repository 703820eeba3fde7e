// Applying a style to a running clock, and what a hundred clocks with one picture take of memory.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>

#include "Desk.h"
#include "clock/ui/frmTempolark.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace {

QString StylePath(const QString& name) {
    return u"" TEMPOLARK_STYLES_DIR "/"_s + name;
}

frmTempolark* Running(const Program& program, Desk& desk, const QString& zone) {
    auto* clock = new frmTempolark(program, nullptr, &desk.Area);
    clock->ShowMeMDIChild(zone);
    clock->Tick();
    clock->Tick();
    return clock;
}

/// The styles one after the other onto one clock, as a user tries them.
void ApplyAStyle(benchmark::State& state) {
    Desk desk;
    const Program program{desk.Services, desk.Module, desk.Windows};
    desk.Module.Paths.AppFolder = u"" TEMPOLARK_SOURCE_DIR "/data"_s;
    frmTempolark* clock = Running(program, desk, u"Clock"_s);
    const QStringList names = QDir(StylePath({})).entryList({u"*.ini"_s}, QDir::Files, QDir::Name);
    qsizetype index = 0;
    for (auto _ : state) {
        clock->SetClockStyle(StylePath(names[index++ % names.size()]));
    }
}
BENCHMARK(ApplyAStyle)->Unit(benchmark::kMillisecond);

/// Megabytes of the process's memory in use.
double Megabytes() {
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const double pages = file.readAll().split(' ')[1].toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576;
}

/// A hundred clocks of 250 x 250 pixels that share one picture.
void MemoryOfAHundredClocks(benchmark::State& state) {
    for (auto _ : state) {
        Desk desk;
        const Program program{desk.Services, desk.Module, desk.Windows};
        desk.Module.Paths.AppFolder = u"" TEMPOLARK_SOURCE_DIR "/data"_s;
        ClockProperties look;
        mduLib::ReadPropertyFile(desk.Files, desk.Module.Paths.ZoneDefaultFile(), look);
        mduLib::PutProperty(u"Clock Image File"_s, u".\\Images\\Background\\Walnut.jpg"_s, look);
        std::vector<frmTempolark*> clocks;
        double before = 0;
        for (int i = 0; i <= 100; ++i) {
            clocks.push_back(Running(program, desk, u"Clock %1"_s.arg(i)));
            clocks.back()->parentWidget()->setGeometry(0, 0, 258, 280);
            desk.Module.CurrentProperties = look;
            clocks.back()->RefreshForm({});
            QApplication::processEvents();
            if (i == 0) {
                before = Megabytes();
            }
        }
        state.counters["MB_a_clock"] = (Megabytes() - before) / 100;
        state.counters["MB_all"] = Megabytes();
    }
}
BENCHMARK(MemoryOfAHundredClocks)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
