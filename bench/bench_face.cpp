#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include "drawing/AnalogueFace.h"
#include "platform/SystemServices.h"

using namespace Qt::StringLiterals;

namespace {

drawing::AnalogueLook Look(drawing::HandStyle style) {
    drawing::AnalogueLook look;
    look.Hour = {style, u"Black"_s, 50, 6};
    look.Minute = {style, u"Black"_s, 75, 4};
    look.Second = {drawing::HandStyle::Line, u"Red"_s, 85, 1};
    look.HeadColour = u"Red"_s;
    return look;
}

/// A pass for each second of the day, one after the other, as a clock runs.
void RunPasses(benchmark::State& state, drawing::HandStyle style, bool whole) {
    const int side = static_cast<int>(state.range(0));
    drawing::Dial dial;
    drawing::Background background;
    platform::SystemRandom random(1);
    drawing::Surface surface(side, side, 1.0);
    drawing::AnalogueFace face(dial, background, random);
    const drawing::AnalogueLook look = Look(style);
    int second = 0;
    for (auto _ : state) {
        if (whole) {
            face.Invalidate();
        }
        ++second;
        const drawing::HandTime time{second / 3600 % 24, second / 60 % 60, second % 60};
        benchmark::DoNotOptimize(face.DrawAnalogueClock(surface, look, time, 0xFFFFFD));
    }
}

void WholeLinePass(benchmark::State& state) {
    RunPasses(state, drawing::HandStyle::Line, true);
}
void WholeFramePass(benchmark::State& state) {
    RunPasses(state, drawing::HandStyle::Frame, true);
}
void LinePassOfARunningClock(benchmark::State& state) {
    RunPasses(state, drawing::HandStyle::Line, false);
}
void FramePassOfARunningClock(benchmark::State& state) {
    RunPasses(state, drawing::HandStyle::Frame, false);
}

BENCHMARK(WholeLinePass)->Arg(250)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WholeFramePass)->Arg(250)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LinePassOfARunningClock)->Arg(250)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(FramePassOfARunningClock)->Arg(250)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
