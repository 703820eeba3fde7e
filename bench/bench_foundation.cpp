#include <benchmark/benchmark.h>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/PropertyMerge.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// What opening a clock costs before anything is drawn: its property file is read, merged with the
/// default, and asked for some hundred values.
namespace {

constexpr int rowCount = 300;  // a zone's property file has about as many

/// "Clock:Property 7=Value,First,Second,Third", with the current value chosen by the caller.
QByteArray FileOf(const QByteArray& currentValue) {
    QByteArray content;
    for (int row = 1; row <= rowCount; ++row) {
        content += "Clock:Property " + QByteArray::number(row) + "=" + currentValue +
                   ",First,Second,Third\r\n";
    }
    return content;
}

QString NameOf(int row) {
    return u"Property "_s + QString::number(row);
}

/// A property file of the usual size on disk.
struct FileFixture {
    FakeServices Machine;
    QString User = Machine.WriteFile(u"user.ini"_s, FileOf("Second"));
    QString Default = Machine.WriteFile(u"default.ini"_s, FileOf("First"));
    QString Out = Machine.AppFolder() + u"/out.ini"_s;

    ClockProperties Read() {
        ClockProperties array;
        mduLib::ReadPropertyFile(Machine.Files, User, array);
        return array;
    }
};

void ReadFile(benchmark::State& state) {
    FileFixture fixture;
    for (auto _ : state) {
        ClockProperties array = fixture.Read();
        benchmark::DoNotOptimize(array);
    }
    state.SetItemsProcessed(state.iterations() * rowCount);
}
BENCHMARK(ReadFile);

void ComposeFile(benchmark::State& state) {
    FileFixture fixture;
    const ClockProperties array = fixture.Read();
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduLib::PropertyFileContent(array));
    }
    state.SetItemsProcessed(state.iterations() * rowCount);
}
BENCHMARK(ComposeFile);

/// The file merged into is removed each time, as a file that holds the content already is not
/// written.
void MergeFile(benchmark::State& state) {
    FileFixture fixture;
    for (auto _ : state) {
        state.PauseTiming();
        fixture.Machine.Files.Delete(fixture.Out);
        state.ResumeTiming();
        if (!mduLib::MergePropertyFile(fixture.Machine.Files, fixture.User, fixture.Default,
                                       fixture.Out)) {
            state.SkipWithError("the merge was not completed");
        }
    }
    state.SetItemsProcessed(state.iterations() * rowCount);
}
BENCHMARK(MergeFile)->Unit(benchmark::kMillisecond);

void LookUp(benchmark::State& state, int row, const QString& category) {
    FileFixture fixture;
    const ClockProperties array = fixture.Read();
    const QString name = NameOf(row);
    if (mduLib::GetProperty(name, array, category) != u"Second"_s) {
        state.SkipWithError("the row was not found");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduLib::GetProperty(name, array, category));
    }
}
BENCHMARK_CAPTURE(LookUp, first, 1, QString());
BENCHMARK_CAPTURE(LookUp, middle, rowCount / 2, QString());
BENCHMARK_CAPTURE(LookUp, last, rowCount, QString());
BENCHMARK_CAPTURE(LookUp, last_by_category, rowCount, u"Clock"_s);

void LookUpMissing(benchmark::State& state) {
    FileFixture fixture;
    const ClockProperties array = fixture.Read();
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduLib::GetProperty(u"Absent"_s, array));
    }
}
BENCHMARK(LookUpMissing);

void Store(benchmark::State& state) {
    FileFixture fixture;
    ClockProperties array = fixture.Read();
    const QString name = NameOf(rowCount);
    for (auto _ : state) {
        mduLib::PutProperty(name, u"Third"_s, array);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Store);

void Sort(benchmark::State& state) {
    FileFixture fixture;
    const ClockProperties array = fixture.Read();
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduLib::SortPropertyRows(array, 2, 1));
    }
}
BENCHMARK(Sort);

}  // namespace
