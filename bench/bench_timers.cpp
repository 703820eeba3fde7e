#include <benchmark/benchmark.h>

#include "support/FakeTimerHost.h"

using namespace Qt::StringLiterals;

/// What timers cost in each tick, and at each save.
namespace {

/// A clock with that many live timers, none of them due between 12:00 and 12:01.
void Fill(TimerDesk& desk, int count) {
    for (int number = 0; number < count; ++number) {
        const int minute = 1 + number % 719;
        const QString time =
            u"%1:%2"_s.arg(minute / 60, 2, 10, QChar(u'0')).arg(minute % 60, 2, 10, QChar(u'0'));
        desk.Timers.ChangeTimer(desk.Timers.GetFreeTimerSlot(),
                                {time, u"P"_s, true, u"5"_s, u"Call home"_s, 255, {}, {}, {}});
    }
}

void CheckTimers(benchmark::State& state) {
    TimerDesk desk;
    Fill(desk, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        desk.Timers.CheckTimers(u"15/06/2026 12:00:30"_s);
    }
}
BENCHMARK(CheckTimers)->Arg(0)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);

void RunMessage(benchmark::State& state) {
    TimerDesk desk;
    desk.Messages.ShowMessage(QString(static_cast<int>(state.range(0)), u'x'));
    for (auto _ : state) {
        desk.Messages.RunMessage(0, 400);
    }
}
BENCHMARK(RunMessage)->Arg(0)->Arg(20)->Arg(100000)->Unit(benchmark::kMicrosecond);

void LoadTimers(benchmark::State& state) {
    const QByteArray lines = QByteArray("5,Red,,None,0#15:5@Call home\r\n").repeated(1000);
    TimerDesk files;
    const QString path = files.Machine.WriteFile(u"Timer.txt"_s, lines);
    for (auto _ : state) {
        TimerDesk desk;
        desk.Timers.LoadTimers(path);
    }
}
BENCHMARK(LoadTimers)->Unit(benchmark::kMillisecond);

void SaveTimer(benchmark::State& state) {
    TimerDesk desk;
    const QString path = desk.Machine.WriteFile(u"Timer.txt"_s, "");
    desk.Timers.LoadTimers(path);
    Fill(desk, 1000);
    for (auto _ : state) {
        desk.Timers.SaveTimer(path);
    }
}
BENCHMARK(SaveTimer)->Unit(benchmark::kMillisecond);

}  // namespace
