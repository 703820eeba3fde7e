#include <benchmark/benchmark.h>

#include "editor/SheetDesk.h"

using namespace Qt::StringLiterals;
using editor::PropertySheet;

/// What a property window costs before anything is drawn, on a file of 5,000 rows: it may open in
/// 150 ms and narrow by a key in 16.
namespace {

constexpr int RowCount = 5000;

QByteArray FileOfManyRows() {
    QByteArray content;
    for (int row = 1; row <= RowCount; ++row) {
        const QByteArray number = QByteArray::number(row);
        content += "Category " + QByteArray::number(row % 9) + ":Hour Hand Colour of " + number +
                   "=Red,Black,Blue,Cyan,Green,Magenta,Red,White,Yellow,Random\r\n";
    }
    return content;
}

struct LargeFile {
    SheetDesk Desk;
    std::unique_ptr<PropertySheet> Sheet;

    LargeFile() {
        Desk.Machine.WriteFile(u"Help/keys.txt"_s, "Tempolark:Hour Hand Colour of =The colour.\n");
        Desk.WriteDefault(FileOfManyRows());
        Sheet = Desk.Open(FileOfManyRows());
    }
};

void OpenSheet(benchmark::State& state) {
    LargeFile file;
    for (auto _ : state) {
        const auto sheet = file.Desk.Open(FileOfManyRows());
        benchmark::DoNotOptimize(sheet->Shown());
    }
}
BENCHMARK(OpenSheet)->Unit(benchmark::kMillisecond);

void FilterRecords(benchmark::State& state) {
    LargeFile file;
    const QStringList typed = {u"h"_s, u"hand"_s, u"hand colour 49"_s, u"violet"_s};
    file.Sheet->View().SetFilter(typed[state.range(0)]);
    for (auto _ : state) {
        benchmark::DoNotOptimize(file.Sheet->Shown());
    }
}
BENCHMARK(FilterRecords)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void SortRecords(benchmark::State& state) {
    LargeFile file;
    file.Sheet->View().Sort(static_cast<int>(state.range(0)), 2);
    for (auto _ : state) {
        benchmark::DoNotOptimize(file.Sheet->Shown());
    }
}
BENCHMARK(SortRecords)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

void CommitRecord(benchmark::State& state) {
    LargeFile file;
    bool on = false;
    for (auto _ : state) {
        on = !on;
        file.Sheet->Records().BeginVisit();
        file.Sheet->Commit(RowCount, on ? u"Green"_s : u"Blue"_s);
        benchmark::DoNotOptimize(file.Sheet->Button());
    }
}
BENCHMARK(CommitRecord);

void RefreshFromDefault(benchmark::State& state) {
    LargeFile file;
    for (auto _ : state) {
        file.Sheet->Commit(1, u"Green"_s);
        benchmark::DoNotOptimize(file.Sheet->RefreshFromDefault());
    }
}
BENCHMARK(RefreshFromDefault)->Unit(benchmark::kMillisecond);

}  // namespace
