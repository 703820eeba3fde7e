#include <benchmark/benchmark.h>

#include <QPainter>
#include <QPainterPath>

#include "drawing/HandStyles.h"
#include "drawing/Hands3D.h"
#include "support/NaiveHands.h"

/// Three shaded hands with their shadows at all seconds of an hour: line by line as a fan, as the
/// clock draws them, and as the toolkit fills the same triangles.
namespace {

struct Hand {
    double Angle;
    int Length, Width;
};

std::array<Hand, 3> HandsAt(int second, int side) {
    const drawing::HandTime time{second / 3600 % 24, second / 60 % 60, second % 60};
    const drawing::HandAngles angles = drawing::AnglesAt(time, {});
    return {{{angles.Hour, side * 50 / 200, 6},
             {angles.Minute, side * 75 / 200, 4},
             {angles.Second, side * 85 / 200, 2}}};
}

template <typename Draw>
void ForEachSecond(benchmark::State& state, const Draw& draw) {
    const int side = static_cast<int>(state.range(0));
    drawing::Surface surface(side, side, 1.0);
    int second = 36000;
    for (auto _ : state) {
        second += 61;  // all hands move at each pass
        for (const Hand& hand : HandsAt(second, side)) {
            draw(surface, side / 2, hand);
        }
        benchmark::DoNotOptimize(surface.Image().constBits());
        benchmark::ClobberMemory();
    }
}

void FillFourTriangles(QPainter& painter, const std::array<QPoint, 4>& points, const QPoint& centre,
                       const std::array<QColor, 4>& colours) {
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < 4; ++i) {
        const std::array<QPoint, 3> triangle = {points[i / 2], points[2 + i % 2], centre};
        painter.setBrush(colours[i]);
        painter.drawPolygon(triangle.data(), 3);
    }
}

void DrawByPainter(drawing::Surface& surface, int centre, const Hand& hand) {
    const QPoint middle(centre, centre);
    const auto points =
        drawing::KitePoints(centre, centre, hand.Angle, hand.Length, 0.3F, hand.Width);
    const QColor shadow(100, 100, 100);
    const QColor light(200, 199, 199);
    const QColor dark(180, 179, 179);
    surface.Paint([&](QPainter& painter) {
        painter.translate(-2, 4);
        FillFourTriangles(painter, points, middle, {shadow, shadow, shadow, shadow});
        painter.translate(2, -4);
        FillFourTriangles(painter, points, middle, {light, dark, light, dark});
    });
}

void MetalLineByLine(benchmark::State& state) {
    ForEachSecond(state, [](drawing::Surface& surface, int centre, const Hand& hand) {
        naive::Draw3D(surface, centre, centre, hand.Angle, hand.Length, 1, hand.Width);
    });
}

void MetalAsDrawn(benchmark::State& state) {
    ForEachSecond(state, [](drawing::Surface& surface, int centre, const Hand& hand) {
        drawing::DrawClockHand(surface, drawing::HandStyle::Metal, centre, centre, hand.Angle,
                               hand.Length, 0, hand.Width);
    });
}

void MetalByPainter(benchmark::State& state) {
    ForEachSecond(state, DrawByPainter);
}

void SimpleLineByLine(benchmark::State& state) {
    ForEachSecond(state, [](drawing::Surface& surface, int centre, const Hand& hand) {
        naive::Draw3DSimpleLine(surface, centre, centre, hand.Angle, hand.Length, 1,
                                hand.Width / 2);
    });
}

void SimpleAsDrawn(benchmark::State& state) {
    ForEachSecond(state, [](drawing::Surface& surface, int centre, const Hand& hand) {
        drawing::DrawClockHand(surface, drawing::HandStyle::MetalSimple, centre, centre, hand.Angle,
                               hand.Length, 0, hand.Width / 2);
    });
}

BENCHMARK(MetalLineByLine)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(MetalAsDrawn)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(MetalByPainter)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(SimpleLineByLine)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(SimpleAsDrawn)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);

}  // namespace
