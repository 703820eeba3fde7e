// A move of something that is dragged over a clock of 800 x 800 with a picture: the events of the
// mouse, the layout and the paint that they come to. A mouse that tells of four places between two
// paints costs one layout.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>

#include "Desk.h"
#include "clock/ui/frmTempolark.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace {

struct DraggedClock : Desk {
    Program TheProgram{Services, Module, Windows};
    frmTempolark* Clock = new frmTempolark(TheProgram, nullptr, &Area);

    explicit DraggedClock(const QString& kind) {
        Area.resize(1000, 1000);
        Module.Paths.AppFolder = u"" TEMPOLARK_SOURCE_DIR "/data"_s;
        Clock->ShowMeMDIChild(u"UTC"_s);
        Clock->Tick();
        Clock->Tick();
        ClockProperties look = Module.CurrentProperties;
        const std::pair<QString, QString> values[] = {
            {u"Clocks"_s, kind},
            {u"Clock Image File"_s, u".\\Images\\Background\\Walnut.jpg"_s},
            {u"Hour Number Style"_s, u"True Roman 12"_s},
            {u"Hour Hand Style"_s, u"3D Metal"_s},
            {u"Minute Hand Style"_s, u"3D Metal"_s},
            {u"Second Hand Style"_s, u"3D Metal"_s}};
        for (const auto& [key, value] : values) {
            mduLib::PutProperty(key, value, look);
        }
        Module.CurrentProperties = look;
        Clock->RefreshForm({});
        const QSize frame = Clock->parentWidget()->size() - Clock->size();
        Clock->parentWidget()->setGeometry(QRect(QPoint(20, 20), QSize(800, 800) + frame));
        Clock->Tick();
        QApplication::processEvents();
    }

    void Send(QEvent::Type type, const QPointF& at) {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, Clock->mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(Clock, &event);
    }
};

/// Round and round, @p events of the mouse to a paint.
void DragFrom(benchmark::State& state, DraggedClock& desk, const QPointF& from) {
    const int events = static_cast<int>(state.range(0));
    const QImage before = desk.Clock->PaintedSurface().Image().copy();
    desk.Send(QEvent::MouseButtonPress, from);
    int step = 0;
    for (auto _ : state) {
        for (int i = 0; i < events; ++i) {
            ++step;
            const double angle = step / 20.0;
            desk.Send(QEvent::MouseMove,
                      QPointF(400 + 150 * std::cos(angle), 400 + 150 * std::sin(angle)));
        }
        QApplication::processEvents();
    }
    if (desk.Clock->PaintedSurface().Image() == before) {
        state.SkipWithError("nothing has moved");
    }
    desk.Send(QEvent::MouseButtonRelease, {400, 400});
    state.counters["moves"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void DragTheDial(benchmark::State& state) {
    DraggedClock desk(u"Analogue"_s);
    DragFrom(state, desk, {300, 300});
}

void DragTheDigits(benchmark::State& state) {
    DraggedClock desk(u"Digital"_s);
    DragFrom(state, desk, desk.Clock->Controls().lblDigitalNumber(3).Rect().center());
}

void DragTheName(benchmark::State& state) {
    DraggedClock desk(u"Analogue"_s);
    DragFrom(state, desk, desk.Clock->Controls().lblLocation(1).Rect().center());
}

BENCHMARK(DragTheDial)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(DragTheDigits)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(DragTheName)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
