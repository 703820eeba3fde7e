// How long after the turn of the second the last of a hundred clocks has been painted. Runs on the
// screen that it is given and prints, over a number of seconds, the median and the worst in
// milliseconds.
#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "Desk.h"
#include "clock/ui/frmTempolark.h"

namespace {

constexpr int Clocks = 100;
constexpr int Columns = 10;
constexpr int Seconds = 20;

/// The milliseconds past the second at which a clock was painted last, for each second.
class LastPaints final : public QObject {
public:
    std::vector<int> Past;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == ClockWindowName) {
            const QDateTime now = QDateTime::currentDateTimeUtc();
            if (now.time().second() != second_) {
                second_ = now.time().second();
                Past.push_back(0);
            }
            Past.back() = now.time().msec();
            if (Past.size() > Seconds) {
                QCoreApplication::quit();
            }
        }
        return false;
    }

private:
    int second_ = -1;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Desk desk;
    desk.Area.resize(1240, 960);
    const Program program{desk.Services, desk.Module, desk.Windows};
    for (int i = 0; i < Clocks; ++i) {
        auto* clock = new frmTempolark(program, nullptr, &desk.Area);
        clock->ShowMeMDIChild(QStringLiteral("Clock %1").arg(i));
        clock->Tick();
        clock->Tick();
        clock->parentWidget()->setGeometry(i % Columns * 124, i / Columns * 96, 124, 96);
    }
    QApplication::processEvents();
    LastPaints paints;
    application.installEventFilter(&paints);
    QApplication::exec();
    // The first second was under way when the watch began.
    std::vector<int> past(paints.Past.begin() + 1, paints.Past.end() - 1);
    std::sort(past.begin(), past.end());
    std::printf("last of %d clocks painted: median %d ms, worst %d ms behind the second\n", Clocks,
                past[past.size() / 2], past.back());
    return 0;
}
