#include <QTest>

#include "clock/DialDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ChosenTimer;
using clockcore::ClockKind;
using clockcore::ClockState;
using timers::ClockTimer;

namespace {

const QByteArray Tea = "5,Red,,,#16/06/2026 15:5=Tea\r\n";

}  // namespace

class tst_DialTimers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ANewTimerIsSavedAndTypedInto() {
        DialDesk desk;
        desk.Set(u"Message Display Time"_s, u"15"_s);
        desk.Set(u"Timer Sound File"_s, u"bell.wav"_s);
        desk.Set(u"Message Colour"_s, u"Green"_s);
        desk.Dial.SetNewTimer(u"03:05"_s);
        QCOMPARE(desk.File(), QByteArray("15,Green,bell.wav,,#16/06/2026 15:5=\r\n"));
        QCOMPARE(desk.View.Log, QStringList{u"open "_s});
        QCOMPARE(desk.Typing.Slot(), 1);
        QVERIFY(desk.Canvas.Shows > 0);
    }

    void ANewTimerOfACalculatorKnowsItsDay() {
        DialDesk desk;
        desk.Calculate(ClockKind::CalculatorInput, u"20/06/2026 9:30:00"_s);
        desk.Dial.SetNewTimer(u"09:34"_s);
        QVERIFY(desk.Data.Is(ClockKind::CalculatorMessage));
        desk.Typing.FinishMessage();
        QCOMPARE(desk.File(), QByteArray("20/06/2026 09:34=\r\n"));
    }

    // Its time was not chosen from the calculated one.
    void AMessageIsEdited() {
        DialDesk desk;
        desk.Add(u"00:02"_s, u"Tea"_s);
        desk.Calculate(ClockKind::Calculator, u"20/06/2026 23:55:00"_s);
        desk.Dial.EditMessage(desk.Dial.Choose(1));
        QCOMPARE(desk.View.Log, QStringList{u"open Tea"_s});
        desk.Typing.FinishMessage();
        QCOMPARE(desk.File(), QByteArray("20/06/2026 00:02=Tea\r\n"));
    }

    void AChangeIsSaved() {
        DialDesk desk;
        desk.Add(u"03:05"_s, u"Tea"_s);
        desk.Dial.Change(desk.Dial.Choose(1),
                         [](ClockTimer& timer) { timer.DisplayMinutes = u"9"_s; });
        QCOMPARE(desk.File(), QByteArray("9,Red,,,#16/06/2026 15:5=Tea\r\n"));
        QCOMPARE(desk.Canvas.Shows, 1);
    }

    void APermanentTimerThatIsNotKeptIsTold() {
        DialDesk desk;
        desk.Add(u"12:30"_s, u"Tea"_s);
        desk.Dial.Change(desk.Dial.Choose(1), [](ClockTimer& timer) { timer.Permanent = u"P"_s; });
        QCOMPARE(
            desk.Host.TakeEvents(),
            QStringList{u"status:A timer at 12:30 is kept no longer than its clock is open"_s});
    }

    void ATextThatBreaksTheLineIsRefused() {
        DialDesk desk;
        desk.Add(u"03:05"_s, u"Tea"_s);
        desk.Dial.ChangeText(desk.Dial.Choose(1), &ClockTimer::SoundFile, u"a,b.wav"_s);
        QCOMPARE(desk.Timers.Timer(1).SoundFile, QString());
        QCOMPARE(desk.Host.TakeEvents(),
                 QStringList{u"status:a,b.wav has one of , # @ = in its name; no timer can keep "
                             "it"_s});
        desk.Dial.ChangeText(desk.Dial.Choose(1), &ClockTimer::SoundFile, u"ab.wav"_s);
        QCOMPARE(desk.Timers.Timer(1).SoundFile, u"ab.wav"_s);
        desk.Dial.ChangeText(desk.Dial.Choose(1), &ClockTimer::TimerAction, u"Log Off"_s);
        QCOMPARE(desk.File(), QByteArray("5,Red,ab.wav,Log Off,#16/06/2026 15:5=Tea\r\n"));
    }

    void AnotherTimeMovesTheMark() {
        DialDesk desk;
        desk.Add(u"03:05"_s, u"Tea"_s);
        desk.Host.Marks.clear();
        desk.Dial.ChangeTime(desk.Dial.Choose(1), u"03:08"_s);
        QCOMPARE(desk.File(), QByteArray("5,Red,,,#16/06/2026 15:8=Tea\r\n"));
        QCOMPARE(desk.Host.Marks, std::vector({FakeTimerHost::Mark{1, 15, 9}}));
    }

    void RemovingEmptiesTheSlot() {
        DialDesk desk;
        desk.Add(u"03:05"_s, u"Tea"_s);
        desk.Timers.SaveTimer(desk.Data.TimerFile);
        QCOMPARE(desk.File(), Tea);
        desk.Dial.Remove(desk.Dial.Choose(1));
        QVERIFY(desk.Timers.Timer(1).IsFree());
        QCOMPARE(desk.File(), QByteArray());
        QCOMPARE(desk.Canvas.Shows, 1);
    }

    void APermanentTimerThatIsRemovedStaysReserved() {
        DialDesk desk;
        desk.Add(u"03:05"_s, u"Tea"_s);
        desk.Dial.Change(desk.Dial.Choose(1), [](ClockTimer& timer) { timer.Permanent = u"P"_s; });
        desk.Dial.Remove(desk.Dial.Choose(1));
        QVERIFY(!desk.Timers.Timer(1).OnDial);
        QVERIFY(!desk.Timers.Timer(1).IsFree());
    }

    // What happens while a menu is open: each choice then does nothing.
    void WhatIsNoLongerThereStays_data() {
        QTest::addColumn<QString>("what");
        for (const char* what : {"fired", "removed", "another's", "closing", "no slot"}) {
            QTest::newRow(what) << QString::fromLatin1(what);
        }
    }

    void WhatIsNoLongerThereStays() {
        QFETCH(QString, what);
        DialDesk desk;
        desk.Add(u"12:00"_s, u"Tea"_s);
        const ChosenTimer chosen = desk.Dial.Choose(what == u"no slot"_s ? 0 : 1);
        if (what == u"fired"_s) {
            desk.Timers.CheckTimers(u"15/06/2026 12:00:01"_s);
        } else if (what == u"closing"_s) {
            desk.Data.State = ClockState::Closing;
        } else if (what != u"no slot"_s) {
            desk.Timers.ClearTimerSlot(1);
            if (what == u"another's"_s) {
                desk.Add(u"12:00"_s, u"Eggs"_s);
            }
        }
        const ClockTimer before = desk.Timers.Timer(1);
        const QByteArray file = desk.File();
        QVERIFY(!desk.Dial.IsThere(chosen));
        desk.Dial.EditMessage(chosen);
        desk.Dial.Change(chosen, [](ClockTimer& timer) { timer.Permanent = u"P"_s; });
        desk.Dial.ChangeText(chosen, &ClockTimer::SoundFile, u"bell.wav"_s);
        desk.Dial.ChangeText(chosen, &ClockTimer::SoundFile, u"a,b.wav"_s);
        desk.Dial.ChangeTime(chosen, u"03:08"_s);
        desk.Dial.Remove(chosen);
        QCOMPARE(desk.Timers.Timer(1), before);
        QCOMPARE(desk.File(), file);
        QCOMPARE(desk.View.Log, QStringList());
        desk.Host.Events.removeAll(u"status:Tea"_s);
        QCOMPARE(desk.Host.Events.filter(u"in its name"_s), QStringList());
    }

    void AClosingClockGetsNoTimer() {
        DialDesk desk;
        desk.Data.State = ClockState::Closing;
        desk.Dial.SetNewTimer(u"03:05"_s);
        QVERIFY(desk.Timers.Timer(1).IsFree());
    }

    void ThereIsNoTimerInASlotThatIsNone() {
        DialDesk desk;
        for (const int slot : {-1, 0, 101}) {
            QCOMPARE(desk.Dial.Choose(slot).Slot, 0);
        }
        QVERIFY(!desk.Dial.IsThere(desk.Dial.Choose(5)));
    }
};

QTEST_MAIN(tst_DialTimers)
#include "tst_DialTimers.moc"
