// One pass of an analogue face with a picture behind painted Roman numbers and three shaded hands,
// against what the toolkit's painter takes for the triangles of those hands alone; and a message
// that runs over the face.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>

#include "drawing/ClockBackground.h"
#include "drawing/ClockDial.h"
#include "drawing/FaceComposer.h"
#include "drawing/LabelText.h"
#include "support/FakeFace.h"
#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;

namespace {

/// A clock face of that side, laid out.
struct Face : FakeFace {
    explicit Face(int side, const QString& handStyle, bool withPicture)
        : FakeFace(side, side), Background(Context()), Dial(Context()) {
        const std::pair<QString, QString> values[] = {
            {u"Hour Number Style"_s, u"True Roman 12"_s},
            {u"Hour Number Position(%)"_s, u"80"_s},
            {u"Hour Number Colour"_s, u"Blue"_s},
            {u"Minute Spot Style"_s, u"Spot 60"_s},
            {u"Minute Spot Position(%)"_s, u"95"_s},
            {u"Minute Spot Size"_s, u"-1"_s},
            {u"Clock CentralX(%)"_s, u"-1"_s},
            {u"Clock CentralY(%)"_s, u"-1"_s},
            {u"Clock Special"_s, u"None"_s},
            {u"Clock Image Size(%)"_s, u"100"_s},
            {u"Clock Image Brightness(%)"_s, u"100"_s},
            {u"Clock Image File"_s,
             withPicture ? u"" TEMPOLARK_SOURCE_DIR "/data/Images/Background/Walnut.jpg"_s : u""_s},
            {u"Hand Head Colour"_s, u"Red"_s}};
        for (const auto& [key, value] : values) {
            Set(key, value);
        }
        const std::pair<QString, std::pair<QString, QString>> hands[] = {
            {u"Hour"_s, {u"50"_s, u"6"_s}},
            {u"Minute"_s, {u"75"_s, u"4"_s}},
            {u"Second"_s, {u"85"_s, u"2"_s}}};
        for (const auto& [hand, measures] : hands) {
            Set(hand + u" Hand Style"_s, handStyle);
            Set(hand + u" Hand Colour"_s, u"Black"_s);
            Set(hand + u" Hand Length(%)"_s, measures.first);
            Set(hand + u" Hand Line Width"_s, measures.second);
        }
        Background.LoadClockPicture();
        Dial.DrawDialNumbers(drawing::DialParts::All);
    }

    drawing::ClockBackground Background;
    drawing::ClockDial Dial;
    drawing::FaceComposer Composer{Window, Controls, Dial, Background};
    drawing::AnalogueLook Look;
};

enum class Part { Still, Whole, Moved };

/// A pass for each second of the day, one after the other, as a clock runs.
void RunPasses(benchmark::State& state, const QString& handStyle, bool withPicture, Part part) {
    Face face(static_cast<int>(state.range(0)), handStyle, withPicture);
    const drawing::AnalogueLook look = drawing::ReadAnalogueLook(face.Properties);
    int second = 0;
    for (auto _ : state) {
        if (part == Part::Still) {
            face.Composer.StillChanged();
        } else if (part == Part::Whole) {
            face.Composer.Invalidate();
        }
        ++second;
        const drawing::HandTime time{second / 3600 % 24, second / 60 % 60, second % 60};
        benchmark::DoNotOptimize(face.Composer.Compose(
            drawing::MakeHandsFrame(face.Window.Drawn, look, time, face.Machine.Random)));
    }
}

void WholePassMetal(benchmark::State& state) {
    RunPasses(state, u"3D Metal"_s, true, Part::Whole);
}
void RunningPassMetal(benchmark::State& state) {
    RunPasses(state, u"3D Metal"_s, true, Part::Moved);
}
void StillPassMetal(benchmark::State& state) {
    RunPasses(state, u"3D Metal"_s, true, Part::Still);
}
void WholePassLine(benchmark::State& state) {
    RunPasses(state, u"Line"_s, false, Part::Whole);
}
void RunningPassLine(benchmark::State& state) {
    RunPasses(state, u"Line"_s, false, Part::Moved);
}

/// A step of a running message: a character more at its end, one less in front, five pixels to the
/// left. It comes ten times a second, nine of them with the hands where they were.
void RunMessage(benchmark::State& state, Part part) {
    const int side = static_cast<int>(state.range(0));
    Face face(side, u"3D Metal"_s, true);
    const drawing::AnalogueLook look = drawing::ReadAnalogueLook(face.Properties);
    const auto hands =
        drawing::MakeHandsFrame(face.Window.Drawn, look, {10, 9, 30}, face.Machine.Random);
    const QString text = u"A message that runs across the whole of the face, on and on. "_s;
    mduUILib::Control& label = face.Controls.lblMsg(1);
    label.Visible = true;
    label.Caption = text;
    label.Font = QFont(u"Arial"_s);
    label.Font.setPointSizeF(std::max(8.0, 0.035 * side));
    label.Top = 0.04F * static_cast<float>(side);
    label.Left = static_cast<float>(side);
    face.Composer.Compose(hands);
    qsizetype next = 0;
    for (auto _ : state) {
        if (part == Part::Whole) {
            face.Composer.Invalidate();
        }
        label.Caption = label.Caption.mid(1) + text[next];
        next = (next + 1) % text.size();
        label.Left = label.Left > 0 ? label.Left - 5 : static_cast<float>(side);
        drawing::AutoSize(label, 1);
        benchmark::DoNotOptimize(face.Composer.Compose(hands));
    }
}
void WholePassMessage(benchmark::State& state) {
    RunMessage(state, Part::Whole);
}
void RunningPassMessage(benchmark::State& state) {
    RunMessage(state, Part::Moved);
}

/// The yardstick: four triangles a hand, anti-aliased, and their shadow.
void PainterTriangles(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    int second = 0;
    for (auto _ : state) {
        ++second;
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const QPointF centre(side / 2.0, side / 2.0);
        const auto at = [&](double angle, double distance) {
            return centre + QPointF(distance * std::sin(angle), distance * std::cos(angle));
        };
        const double angles[] = {drawing::Pi - second / 43200.0 * drawing::TwoPi,
                                 drawing::Pi - second / 3600.0 * drawing::TwoPi,
                                 drawing::Pi - second / 60.0 * drawing::TwoPi};
        const double lengths[] = {0.5, 0.75, 0.85};
        const double widths[] = {0.06, 0.04, 0.02};
        for (int hand = 0; hand < 3; ++hand) {
            const double length = lengths[hand] * side / 2;
            const double a = angles[hand];
            const QPointF ends[] = {at(a, length), at(a + drawing::Pi, 0.3 * length)};
            const QPointF sides[] = {at(a + drawing::Pi / 2, widths[hand] * length),
                                     at(a - drawing::Pi / 2, widths[hand] * length)};
            for (const QPointF& shift : {QPointF(-2, 4), QPointF(0, 0)}) {
                for (const QPointF& end : ends) {
                    for (const QPointF& edge : sides) {
                        painter.setBrush(shift.isNull() ? Qt::gray : Qt::darkGray);
                        const QPointF triangle[] = {end + shift, edge + shift, centre + shift};
                        painter.drawPolygon(triangle, 3);
                    }
                }
            }
        }
    }
    benchmark::DoNotOptimize(image.constBits());
}

BENCHMARK(WholePassMetal)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(RunningPassMetal)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(StillPassMetal)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(WholePassLine)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(RunningPassLine)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(WholePassMessage)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(RunningPassMessage)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);
BENCHMARK(PainterTriangles)->Arg(250)->Arg(800)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
