#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "ClockDesk.h"

namespace {

QString TimerPath(const QString& zone) {
    return u"tester/Timers/"_s + zone + u"Timer.txt"_s;
}

}  // namespace

/// Timers, messages and actions on the real clock, at noon of 15 June 2026 in GMT.
class tst_TimersOnAClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachClockHasItsOwnTimers() {
        Desk desk;
        desk.Machine.WriteFile(TimerPath(u"UTC"_s), "5,red,,None,0#15:30@For UTC\r\n");
        desk.Machine.WriteFile(TimerPath(u"India Standard Time"_s), "5,red,,None,0#16:0@India\r\n");
        const frmTempolark* first = desk.Launch(u"UTC"_s);
        const frmTempolark* second = desk.Launch(u"India Standard Time"_s);
        desk.Machine.Clock.Advance(30);
        QVERIFY(first->Controls().imgTimer(1).Visible);
        QCOMPARE(first->Controls().txtMsg(1).Caption, u"For UTC"_s);
        QCOMPARE(second->Controls().txtMsg(1).Caption, u"India"_s);
    }

    void AMarkStandsOnTheRing() {
        Desk desk;
        desk.Machine.WriteFile(TimerPath(u"UTC"_s), "5,red,,None,0#15:0@Three\r\n");
        const frmTempolark* clock = desk.Running(u"UTC"_s);
        const mduUILib::Control& mark = clock->Controls().imgTimer(1);
        QVERIFY(mark.Picture != nullptr);
        QVERIFY(mark.Left > static_cast<float>(clock->PaintedSurface().ScaleWidth()) / 2);
        QVERIFY(mark.Width >= 12);
    }

    void AMessageRunsAndExpires() {
        Desk desk;
        desk.Machine.WriteFile(TimerPath(u"UTC"_s),
                               "1,red,,None,0#12:1=Tea is ready\r\n"
                               "1,red,,None,0#13:1@Tea is ready\r\n");
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Machine.Clock.Advance(61 * 60 * 1000);  // to 13:01
        QVERIFY(clock->Controls().lblMsg(1).Visible);
        QCOMPARE(clock->PendingMessage(), u"Tea is ready"_s);
        QVERIFY(desk.Shell.Messages.contains(u"Tea is ready"_s));
        QVERIFY(!clock->Controls().imgTimer(1).Visible);
        desk.Machine.Clock.Advance(60 * 1000);
        QVERIFY(!clock->Controls().lblMsg(1).Visible);
    }

    // A diamond of 300 by 200: at the message's usual height, 8 pixels down, it is 20 pixels wide.
    void AMessageRunsInsideTheOutline() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s,
                               desk.Machine.ReadFile(u"ini/Tempolark.ini"_s)
                                   .replace("Window Shape=Normal", "Window Shape=Diamond")
                                   .replace("Window Width=-1", "Window Width=4500")
                                   .replace("Window Height=-1", "Window Height=3000"));
        desk.Machine.WriteFile(TimerPath(u"UTC"_s), "5,red,,None,0#12:1@Tea is ready\r\n");
        const frmTempolark* clock = desk.Running(u"UTC"_s);
        QCOMPARE(clock->PaintedSurface().Image().size(), QSize(300, 200));
        desk.Machine.Clock.Advance(61 * 1000);
        const mduUILib::Control& label = clock->Controls().lblMsg(1);
        QVERIFY(label.Visible);
        // 0.6 of the width are there from about 0.3 of the height on.
        QVERIFY(label.Top > 55 && label.Top < 65);
        for (int step = 0; step < 200; ++step) {
            desk.Machine.Clock.Advance(100);
            QVERIFY(label.Left >= 50);
            QVERIFY(label.Left <= 245);
        }
    }

    void ClosingWritesTheTimers() {
        Desk desk;
        desk.Machine.WriteFile(TimerPath(u"UTC"_s), "5,red,,None,0#15:30@Later\r\n");
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Launch(u"India Standard Time"_s);  // has the path table's timer file now
        desk.Machine.Clock.Advance(30);
        desk.Close(clock);
        QCOMPARE(desk.Machine.ReadFile(TimerPath(u"UTC"_s)),
                 QByteArray("5,Red,,None,0#15:30@Later\r\n"));
    }
};

QTEST_MAIN(tst_TimersOnAClock)
#include "tst_TimersOnAClock.moc"
