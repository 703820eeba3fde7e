#include "timers/LateTimers.h"

#include <QTest>

#include "LateDesk.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

constexpr int Hour = 3600;

/// London's clock in 2026.
int London(const QDateTime& instant) {
    const QDateTime spring(QDate(2026, 3, 29), QTime(1, 0), Qt::UTC);
    const QDateTime autumn(QDate(2026, 10, 25), QTime(1, 0), Qt::UTC);
    return instant >= spring && instant < autumn ? Hour : 0;
}

QDateTime June(int day, int hour, int minute = 0, int second = 0) {
    return {QDate(2026, 6, day), QTime(hour, minute, second), Qt::UTC};
}

int OnDial(LateDesk& desk) {
    int count = 0;
    for (int slot = 1; slot <= desk.Timers().SlotCount(); ++slot) {
        count += desk.Timers().Timer(slot).OnDial ? 1 : 0;
    }
    return count;
}

}  // namespace

class tst_LateTimers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FiresInItsMinute();
    void FiresATimeOfTheDayOnce();
    void FiresEitherHalfWithTwelve();
    void FiresLateOnce_data();
    void FiresLateOnce();
    void IsNotLateInItsMinute();
    void FiresNothingTwiceOnAClockSetBack();
    void FiresInOrder();
    void AsksForLateTimers();
    void AsksAgainWhereNobodyAnswered();
    void ForgetsAQuestionForAChangedTimer();
    void SkipsLateTimers();
    void WaitsForTheNextComingByTheRules();
    void TellsALateTimerWithoutAMessage();
    void ClearsAndSavesBeforeItShows();
    void KeepsWhatAClosingClockHasNotShown();
    void HoldsATimerThatIsTypedInto();
    void LosesNoneInAnHourThatIsLeftOut();
    void FiresOnceInAnHourThatComesTwice();
    void FollowsAnotherOffset();
    void KnowsTheChangesOfAnExactZone();
    void LeavesInstantsWhereTheMachineMoves();
    void FollowsAnotherZone();
    void BringsAPermanentTimerNear();
    void TakesADatedLineOnItsDay_data();
    void TakesADatedLineOnItsDay();
    void ReadsAnOldFile();
    void GoesByTheRulesWithoutTheKeys();
    void TurnsOnAndOff();
    void FiresManyAtOnceWithOneSave();
    void FiresWhileAnActionCountsDown();
    void TellsOfAFullDisk();
};

void tst_LateTimers::FiresInItsMinute() {
    LateDesk desk;
    const int slot = desk.Add(u"15:10"_s, u"Tea"_s);
    QCOMPARE(desk.Timers().Timer(slot).Due, (TimerDue{June(15, 15, 10), true, false}));
    desk.TickAt(u"2026-06-15T15:09:59"_s);
    QVERIFY(desk.Fired.isEmpty());
    desk.TickAt(u"2026-06-15T15:10:00"_s);
    QCOMPARE(desk.Fired, QStringList{u"15:10 Tea"_s});
    QCOMPARE(desk.Message(), u"Tea"_s);
    QCOMPARE(desk.Messages().MessageExpiry(), u"15:15"_s);
    QVERIFY(desk.Timers().Timer(slot).IsFree());
    desk.Live(24 * 60);
    QCOMPARE(desk.Fired.size(), 1);
    QCOMPARE(desk.Log(), QStringList{u"fired 15:10 Tea"_s});
}

// 3:10 in the afternoon is not 3:10 in the night.
void tst_LateTimers::FiresATimeOfTheDayOnce() {
    LateDesk desk;
    desk.Add(u"03:10"_s, u"Night"_s);
    desk.Add(desk.Timers().PickedTime(u"03:10"_s), u"Tea"_s);
    desk.Live(4 * 60);
    QCOMPARE(desk.Fired, QStringList{u"15:10 Tea"_s});
    desk.Live(12 * 60);
    QCOMPARE(desk.Fired, QStringList({u"15:10 Tea"_s, u"03:10 Night"_s}));
    QCOMPARE(desk.Clock.Instant, June(16, 4));
}

void tst_LateTimers::FiresEitherHalfWithTwelve() {
    LateDesk desk(u"Show"_s, u"12"_s);
    QCOMPARE(desk.Timers().PickedTime(u"03:10"_s), u"03:10"_s);
    const int slot = desk.Add(u"03:10"_s, u"Tea"_s);
    QCOMPARE(desk.Timers().Timer(slot).Due, (TimerDue{June(15, 15, 10), false, false}));
    desk.TickAt(u"2026-06-15T15:10:30"_s);
    QCOMPARE(desk.Fired, QStringList{u"03:10 Tea"_s});
}

void tst_LateTimers::FiresLateOnce_data() {
    QTest::addColumn<bool>("killed");
    QTest::addColumn<QString>("wakes");
    QTest::addColumn<QString>("message");

    for (const bool killed : {false, true}) {
        const char* how = killed ? "closed" : "asleep";
        QTest::addRow("%s a minute", how)
            << killed << u"2026-06-15T15:11:00"_s << u"Tea (1 minute late)"_s;
        QTest::addRow("%s minutes", how)
            << killed << u"2026-06-15T15:22:10"_s << u"Tea (12 minutes late)"_s;
        QTest::addRow("%s hours", how)
            << killed << u"2026-06-15T17:15:00"_s << u"Tea (2 h 5 min late)"_s;
        QTest::addRow("%s days", how)
            << killed << u"2026-06-18T19:10:00"_s << u"Tea (3 days 4 h late)"_s;
    }
}

void tst_LateTimers::FiresLateOnce() {
    QFETCH(bool, killed);
    QFETCH(QString, wakes);
    LateDesk desk;
    desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Live(1);
    if (killed) {
        desk.Kill();
    }
    desk.GoTo(wakes);
    if (killed) {
        desk.Start();
    }
    desk.Tick();
    QCOMPARE(desk.Fired, QStringList{u"15:10 Tea"_s});
    QTEST(desk.Message(), "message");
    desk.Kill();
    desk.Start();
    desk.Live(24 * 60);
    QCOMPARE(desk.Fired.size(), 1);
    QVERIFY(desk.Log().first().startsWith(u"late 15:10 Tea +"_s));
}

void tst_LateTimers::IsNotLateInItsMinute() {
    LateDesk desk;
    desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Kill();
    desk.GoTo(u"2026-06-15T15:10:59"_s);
    desk.Start();
    desk.Tick();
    QCOMPARE(desk.Message(), u"Tea"_s);
    QCOMPARE(desk.Log(), QStringList{u"fired 15:10 Tea +59"_s});
}

void tst_LateTimers::FiresNothingTwiceOnAClockSetBack() {
    LateDesk desk;
    desk.Add(u"12:30"_s, u"Once"_s);
    desk.Add(u"12:31"_s, u"Act"_s, u"Chime"_s, u"P"_s);
    desk.Add(u"14:00"_s, u"Later"_s);
    desk.Live(60);
    QCOMPARE(desk.Fired, QStringList({u"12:30 Once"_s, u"12:31 Act"_s}));
    QCOMPARE(desk.Ran, QStringList{u"Chime"_s});
    desk.TickAt(u"2026-06-15T12:00:00"_s);
    desk.Live(180);
    QCOMPARE(desk.Fired, QStringList({u"12:30 Once"_s, u"12:31 Act"_s, u"14:00 Later"_s}));
    QCOMPARE(desk.Ran.size(), 1);
    desk.Live(24 * 60);
    QCOMPARE(desk.Fired.last(), u"12:31 Act"_s);
    QCOMPARE(desk.Fired.size(), 4);
}

void tst_LateTimers::FiresInOrder() {
    LateDesk desk;
    desk.Add(u"15:12"_s, u"third"_s);
    desk.Add(u"15:10"_s, u"first"_s);
    desk.Add(u"15:11"_s, u"second"_s);
    desk.Add(u"15:11"_s, u"second again"_s);
    desk.TickAt(u"2026-06-15T16:00:00"_s);
    QCOMPARE(desk.Fired, QStringList({u"15:10 first"_s, u"15:11 second"_s, u"15:11 second again"_s,
                                      u"15:12 third"_s}));
    QCOMPARE(desk.Message(), u"third (48 minutes late)"_s);
}

void tst_LateTimers::AsksForLateTimers() {
    LateDesk desk(u"Ask"_s);
    desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Add(u"15:20"_s, u"Cake"_s);
    desk.Add(u"15:30"_s, u"Now"_s);
    desk.TickAt(u"2026-06-15T15:30:00"_s);
    QCOMPARE(desk.Fired, QStringList{u"15:30 Now"_s});
    QCOMPARE(desk.Questions.Asked.size(), 1U);
    QCOMPARE(desk.Questions.Asked[0].Text,
             u"2 timers came while they could not be shown:\n\n15:10 Tea (20 minutes late)\n"
             "15:20 Cake (10 minutes late)\n\nShow them now?"_s);
    QCOMPARE(desk.Questions.Asked[0].Title, u"Late Timers - London"_s);
    QCOMPARE(desk.Questions.Asked[0].Seconds, 0);
    desk.Live(2);
    QCOMPARE(desk.Questions.Asked.size(), 1U);
    desk.Questions.Answer(true);
    QCOMPARE(desk.Fired, QStringList({u"15:30 Now"_s, u"15:10 Tea"_s, u"15:20 Cake"_s}));
    QCOMPARE(desk.Message(), u"Cake (12 minutes late)"_s);
    desk.Live(60);
    QCOMPARE(desk.Fired.size(), 3);
    QCOMPARE(OnDial(desk), 0);
}

// Until it is answered, the question comes again with the program; No ends the timer.
void tst_LateTimers::AsksAgainWhereNobodyAnswered() {
    LateDesk desk(u"Ask"_s);
    desk.Add(u"15:10"_s, u"Tea"_s);
    desk.TickAt(u"2026-06-15T15:30:00"_s);
    desk.Kill();
    desk.Start();
    desk.Tick();
    QCOMPARE(desk.Questions.Asked.size(), 2U);
    desk.Questions.Answer(true);  // of a clock that has gone
    QVERIFY(desk.Fired.isEmpty());
    QCOMPARE(desk.Questions.Asked[0].Text,
             u"A timer came while it could not be shown:\n\n"
             "15:10 Tea (20 minutes late)\n\nShow it now?"_s);
    desk.Questions.Answer(false);
    desk.Kill();
    desk.Start();
    desk.Live(24 * 60);
    QVERIFY(desk.Fired.isEmpty());
    QVERIFY(desk.Questions.Asked.empty());
    QCOMPARE(desk.Log(), QStringList{u"skipped 15:10 Tea +1200"_s});
}

void tst_LateTimers::ForgetsAQuestionForAChangedTimer() {
    LateDesk desk(u"Ask"_s);
    const int slot = desk.Add(u"15:10"_s, u"Tea"_s);
    desk.TickAt(u"2026-06-15T15:30:00"_s);
    desk.Timers().PlaceTimerMark(slot, u"16:00"_s);
    desk.Questions.Answer(true);
    QVERIFY(desk.Fired.isEmpty());
    desk.TickAt(u"2026-06-15T16:00:00"_s);
    QCOMPARE(desk.Fired, QStringList{u"16:00 Tea"_s});
}

void tst_LateTimers::SkipsLateTimers() {
    LateDesk desk(u"Skip"_s);
    desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Add(u"15:20"_s, u"Act"_s, u"Chime"_s);
    desk.TickAt(u"2026-06-15T15:30:00"_s);
    desk.Live(48 * 60);
    QVERIFY(desk.Fired.isEmpty());
    QVERIFY(desk.Ran.isEmpty());
    QCOMPARE(OnDial(desk), 0);
    QCOMPARE(desk.Log(), QStringList({u"skipped 15:10 Tea +1200"_s, u"skipped 15:20 Act +600"_s}));
    QVERIFY(desk.File().isEmpty());
}

void tst_LateTimers::WaitsForTheNextComingByTheRules() {
    LateDesk desk(u"0"_s);
    const int slot = desk.Add(u"15:10"_s, u"Tea"_s);
    desk.TickAt(u"2026-06-15T15:30:00"_s);
    QVERIFY(desk.Fired.isEmpty());
    QCOMPARE(desk.Timers().Timer(slot).Due.At, June(16, 15, 10));
    desk.TickAt(u"2026-06-16T15:10:00"_s);
    QCOMPARE(desk.Fired, QStringList{u"15:10 Tea"_s});
}

void tst_LateTimers::TellsALateTimerWithoutAMessage() {
    LateDesk desk;
    desk.Add(u"15:10"_s, {});
    desk.TickAt(u"2026-06-15T15:22:00"_s);
    QCOMPARE(desk.Message(), u"Timer 15:10 (12 minutes late)"_s);
}

void tst_LateTimers::ClearsAndSavesBeforeItShows() {
    LateDesk desk;
    desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Add(u"16:00"_s, u"Cake"_s);
    QString fileAtFiring;
    int atFiring = 0;
    desk.Timers().WatchFiring([&](int, const ClockTimer&) {
        fileAtFiring = desk.File();
        atFiring = OnDial(desk);
    });
    desk.TickAt(u"2026-06-15T15:10:00"_s);
    QCOMPARE(
        fileAtFiring,
        u"5,#000000,,,0,16:00,2026-06-15T16:00:00Z#"
        "16/06/2026 16:0=Cake\r\n"_s.replace(u"#000000,,,0"_s, fileAtFiring.section(u',', 1, 4)));
    QCOMPARE(atFiring, 1);
}

// The first one's speech lets the user close the clock.
void tst_LateTimers::KeepsWhatAClosingClockHasNotShown() {
    LateDesk desk;
    desk.Set(u"Speak Timer Message"_s, u"Yes"_s);
    desk.Add(u"15:10"_s, u"first"_s);
    desk.Add(u"15:11"_s, u"second"_s);
    desk.Host.WhileSpeaking = [&] { desk.Host.Closing = true; };
    desk.TickAt(u"2026-06-15T16:00:00"_s);
    QCOMPARE(desk.Fired, QStringList{u"15:10 first"_s});
    desk.Kill();
    desk.Host.Closing = false;
    desk.Host.WhileSpeaking = {};
    desk.Start();
    desk.Tick();
    QCOMPARE(desk.Fired, QStringList({u"15:10 first"_s, u"15:11 second"_s}));
}

void tst_LateTimers::HoldsATimerThatIsTypedInto() {
    LateDesk desk;
    const int held = desk.Add(u"12:01"_s, u"typed"_s);
    desk.Add(u"12:02"_s, u"other"_s);
    bool holds = true;
    desk.Timers().HoldWhile([&](int slot) { return holds && slot == held; });
    desk.Live(3);
    QCOMPARE(desk.Fired, QStringList{u"12:02 other"_s});
    holds = false;
    desk.Live(1);
    QCOMPARE(desk.Fired.last(), u"12:01 typed"_s);
    QCOMPARE(desk.Message(), u"typed (2 minutes late)"_s);
}

void tst_LateTimers::LosesNoneInAnHourThatIsLeftOut() {
    LateDesk desk;
    desk.Clock.Ahead = London;
    desk.GoTo(u"2026-03-28T18:00:00"_s);
    desk.Tick();
    desk.Add(u"01:30"_s, u"in the gap"_s);
    desk.Add(u"00:59"_s, u"before"_s);
    desk.Add(u"02:10"_s, u"behind"_s);
    desk.GoTo(u"2026-03-29T00:58:00"_s);
    desk.Tick();
    desk.Live(1);
    QCOMPARE(desk.Fired, QStringList{u"00:59 before"_s});
    desk.Live(1);
    QCOMPARE(desk.Fired.last(), u"01:30 in the gap"_s);
    QCOMPARE(desk.Message(), u"in the gap"_s);
    desk.Live(9);
    QCOMPARE(desk.Fired.size(), 2);
    desk.Live(1);
    QCOMPARE(desk.Fired.last(), u"02:10 behind"_s);
    QCOMPARE(desk.Message(), u"behind"_s);
    desk.Live(26 * 60);
    QCOMPARE(desk.Fired.size(), 3);
}

void tst_LateTimers::FiresOnceInAnHourThatComesTwice() {
    LateDesk desk;
    desk.Clock.Ahead = London;
    desk.GoTo(u"2026-10-24T18:00:00"_s);
    desk.Tick();
    desk.Add(u"01:30"_s, u"twice"_s);
    desk.Add(u"02:10"_s, u"behind"_s);
    desk.GoTo(u"2026-10-25T00:29:00"_s);
    desk.Tick();
    desk.Live(1);
    QCOMPARE(desk.Fired, QStringList{u"01:30 twice"_s});
    desk.Live(60 + 39);
    QCOMPARE(desk.Fired.size(), 1);
    desk.Live(1);
    QCOMPARE(desk.Fired, QStringList({u"01:30 twice"_s, u"02:10 behind"_s}));
    QCOMPARE(desk.Message(), u"behind"_s);
}

// Through the spring change asleep: the clock shows 8:00 when it wakes.
void tst_LateTimers::FollowsAnotherOffset() {
    LateDesk desk;
    desk.Clock.Ahead = London;
    desk.GoTo(u"2026-03-28T18:00:00"_s);
    desk.Tick();
    desk.Add(u"07:00"_s, u"late"_s);
    desk.Add(u"08:00"_s, u"now"_s);
    desk.TickAt(u"2026-03-29T07:00:30"_s);
    QCOMPARE(desk.Fired, QStringList({u"07:00 late"_s, u"08:00 now"_s}));
    QCOMPARE(desk.Log(), QStringList({u"late 07:00 late +3630"_s, u"fired 08:00 now +30"_s}));
}

// The instants are right from the beginning, and no change moves them.
void tst_LateTimers::KnowsTheChangesOfAnExactZone() {
    LateDesk desk;
    desk.Zone.ExactId = u"Europe/London"_s;
    desk.Clock.Ahead = London;
    desk.GoTo(u"2026-10-24T18:00:00"_s);
    desk.Tick();
    const int twice = desk.Add(u"01:30"_s, u"twice"_s);
    const int behind = desk.Add(u"15:30"_s, u"behind"_s);
    const QDateTime day(QDate(2026, 10, 25), QTime(0, 0), Qt::UTC);
    QCOMPARE(desk.Timers().Timer(twice).Due.At, day.addSecs(1800));
    QCOMPARE(desk.Timers().Timer(behind).Due.At, day.addSecs(15 * Hour + 1800));
    desk.TickAt(u"2026-10-25T00:59:59"_s);
    QCOMPARE(desk.Log(), QStringList{u"late 01:30 twice +1799"_s});
    desk.TickAt(u"2026-10-25T01:00:00"_s);
    QCOMPARE(desk.Timers().Timer(behind).Due.At, day.addSecs(15 * Hour + 1800));
    desk.TickAt(u"2026-10-25T15:29:59"_s);
    QCOMPARE(desk.Fired.size(), 1);
    desk.TickAt(u"2026-10-25T15:30:00"_s);
    QCOMPARE(desk.Fired.size(), 2);
}

void tst_LateTimers::LeavesInstantsWhereTheMachineMoves() {
    LateDesk desk;
    const int slot = desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Tick();
    desk.Clock.Ahead = [](const QDateTime&) { return 9 * Hour; };
    desk.Tick();
    QCOMPARE(desk.Timers().Timer(slot).Due.At, June(15, 15, 10));
    QVERIFY(desk.Fired.isEmpty());
    desk.Clock.Ahead = [](const QDateTime&) { return 3 * Hour + 9 * Hour; };
    desk.Tick();
    QCOMPARE(desk.Timers().Timer(slot).Due.At, June(15, 12, 10));
}

// The clock shows another zone: its timers come when that shows their time.
void tst_LateTimers::FollowsAnotherZone() {
    LateDesk desk;
    const int east = desk.Add(u"15:10"_s, u"Tea"_s);
    desk.Tick();
    desk.Zone.StandardName = u"Tokyo"_s;
    desk.Zone.HoursFromLocal = 9;
    desk.Tick();
    QVERIFY(desk.Fired.isEmpty());
    QCOMPARE(desk.Timers().Timer(east).Due.At, June(16, 6, 10));
}

void tst_LateTimers::BringsAPermanentTimerNear() {
    LateDesk desk;
    const int slot = desk.Add(u"15:10"_s, u"Tea"_s, u"Chime"_s, u"P"_s);
    desk.Tick();
    desk.TickAt(u"2026-05-01T12:00:00"_s);
    QCOMPARE(desk.Timers().Timer(slot).Due.At,
             QDateTime(QDate(2026, 5, 2), QTime(15, 10), Qt::UTC));
    QVERIFY(desk.Fired.isEmpty());
}

void tst_LateTimers::TakesADatedLineOnItsDay_data() {
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("of an older program") << QByteArray("16/06/2026 21:30=Call home\r\n");
    QTest::newRow("kept") << QByteArray(
        "5,Red,,None,0,21:30,2026-06-16T21:30:00Z#16/06/2026 21:30=Call home\r\n");
}

void tst_LateTimers::TakesADatedLineOnItsDay() {
    QFETCH(QByteArray, line);
    LateDesk desk;
    desk.Kill();
    desk.Machine.Files.Write(desk.Path(), line);
    desk.GoTo(u"2026-06-14T12:00:00"_s);
    desk.Start();
    QCOMPARE(desk.Timers().DeferredTimerLines().size(), 1);
    QCOMPARE(OnDial(desk), 0);
    desk.TickAt(u"2026-06-15T09:31:00"_s);
    QCOMPARE(OnDial(desk), 0);
    desk.TickAt(u"2026-06-15T21:30:00"_s);
    QCOMPARE(OnDial(desk), 0);
    desk.TickAt(u"2026-06-15T21:30:01"_s);
    QCOMPARE(OnDial(desk), 1);
    QVERIFY(desk.Timers().DeferredTimerLines().isEmpty());
    desk.TickAt(u"2026-06-16T09:30:00"_s);
    QVERIFY(desk.Fired.isEmpty());
    desk.TickAt(u"2026-06-16T21:30:00"_s);
    QCOMPARE(desk.Fired, QStringList{u"21:30 Call home"_s});
    QVERIFY(desk.File().isEmpty());
}

// Its timers mean either half; they are given the coming that is next, and written so.
void tst_LateTimers::ReadsAnOldFile() {
    LateDesk desk;
    desk.Kill();
    desk.Machine.Files.Write(desk.Path(),
                             "5,Red,,None,0#15:10@Tea\r\n"
                             "5,Red,,None,0#16/06/2026 14:0=Cake\r\n"
                             "5,Red,,None,0#14/06/2026 14:0=Gone\r\n"
                             "23:30=Night\r\n");
    desk.GoTo(u"2026-06-15T14:30:00"_s);
    desk.Start();
    QCOMPARE(desk.File(),
             u"5,Red,,None,0,15:10,2026-06-15T15:10:00Z#15:10@Tea\r\n"
             "5,Red,,None,0,02:00,2026-06-16T02:00:00Z#16/06/2026 14:0=Cake\r\n"
             "0,Black,,,,23:30,2026-06-15T23:30:00Z#16/06/2026 23:30=Night\r\n"_s);
    desk.Kill();
    desk.GoTo(u"2026-06-16T03:00:00"_s);
    desk.Start();
    desk.Tick();
    QCOMPARE(desk.Fired, QStringList({u"15:10 Tea"_s, u"23:30 Night"_s, u"02:00 Cake"_s}));
}

void tst_LateTimers::GoesByTheRulesWithoutTheKeys() {
    LateDesk desk(u"0"_s, u"0"_s);
    const int slot = desk.Add(u"15:10"_s, u"Tea"_s);
    QVERIFY(!desk.Timers().Timer(slot).Due.At.isValid());
    QCOMPARE(desk.Timers().PickedTime(u"03:10"_s), u"03:10"_s);
    QVERIFY(!desk.File().contains(u"2026-06-15T"_s));
    QVERIFY(desk.Log().isEmpty());
    QVERIFY(!desk.Machine.Files.Exists(desk.Machine.AppFolder() + u"/Timers.log"_s));
}

void tst_LateTimers::TurnsOnAndOff() {
    LateDesk desk(u"0"_s, u"0"_s);
    const int slot = desk.Add(u"03:10"_s, u"Tea"_s);
    desk.Set(u"Timer Clock"_s, u"24"_s);
    desk.Timers().ReadKeys();
    QCOMPARE(desk.Timers().Timer(slot).TimerTime, u"15:10"_s);
    QCOMPARE(desk.Timers().Timer(slot).Due, (TimerDue{June(15, 15, 10), true, false}));
    QVERIFY(desk.File().contains(u"15:10,2026-06-15T15:10:00Z"_s));
    desk.Set(u"Timer Clock"_s, u"0"_s);
    desk.Timers().ReadKeys();
    QVERIFY(!desk.Timers().Timer(slot).Due.At.isValid());
    QVERIFY(!desk.File().contains(u"2026-06-15T"_s));
    QVERIFY(desk.File().contains(u"=Tea"_s));
}

void tst_LateTimers::FiresManyAtOnceWithOneSave() {
    LateDesk desk;
    for (int number = 1; number <= 500; ++number) {
        const int slot = desk.Timers().SetNewTimer(u"15:10"_s);
        ClockTimer timer = desk.Timers().Timer(slot);
        timer.Message = QString::number(number);
        desk.Timers().ChangeTimer(slot, timer);
    }
    desk.Machine.Files.Writes.clear();
    desk.TickAt(u"2026-06-15T15:10:00"_s);
    QCOMPARE(desk.Fired.size(), 500);
    QCOMPARE(desk.Machine.Files.Writes.filter(u"LondonTimer.txt"_s).size(), 1);
    QCOMPARE(desk.Machine.Files.Writes.filter(u"Timers.log"_s).size(), 1);
    QCOMPARE(desk.Log().size(), 500);
}

void tst_LateTimers::FiresWhileAnActionCountsDown() {
    LateDesk desk;
    desk.Add(u"12:01"_s, u"Act"_s, u"Chime"_s);
    desk.Add(u"12:03"_s, u"Tea"_s);
    desk.Live(3);
    QCOMPARE(desk.Fired, QStringList({u"12:01 Act"_s, u"12:03 Tea"_s}));
    QCOMPARE(desk.Message(), u"Tea"_s);
    QVERIFY(desk.Ran.isEmpty());
    desk.Live(3);
    QCOMPARE(desk.Ran, QStringList{u"Chime"_s});
}

void tst_LateTimers::TellsOfAFullDisk() {
    LateDesk desk;
    desk.Machine.Files.Unwritable = QStringList{desk.Path()};
    desk.Host.TakeEvents();
    desk.Add(u"15:10"_s, u"Tea"_s);
    QVERIFY(desk.Timers().IsUnsaved());
    desk.Live(1);
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList{u"status:"_s + desk.Path() + u" can't be written"_s});
    desk.Machine.Files.Unwritable.clear();
    desk.Clock.Instant = desk.Clock.Instant.addSecs(9);
    desk.Tick();
    QVERIFY(desk.Timers().IsUnsaved());
    desk.Clock.Instant = desk.Clock.Instant.addSecs(1);
    desk.Tick();
    QVERIFY(!desk.Timers().IsUnsaved());
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList{u"status:"_s + desk.Path() + u" is written again"_s});
    QVERIFY(desk.File().contains(u"=Tea"_s));
}

QTEST_GUILESS_MAIN(tst_LateTimers)
#include "tst_LateTimers.moc"
