#include "timers/LateActions.h"

#include <QTest>

#include "LateDesk.h"

using namespace Qt::StringLiterals;
using namespace timers;

class tst_LateActions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void RunsAOneShotOnce();
    void RunsAPermanentOneEachDay();
    void ClearsAndSavesBeforeItRuns();
    void GoesOnCountingBehindAKill();
    void AsksForAnEndThatWasNotLivedThrough_data();
    void AsksForAnEndThatWasNotLivedThrough();
    void AsksForALateTimer();
    void NoEndsTheTimer();
    void AsksAgainBehindAKill();
    void AsksOneAtATime();
    void CountsDownOneBehindTheOther();
    void FollowsTheUser();
    void EndsAtItsInstantThroughAChange();
    void RunsAtOnceWithoutMinutes();
};

// With 5 minutes of countdown.
void tst_LateActions::RunsAOneShotOnce() {
    LateDesk desk;
    const int slot = desk.Add(u"12:10"_s, u"Go"_s, u"Chime"_s);
    desk.Live(10);
    QCOMPARE(desk.Fired, QStringList{u"12:10 Go"_s});
    QVERIFY(desk.Timers().Timer(slot).OnDial);
    QCOMPARE(desk.Messages().ActionDeadline(), u"15/06/2026 12:15:00"_s);
    desk.Live(4);
    QVERIFY(desk.Ran.isEmpty());
    desk.Live(1);
    QCOMPARE(desk.Ran, QStringList{u"Chime"_s});
    QVERIFY(desk.Timers().Timer(slot).IsFree());
    desk.Live(3 * 24 * 60);
    QCOMPARE(desk.Ran.size(), 1);
    QCOMPARE(desk.Fired.size(), 1);
    QCOMPARE(desk.Log(), QStringList({u"fired 12:10 Go"_s, u"action-run 12:10 Go"_s}));
}

void tst_LateActions::RunsAPermanentOneEachDay() {
    LateDesk desk;
    desk.Add(u"12:10"_s, u"Go"_s, u"Chime"_s, u"P"_s);
    desk.Live(16);
    QCOMPARE(desk.Ran.size(), 1);
    desk.Live(12 * 60);
    QCOMPARE(desk.Ran.size(), 1);
    desk.Live(12 * 60);
    QCOMPARE(desk.Ran.size(), 2);
    QVERIFY(desk.File().contains(u"12:10,2026-06-17T12:10:00Z#12:10@Go"_s));
}

void tst_LateActions::ClearsAndSavesBeforeItRuns() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Go"_s, u"Chime"_s);
    QString fileAtRun = u"not run"_s;
    desk.Messages().Watch([&](MessageEvent event, const QString&) {
        fileAtRun = event == MessageEvent::ActionRuns ? desk.File() : fileAtRun;
    });
    desk.Live(1);
    QVERIFY(desk.File().contains(u"12:01,2026-06-15T12:06:00Z,acts#"_s));
    desk.Live(5);
    QCOMPARE(fileAtRun, QString());
    QCOMPARE(desk.Ran.size(), 1);
}

void tst_LateActions::GoesOnCountingBehindAKill() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Go"_s, u"Chime"_s);
    desk.Live(3);
    desk.Kill();
    desk.Start();
    desk.Tick();
    QCOMPARE(desk.Messages().ActionDeadline(), u"15/06/2026 12:06:00"_s);
    desk.Live(3);
    QCOMPARE(desk.Ran, QStringList{u"Chime"_s});
    QCOMPARE(desk.Fired.size(), 1);
}

void tst_LateActions::AsksForAnEndThatWasNotLivedThrough_data() {
    QTest::addColumn<bool>("killed");
    QTest::addColumn<QString>("instant");
    QTest::addColumn<bool>("asks");

    QTest::newRow("asleep") << false << u"2026-06-15T12:18:00"_s << true;
    QTest::newRow("asleep for a minute") << false << u"2026-06-15T12:07:00"_s << true;
    QTest::newRow("within its minute") << false << u"2026-06-15T12:06:59"_s << false;
    QTest::newRow("killed") << true << u"2026-06-15T12:18:00"_s << true;
    QTest::newRow("killed for a moment") << true << u"2026-06-15T12:06:59"_s << false;
}

void tst_LateActions::AsksForAnEndThatWasNotLivedThrough() {
    QFETCH(bool, killed);
    QFETCH(QString, instant);
    QFETCH(bool, asks);
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Go"_s, u"Chime"_s);
    desk.Live(3);
    desk.GoTo(instant);
    if (killed) {
        desk.Kill();
        desk.Start();
    }
    desk.Tick();
    desk.Tick();
    QCOMPARE(desk.Ran.isEmpty(), asks);
    QCOMPARE(desk.Questions.Asked.empty(), !asks);
    desk.Live(60);
    QCOMPARE(desk.Ran.isEmpty(), asks);
    if (asks) {
        QCOMPARE(desk.Questions.Asked.size(), 1U);
        QCOMPARE(desk.Questions.Asked[0].Seconds, 60);
        desk.Questions.Answer(true);
    }
    QCOMPARE(desk.Ran, QStringList{u"Chime"_s});
    QVERIFY(desk.File().isEmpty());
}

void tst_LateActions::AsksForALateTimer() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Go"_s, u"Lock Workstation"_s);
    desk.TickAt(u"2026-06-15T12:03:00"_s);
    QCOMPARE(desk.Message(), u"Go (2 minutes late)"_s);
    QVERIFY(!desk.Running->Controls.lblActionMsg(1).Visible);
    QCOMPARE(desk.Questions.Asked.size(), 1U);
    QCOMPARE(desk.Questions.Asked[0].Text,
             u"The action \"Lock Workstation\" of the timer 12:01 is 2 minutes late.\n\n"
             "Run it now?"_s);
    QCOMPARE(desk.Questions.Asked[0].Title, u"Late Timers - London"_s);
    desk.Questions.Answer(true);
    QCOMPARE(desk.Ran, QStringList{u"Lock Workstation"_s});
    QCOMPARE(desk.Log(), QStringList({u"late 12:01 Go +120"_s, u"action-asked 12:01 Go"_s,
                                      u"action-run 12:01 Go"_s}));
    desk.Live(24 * 60);
    QCOMPARE(desk.Ran.size(), 1);
}

void tst_LateActions::NoEndsTheTimer() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Go"_s, u"Chime"_s);
    desk.TickAt(u"2026-06-15T12:03:00"_s);
    desk.Questions.Answer(false);
    QVERIFY(desk.File().isEmpty());
    desk.Live(24 * 60);
    QVERIFY(desk.Ran.isEmpty());
    QCOMPARE(desk.Log().last(), u"action-refused 12:01 Go"_s);
}

void tst_LateActions::AsksAgainBehindAKill() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Go"_s, u"Chime"_s);
    desk.TickAt(u"2026-06-15T12:03:00"_s);
    desk.Kill();
    desk.Start();
    desk.Tick();
    QCOMPARE(desk.Fired.size(), 1);
    QCOMPARE(desk.Questions.Asked.size(), 2U);
    desk.Questions.Answer(true);  // of a clock that has gone
    QVERIFY(desk.Ran.isEmpty());
    desk.Questions.Answer(true);
    QCOMPARE(desk.Ran, QStringList{u"Chime"_s});
}

void tst_LateActions::AsksOneAtATime() {
    LateDesk desk;
    desk.Add(u"12:02"_s, u"second"_s, u"B"_s);
    desk.Add(u"12:01"_s, u"first"_s, u"A"_s);
    desk.TickAt(u"2026-06-15T13:00:00"_s);
    desk.Live(1);
    QCOMPARE(desk.Questions.Asked.size(), 1U);
    desk.Questions.Answer(false);
    desk.Tick();
    QCOMPARE(desk.Questions.Asked.size(), 1U);
    desk.Questions.Answer(true);
    QCOMPARE(desk.Ran, QStringList{u"B"_s});
}

void tst_LateActions::CountsDownOneBehindTheOther() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"first"_s, u"A"_s);
    desk.Add(u"12:01"_s, u"second"_s, u"B"_s);
    desk.Add(u"12:03"_s, u"third"_s, u"C"_s);
    desk.Live(6);
    QCOMPARE(desk.Ran, QStringList{u"A"_s});
    desk.Live(1);
    QCOMPARE(desk.Ran, QStringList({u"A"_s, u"B"_s}));
    QCOMPARE(desk.Messages().PendingAction(), u"C"_s);
    QCOMPARE(desk.Messages().ActionDeadline(), u"15/06/2026 12:08:00"_s);
    desk.Live(1);
    QCOMPARE(desk.Ran, QStringList({u"A"_s, u"B"_s, u"C"_s}));
}

// Another end, no action any more, no timer any more.
void tst_LateActions::FollowsTheUser() {
    LateDesk desk;
    const int postponed = desk.Add(u"12:01"_s, u"first"_s, u"A"_s);
    desk.Live(2);
    desk.Messages().PostponeAction(30);
    desk.Tick();
    QVERIFY(desk.File().contains(u"12:01,2026-06-15T12:32:00Z,acts#"_s));
    desk.Live(20);
    QVERIFY(desk.Ran.isEmpty());
    desk.Messages().CancelAction();
    desk.Tick();
    QVERIFY(desk.Timers().Timer(postponed).IsFree());
    QVERIFY(desk.File().isEmpty());
    QCOMPARE(desk.Log().last(), u"action-refused 12:01 first"_s);
    const int removed = desk.Add(u"12:30"_s, u"second"_s, u"B"_s);
    desk.Live(9);
    QCOMPARE(desk.Messages().PendingAction(), u"B"_s);
    desk.Timers().ClearTimerSlot(removed);
    desk.Live(60);
    QVERIFY(desk.Ran.isEmpty());
}

// The clock is put forward in the countdown.
void tst_LateActions::EndsAtItsInstantThroughAChange() {
    LateDesk desk;
    desk.Clock.Ahead = [](const QDateTime& instant) {
        return instant.time() >= QTime(12, 3) ? 3600 : 0;
    };
    desk.Add(u"12:01"_s, u"first"_s, u"A"_s);
    desk.Live(4);
    QCOMPARE(desk.Messages().ActionDeadline(), u"15/06/2026 13:06:00"_s);
    QVERIFY(desk.Ran.isEmpty());
    desk.Live(2);
    QCOMPARE(desk.Ran, QStringList{u"A"_s});
    QVERIFY(desk.Questions.Asked.empty());
}

void tst_LateActions::RunsAtOnceWithoutMinutes() {
    LateDesk desk;
    desk.Set(u"Message Display Time"_s, u"-3"_s);
    desk.Add(u"12:01"_s, u"first"_s, u"A"_s);
    desk.TickAt(u"2026-06-15T12:01:00"_s);
    QCOMPARE(desk.Ran, QStringList{u"A"_s});
}

QTEST_GUILESS_MAIN(tst_LateActions)
#include "tst_LateActions.moc"
