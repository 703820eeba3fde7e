#include <QTest>

#include "clock/DialDesk.h"
#include "clock/MarkDrag.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using Mark = FakeTimerHost::Mark;

namespace {

/// A dial of 200 whose middle is at 150, 100 and whose ring has a radius of 84; its timer is at
/// three o'clock, at the right end of the ring.
struct DragDesk : DialDesk {
    clockcore::MarkDrag Drag{Data, {Controls, Timers, Host, Dial, Canvas}};

    DragDesk() {
        Set(u"Clock CentralX(%)"_s, u"-1"_s);
        Set(u"Clock CentralY(%)"_s, u"-1"_s);
        Set(u"Minute Spot Position(%)"_s, u"100"_s);
        Set(u"Clock Special"_s, u"None"_s);
        Data.Tag = {ClockKind::Analogue, false};
        Add(u"15:00"_s, u"Tea"_s);
        mduUILib::Control& mark = Controls.imgTimer(1);
        mark.Width = mark.Height = 14;
        mark.Left = 220;
        mark.Top = 86;
        Host.Marks.clear();
    }
    /// Another timer, which is dragged instead.
    void Give(const QString& time) {
        timers::ClockTimer timer = Timers.Timer(1);
        timer.TimerTime = time;
        Timers.ChangeTimer(1, timer);
    }
};

}  // namespace

class tst_MarkDrag : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The corner of the mark comes to six o'clock and one place further.
    void ADropGivesAnotherTime() {
        DragDesk desk;
        desk.Drag.Press(1, {230, 96});  // 4 to the left of the corner, and 4 above it
        QVERIFY(!desk.Drag.IsDragging());
        QCOMPARE(desk.Drag.Move({145.6, 180}, 10), u"6:00"_s);
        QVERIFY(desk.Drag.IsDragging());
        QCOMPARE(desk.Host.Marks, std::vector({Mark{1, 30, 1}}));
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"15:00"_s);
        QCOMPARE(desk.File(), QByteArray());
        QVERIFY(desk.Drag.Drop());
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"06:00"_s);
        QCOMPARE(desk.File(), QByteArray("5,Red,,,#16/06/2026 18:0=Tea\r\n"));
        QVERIFY(!desk.Drag.IsDragging());
    }

    void ALittleMoveIsAClick() {
        DragDesk desk;
        desk.Drag.Press(1, {230, 96});
        QVERIFY(!desk.Drag.Move({233.9, 102}, 10));  // 3.9 and 6
        QVERIFY(!desk.Drag.Drop());
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"15:00"_s);
        QCOMPARE(desk.Host.Marks, std::vector<Mark>());
        desk.Drag.Press(1, {230, 96});
        QVERIFY(desk.Drag.Move({234, 102}, 10).has_value());
        QVERIFY(desk.Drag.Move({230, 97}, 10).has_value());  // from then on each move counts
    }

    void ADragIsTakenBack() {
        DragDesk desk;
        QVERIFY(!desk.Drag.Cancel());
        desk.Drag.Press(1, {230, 96});
        QVERIFY(!desk.Drag.Cancel());
        desk.Drag.Press(1, {230, 96});
        desk.Drag.Move({145.6, 180}, 10);
        QVERIFY(desk.Drag.Cancel());
        QCOMPARE(desk.Host.Marks.back(), (Mark{1, 15, 1}));
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"15:00"_s);
        QVERIFY(!desk.Drag.Move({145.6, 180}, 10));
        QVERIFY(!desk.Drag.Drop());
        QCOMPARE(desk.File(), QByteArray());
    }

    void AMirroredDialTurnsTheOtherWay() {
        DragDesk desk;
        desk.Set(u"Clock Special"_s, u"Analogue Backward"_s);
        desk.Drag.Press(1, {66, 100});  // its three o'clock is to the left
        QCOMPARE(desk.Drag.Move({149.2, 16}, 10), u"0:00"_s);
        QCOMPARE(desk.Drag.Move({234, 98.5}, 10), u"9:00"_s);
    }

    // On a small surface its mark is kept inside, far from the ring.
    void AMarkAtTheEdgeDoesNotJump() {
        DragDesk desk;
        desk.Set(u"Clock CentralX(%)"_s, u"90"_s);  // the ring goes to 354 of 300
        desk.Controls.imgTimer(1).Left = 286;
        desk.Drag.Press(1, {295, 96});
        QCOMPARE(desk.Drag.Move({295, 80}, 10), u"2:38"_s);
        QCOMPARE(desk.Drag.Move({295, 96}, 10), u"3:00"_s);
        QVERIFY(desk.Drag.Drop());
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"15:00"_s);
        QCOMPARE(desk.File(), QByteArray());
    }

    void TheSameMinuteOfTheDialChangesNothing_data() {
        QTest::addColumn<QString>("time");
        QTest::newRow("afternoon") << u"15:14"_s;
        QTest::newRow("twelve") << u"12:14"_s;
        QTest::newRow("night") << u"00:14"_s;
        QTest::newRow("last") << u"23:59"_s;
    }

    void TheSameMinuteOfTheDialChangesNothing() {
        QFETCH(QString, time);
        DragDesk desk;
        desk.Give(time);
        desk.Drag.Press(1, {230, 96});
        QVERIFY(desk.Drag.Move({100, 20}, 10));
        QVERIFY(desk.Drag.Move({230, 96}, 10));
        QVERIFY(desk.Drag.Drop());
        QCOMPARE(desk.Timers.Timer(1).TimerTime, time);
        QCOMPARE(desk.File(), QByteArray());
    }

    // A clock that redraws itself places all its marks anew.
    void ADraggedMarkStaysWhereItIs() {
        DragDesk desk;
        QVERIFY(!desk.Drag.Follow());
        desk.Drag.Press(1, {230, 96});
        QVERIFY(!desk.Drag.Follow());
        desk.Drag.Move({145.6, 180}, 10);
        desk.Timers.PlaceTimerMarks();
        QCOMPARE(desk.Host.Marks.back(), (Mark{1, 15, 1}));
        const int shows = desk.Canvas.Shows;
        QVERIFY(desk.Drag.Follow());
        QCOMPARE(desk.Host.Marks.back(), (Mark{1, 30, 1}));
        QCOMPARE(desk.Canvas.Shows, shows + 1);
        QVERIFY(desk.Drag.Drop());
        QVERIFY(!desk.Drag.Follow());
    }

    void ATimerThatHasGoneIsNotFollowed() {
        DragDesk desk;
        desk.Drag.Press(1, {230, 96});
        desk.Drag.Move({145.6, 180}, 10);
        desk.Timers.CheckTimers(u"15/06/2026 15:00:01"_s);
        desk.Host.Marks.clear();
        QVERIFY(!desk.Drag.Follow());
        QVERIFY(!desk.Drag.IsDragging());
        QCOMPARE(desk.Host.Marks, std::vector<Mark>());
    }

    void AboutTwelve() {
        DragDesk desk;
        desk.Drag.Press(1, {234, 100});
        QCOMPARE(desk.Drag.Move({150.8, 16}, 10), u"0:00"_s);
        QCOMPARE(desk.Drag.Move({150, 16}, 10), u"11:59"_s);
        QVERIFY(desk.Drag.Move({151.5, 16}, 10));
        QVERIFY(desk.Drag.Drop());
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"00:01"_s);
    }

    void OnlyAnAnalogueClockHasARing() {
        DragDesk desk;
        desk.Data.Tag = {ClockKind::AnalogueAndDigital, false};
        desk.Drag.Press(1, {230, 96});
        QVERIFY(!desk.Drag.Move({145.6, 180}, 10));
        desk.Data.Tag = {ClockKind::Analogue, false};
        desk.Drag.Press(1, {230, 96});
        QVERIFY(desk.Drag.Move({145.6, 180}, 10));
        desk.Data.Tag = {ClockKind::Digital, false};
        QVERIFY(!desk.Drag.Move({145.6, 180}, 10));
        QVERIFY(!desk.Drag.Drop());
    }

    void ATimerThatFiresEndsTheDrag() {
        DragDesk desk;
        desk.Drag.Press(1, {230, 96});
        QVERIFY(desk.Drag.Move({145.6, 180}, 10));
        desk.Timers.CheckTimers(u"15/06/2026 15:00:01"_s);
        QVERIFY(!desk.Drag.Move({160, 180}, 10));
        QVERIFY(!desk.Drag.Drop());
        QVERIFY(desk.Timers.Timer(1).IsFree());
        QCOMPARE(desk.Timers.Timer(1).TimerTime, QString());
    }

    void ATimerThatFiresBeforeTheDropStaysGone() {
        DragDesk desk;
        desk.Drag.Press(1, {230, 96});
        QVERIFY(desk.Drag.Move({145.6, 180}, 10));
        desk.Timers.CheckTimers(u"15/06/2026 15:00:01"_s);
        desk.Drag.Drop();
        QCOMPARE(desk.Timers.Timer(1).TimerTime, QString());
        QVERIFY(desk.Timers.Timer(1).IsFree());
    }

    void ASlotWithoutATimerIsNotDragged() {
        DragDesk desk;
        desk.Drag.Press(2, {230, 96});
        QVERIFY(!desk.Drag.Move({145.6, 180}, 10));
    }
};

QTEST_MAIN(tst_MarkDrag)
#include "tst_MarkDrag.moc"
