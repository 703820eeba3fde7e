#include <benchmark/benchmark.h>

#include "platform/Services.h"
#include "platform/TzZoneDatabase.h"
#include "support/FakeServices.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

/// What a zone costs: every clock looks its own up when it opens, the window of zones lists all.
namespace {

/// A machine in New York at noon of 15 June 2026, with the zones of the system.
struct ZoneMachine {
    FakeServices Fakes;
    platform::TzZoneDatabase Zones{Fakes.Clock, "America/New_York"};
    platform::Services Services = Fakes.Services.With(Zones);
    PathTable Paths;

    ZoneMachine() { Paths.ProfileFolder = Fakes.AppFolder() + u"/Timezones/"_s; }
};

/// The names of all zones; the list may hold empty records, which are no zones.
QStringList Names(const platform::Services& services) {
    QStringList names;
    for (const TimeZoneRecord& record : mduTimeZones::ListWindowsTimeZones(services)) {
        if (!record.StandardName.isEmpty()) {
            names += record.StandardName;
        }
    }
    return names;
}

/// Finds the zone that stands at @p place of the database, from 0 (its first) to 1 (its last).
void FindZone(benchmark::State& state, double place) {
    const ZoneMachine machine;
    const QStringList names = Names(machine.Services);
    const QString name = names[static_cast<int>(place * static_cast<double>(names.size() - 1))];
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduTimeZones::FindTimeZone(machine.Services, machine.Paths, name));
    }
    state.SetLabel(name.toStdString());
}
BENCHMARK_CAPTURE(FindZone, first, 0.0)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FindZone, middle, 0.5)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FindZone, last, 1.0)->Unit(benchmark::kMicrosecond);

void FindNoZone(benchmark::State& state) {
    const ZoneMachine machine;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            mduTimeZones::FindTimeZone(machine.Services, machine.Paths, u"Nowhere"_s));
    }
}
BENCHMARK(FindNoZone)->Unit(benchmark::kMicrosecond);

void ListZones(benchmark::State& state) {
    const ZoneMachine machine;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduTimeZones::ListWindowsTimeZones(machine.Services));
    }
}
BENCHMARK(ListZones)->Unit(benchmark::kMicrosecond);

/// With a database that has read no zone yet: what the first clock of a run waits for.
void ListZonesAfresh(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const ZoneMachine machine;
        state.ResumeTiming();
        benchmark::DoNotOptimize(mduTimeZones::ListWindowsTimeZones(machine.Services));
    }
}
BENCHMARK(ListZonesAfresh)->Unit(benchmark::kMillisecond);

void FindLocalZone(benchmark::State& state) {
    const ZoneMachine machine;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mduTimeZones::GetLocalZone(machine.Services));
    }
}
BENCHMARK(FindLocalZone)->Unit(benchmark::kMicrosecond);

}  // namespace
