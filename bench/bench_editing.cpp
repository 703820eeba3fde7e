#include <benchmark/benchmark.h>

#include <QApplication>

#include "editor/ui/ctlEditGrid.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// The grid with 5,000 rows of properties. It must be filled and shown in 150 ms, and follow a
/// filter that is typed in 16.
namespace {

constexpr int Rows = 5'000;

struct GridDesk {
    FakeServices Machine;
    EditGridHost Host;
    ctlEditGrid Grid{Machine.Clock, Host, nullptr};
    QStringList Keys;

    GridDesk() {
        for (int row = 0; row < Rows; ++row) {
            Keys += u"Part %1 Colour %2"_s.arg(row % 97).arg(row);
        }
        Grid.CompactOnPress = false;
        Grid.SetLooks(
            [this](int row, int col) {
                CellLook look;
                look.Bold = row % 5 == 0;
                look.Heading = row % 50 == 1 ? u"Category"_s : QString();
                if (col == 1) {
                    look.Swatch = QColor::fromHsv(row % 360, 200, 200);
                }
                return look;
            },
            {});
        Grid.resize(640, 600);
    }

    /// The rows whose key holds the text.
    void Fill(const QString& filter) {
        QList<int> found;
        for (int row = 0; row < Rows; ++row) {
            if (Keys[row].contains(filter, Qt::CaseInsensitive)) {
                found += row;
            }
        }
        Grid.Data() = editor::EditGridData({static_cast<int>(found.size()) + 1, 2, 1, 0});
        for (int row = 0; row < found.size(); ++row) {
            Grid.Data().SetTextMatrix(row + 1, 0, Keys[found[row]]);
            Grid.Data().SetTextMatrix(row + 1, 1, u"Red"_s);
            Grid.Data().SetRowData(row + 1, found[row]);
        }
        Grid.Refresh();
    }
};

void FillAndShow(benchmark::State& state) {
    for (auto _ : state) {
        GridDesk desk;
        desk.Fill({});
        desk.Grid.show();
        QCoreApplication::processEvents();
        desk.Grid.repaint();
    }
}
BENCHMARK(FillAndShow)->Unit(benchmark::kMillisecond);

/// A letter typed into the search field and taken away again: half of the rows, then all.
void Narrow(benchmark::State& state) {
    GridDesk desk;
    desk.Fill({});
    desk.Grid.show();
    QCoreApplication::processEvents();
    bool narrow = false;
    for (auto _ : state) {
        narrow = !narrow;
        desk.Fill(narrow ? u"7"_s : QString());
        desk.Grid.repaint();
    }
}
BENCHMARK(Narrow)->Unit(benchmark::kMillisecond);

void OpenAndEndAnEdit(benchmark::State& state) {
    GridDesk desk;
    desk.Fill({});
    desk.Grid.Setup();
    desk.Grid.SetCellCtl(1, 3);
    desk.Grid.Data().SetCol(1);
    desk.Grid.Refresh();
    desk.Grid.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        desk.Grid.OnCellKeyPress('x');
        desk.Grid.EndCellEdit();
        desk.Grid.repaint();
    }
}
BENCHMARK(OpenAndEndAnEdit)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
