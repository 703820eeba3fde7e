#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QTableView>

#include "Desk.h"
#include "clock/ui/frmTempolark.h"
#include "editor/ui/ctlEditGrid.h"
#include "editor/ui/frmProperties.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

/// The window of properties: 5,000 rows must open in 150 ms and follow a key press in 16; a row of
/// a running clock must be committed, and the clock painted anew, in 20.
namespace {

constexpr int Rows = 5000;

struct PropertyDesk : Desk {
    Program TheProgram{Services, Module, Windows};

    /// The keys of a clock and as many others, of each form, as make 5,000.
    void WriteLargeFile() {
        ClockProperties properties;
        mduLib::ReadPropertyFile(Files, Module.Paths.ZoneDefaultFile(), properties);
        const QStringList values = {u"Red,Black,Blue,Red,Random"_s, u"Yes,Yes,No"_s, u"12"_s,
                                    u"50,10,20,50"_s, u"Some text of the usual length"_s};
        for (int number = properties.UpperBound(); number < Rows; ++number) {
            mduLib::AppendProperty(u"Category %1"_s.arg(number / 50),
                                   u"Key %1 Colour of a hand"_s.arg(number),
                                   values[number % values.size()], properties);
        }
        mduLib::WritePropertyFile(Files, properties, Module.Paths.CurrentPropertyFile);
        Module.CurrentProperties = properties;
    }

    std::unique_ptr<frmProperties> Open(int owner) {
        auto window = std::make_unique<frmProperties>(TheProgram, nullptr, nullptr);
        window->ShowProperty(u"UTC"_s, owner);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        QCoreApplication::processEvents();
        window->repaint();
        return window;
    }
};

void Paint(frmProperties& window) {
    QCoreApplication::processEvents();
    window.repaint();
}

void Open(benchmark::State& state) {
    PropertyDesk desk;
    desk.WriteLargeFile();
    for (auto _ : state) {
        auto window = desk.Open(0);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(Open)->Unit(benchmark::kMillisecond);

/// One key typed into the search field, to the painted list.
void NarrowByAKey(benchmark::State& state) {
    PropertyDesk desk;
    desk.WriteLargeFile();
    const auto window = desk.Open(0);
    auto* field = window->findChild<QLineEdit*>(u"txtSearch"_s);
    const QString typed = u"hand colour 12"_s;
    qsizetype length = 0;
    for (auto _ : state) {
        length = length % typed.size() + 1;
        field->setText(typed.left(length));
        Paint(*window);
    }
}
BENCHMARK(NarrowByAKey)->Unit(benchmark::kMillisecond);

/// The same by category, with its headings.
void NarrowByAKeyCategorized(benchmark::State& state) {
    PropertyDesk desk;
    desk.WriteLargeFile();
    const auto window = desk.Open(0);
    window->findChild<QAction*>(u"CategorizedAscending"_s)->trigger();
    auto* field = window->findChild<QLineEdit*>(u"txtSearch"_s);
    const QString typed = u"hand colour 12"_s;
    qsizetype length = 0;
    for (auto _ : state) {
        length = length % typed.size() + 1;
        field->setText(typed.left(length));
        Paint(*window);
    }
}
BENCHMARK(NarrowByAKeyCategorized)->Unit(benchmark::kMillisecond);

/// A colour put into the row of the hour hand, and the running clock with that hand.
void CommitAndRepaint(benchmark::State& state) {
    PropertyDesk desk;
    auto* clock = new frmTempolark(desk.TheProgram, nullptr, &desk.Area);
    clock->ShowMeMDIChild(u"UTC"_s);
    clock->Tick();
    clock->Tick();
    clock->SetProperty();
    const auto window = desk.Open(clock->hwnd());
    auto* grid = static_cast<ctlEditGrid*>(window->findChild<QWidget*>(u"grdProperty"_s));
    window->findChild<QLineEdit*>(u"txtSearch"_s)->setText(u"hour hand colour"_s);
    const QStringList colours = {u"Red"_s, u"Blue"_s, u"Green"_s};
    int turn = 0;
    for (auto _ : state) {
        grid->Data().SetTextMatrix(1, 1, colours[turn++ % 3]);
        grid->View().setCurrentIndex(grid->View().model()->index(0, turn % 2));
        Paint(*window);
        clock->repaint();
    }
}
BENCHMARK(CommitAndRepaint)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
