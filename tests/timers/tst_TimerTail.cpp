#include "timers/TimerTail.h"

#include <QTest>

#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

QDateTime At(int day, int hour, int minute = 0) {
    return {QDate(2026, 11, day), QTime(hour, minute), Qt::UTC};
}

/// Of a clock that is an hour ahead of GMT.
ClockTimer Timer(const QString& time, const TimerDue& due, const QString& permanent = {}) {
    return {time, permanent, true, u"5"_s, u"Call home"_s, 255, {}, u"None"_s, u"0"_s, due};
}

const TimerDue Afternoon{At(16, 14, 10), true, false};

/// What a reader has of the line that it keeps.
ClockTimer Read(const QString& text) {
    FakeRandom random;
    ClockTimer timer;
    const TimerLine line = ParseTimerLine(text, 2026).value();
    FillTimer(line, random, timer);
    FillFromTail(line, timer);
    return timer;
}

}  // namespace

class tst_TimerTail : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WritesLines_data();
    void WritesLines();
    void ReadsWhatItWrites_data();
    void ReadsWhatItWrites();
    void LeavesALineWithoutAnInstant_data();
    void LeavesALineWithoutAnInstant();
    void ReadsATimeThatIsNone();
    void GivesAnOldReaderWhatItHad_data();
    void GivesAnOldReaderWhatItHad();
    void WritesALineForALaterDay();
};

void tst_TimerTail::WritesLines_data() {
    QTest::addColumn<ClockTimer>("timer");
    QTest::addColumn<QString>("line");

    QTest::newRow("one-shot")
        << Timer(u"15:10"_s, Afternoon)
        << u"5,Red,,None,0,15:10,2026-11-16T14:10:00Z#16/11/2026 15:10=Call home"_s;
    QTest::newRow("permanent") << Timer(u"15:10"_s, Afternoon, u"P"_s)
                               << u"5,Red,,None,0,15:10,2026-11-16T14:10:00Z#15:10@Call home"_s;
    QTest::newRow("night") << Timer(u"03:10"_s, {At(17, 2, 10), true, false}, u"P"_s)
                           << u"5,Red,,None,0,03:10,2026-11-17T02:10:00Z#15:10@Call home"_s;
    QTest::newRow("either half") << Timer(u"03:10"_s, {At(16, 14, 10), false, false}, u"P"_s)
                                 << u"5,Red,,None,0,,2026-11-16T14:10:00Z#15:10@Call home"_s;
    QTest::newRow("half past twelve")
        << Timer(u"12:30"_s, {At(16, 11, 30), true, false}, u"P"_s)
        << u"5,Red,,None,0,12:30,2026-11-16T11:30:00Z#12:30@Call home"_s;
    QTest::newRow("acting") << Timer(u"15:10"_s, {At(16, 14, 15), true, true}, u"P"_s)
                            << u"5,Red,,None,0,15:10,2026-11-16T14:15:00Z,acts#15:10@Call home"_s;
    QTest::newRow("by the rules") << Timer(u"03:10"_s, {}, u"P"_s)
                                  << u"5,Red,,None,0#15:10@Call home"_s;
}

void tst_TimerTail::WritesLines() {
    QFETCH(ClockTimer, timer);
    QTEST(TimerLineText(timer, At(16, 9)), "line");
}

void tst_TimerTail::ReadsWhatItWrites_data() {
    QTest::addColumn<ClockTimer>("timer");

    QTest::newRow("one-shot") << Timer(u"15:10"_s, Afternoon);
    QTest::newRow("permanent") << Timer(u"15:10"_s, Afternoon, u"P"_s);
    QTest::newRow("noon") << Timer(u"12:00"_s, {At(16, 11), true, false});
    QTest::newRow("midnight") << Timer(u"00:00"_s, {At(16, 23), true, false}, u"P"_s);
    QTest::newRow("either half") << Timer(u"03:10"_s, {At(16, 14, 10), false, false});
    QTest::newRow("acting") << Timer(u"15:10"_s, {At(16, 14, 15), true, true});
    QTest::newRow("acting in either half") << Timer(u"11:59"_s, {At(16, 14, 15), false, true});
}

void tst_TimerTail::ReadsWhatItWrites() {
    QFETCH(ClockTimer, timer);
    for (const int hour : {0, 9, 11, 12, 15, 23}) {
        QCOMPARE(Read(TimerLineText(timer, At(16, hour))), timer);
    }
}

void tst_TimerTail::LeavesALineWithoutAnInstant_data() {
    QTest::addColumn<QString>("line");

    QTest::newRow("five values") << u"5,Red,,None,0#15:10@x"_s;
    QTest::newRow("no values") << u"15:10@x"_s;
    QTest::newRow("time alone") << u"5,Red,,None,0,15:10#15:10@x"_s;
    QTest::newRow("empty instant") << u"5,Red,,None,0,15:10,#15:10@x"_s;
    QTest::newRow("no instant") << u"5,Red,,None,0,15:10,tomorrow#15:10@x"_s;
    QTest::newRow("reading") << u"5,Red,,None,0,15:10,2026-11-16T14:10:00#15:10@x"_s;
    QTest::newRow("no day") << u"5,Red,,None,0,15:10,2026-11-31T14:10:00Z#15:10@x"_s;
}

void tst_TimerTail::LeavesALineWithoutAnInstant() {
    QFETCH(QString, line);
    ClockTimer timer = Timer(u"07:00"_s, Afternoon);
    const ClockTimer before = timer;
    QVERIFY(!FillFromTail(ParseTimerLine(line, 2026).value(), timer));
    QCOMPARE(timer, before);
}

void tst_TimerTail::ReadsATimeThatIsNone() {
    const QString line = u"5,Red,,None,0,25:10,2026-11-16T14:10:00Z,sleeps#16/11/2026 15:10=x"_s;
    const ClockTimer timer = Read(line);
    QCOMPARE(timer.TimerTime, u"03:10"_s);
    QCOMPARE(timer.Due, (TimerDue{At(16, 14, 10), false, false}));
}

void tst_TimerTail::GivesAnOldReaderWhatItHad_data() {
    QTest::addColumn<QString>("time");
    QTest::addColumn<int>("hour");  // at which the file is written

    for (const int hour : {9, 15}) {
        QTest::addRow("3:10 at %d", hour) << u"15:10"_s << hour;
        QTest::addRow("11:59 at %d", hour) << u"11:59"_s << hour;
        QTest::addRow("0:01 at %d", hour) << u"00:01"_s << hour;
    }
}

// All but what stands behind the five values, and the hour in its half.
void tst_TimerTail::GivesAnOldReaderWhatItHad() {
    QFETCH(QString, time);
    QFETCH(int, hour);
    for (const QString& permanent : {QString(), u"P"_s}) {
        const ClockTimer kept = Timer(time, Afternoon, permanent);
        ClockTimer old = kept;
        old.Due = {};
        old.TimerTime =
            HourMinute(QTime(QTime::fromString(time).hour() % 12, 0)).left(3) + time.mid(3);
        const TimerLine was = ParseTimerLine(TimerLineText(old, At(16, hour)), 2026).value();
        const TimerLine is = ParseTimerLine(TimerLineText(kept, At(16, hour)), 2026).value();
        QCOMPARE(is.When, was.When);
        QCOMPARE(UseOf(is, At(16, hour)), UseOf(was, At(16, hour)));
        QCOMPARE(UseOf(is, At(17, 9)), UseOf(was, At(17, 9)));
        QCOMPARE(is.Meta.mid(0, 5), was.Meta);
    }
}

void tst_TimerTail::WritesALineForALaterDay() {
    const ClockTimer timer = Timer(u"21:30"_s, {At(16, 20, 30), true, false});
    const QString line = KeptLineText(timer, At(16, 21, 30));
    QCOMPARE(line, u"5,Red,,None,0,21:30,2026-11-16T20:30:00Z#16/11/2026 21:30=Call home"_s);
    QCOMPARE(UseOf(ParseTimerLine(line, 2026).value(), At(14, 9)), (TimerLineUse{false, true}));
    QCOMPARE(Read(line), timer);
}

QTEST_GUILESS_MAIN(tst_TimerTail)
#include "tst_TimerTail.moc"
