#include "timers/DueTime.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

constexpr int Hour = 3600;

QDateTime At(int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return {QDate(2026, month, day), QTime(hour, minute, second), Qt::UTC};
}

/// A clock as it runs in London: ahead of GMT from 29 March to 25 October 2026, 1:00 GMT.
int London(const QDateTime& instant) {
    return instant >= At(3, 29, 1) && instant < At(10, 25, 1) ? Hour : 0;
}

/// In New York the change comes at 2:00 of 8 March and of 1 November.
int NewYork(const QDateTime& instant) {
    return instant >= At(3, 8, 7) && instant < At(11, 1, 6) ? -4 * Hour : -5 * Hour;
}

/// Half an hour of daylight time, on Lord Howe Island from 4 October at 2:00.
int LordHowe(const QDateTime& instant) {
    return instant >= At(10, 3, 15, 30) ? 11 * Hour : 10 * Hour + Hour / 2;
}

/// A clock that leaves out all of 30 December.
int SkipsADay(const QDateTime& instant) {
    return instant >= At(12, 30, 10) ? 14 * Hour : -10 * Hour;
}

}  // namespace

class tst_DueTime : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsTheInstant_data();
    void FindsTheInstant();
    void FindsTheNextComing_data();
    void FindsTheNextComing();
    void TakesEitherHalf_data();
    void TakesEitherHalf();
    void FindsTheReadingAgain_data();
    void FindsTheReadingAgain();
    void ComesBackToItsInstant();
    void TellsHowLate_data();
    void TellsHowLate();
};

void tst_DueTime::FindsTheInstant_data() {
    QTest::addColumn<int>("zone");  // 0 London, 1 New York, 2 Lord Howe, 3 a day left out
    QTest::addColumn<QDateTime>("reading");
    QTest::addColumn<QDateTime>("instant");

    QTest::newRow("winter") << 0 << At(1, 15, 15, 30) << At(1, 15, 15, 30);
    QTest::newRow("summer") << 0 << At(6, 15, 15, 30) << At(6, 15, 14, 30);
    QTest::newRow("before the spring change") << 0 << At(3, 29, 0, 59) << At(3, 29, 0, 59);
    QTest::newRow("begin of the gap") << 0 << At(3, 29, 1) << At(3, 29, 1);
    QTest::newRow("in the gap") << 0 << At(3, 29, 1, 30) << At(3, 29, 1);
    QTest::newRow("end of the gap") << 0 << At(3, 29, 2) << At(3, 29, 1);
    QTest::newRow("behind the gap") << 0 << At(3, 29, 2, 1) << At(3, 29, 1, 1);
    QTest::newRow("before the repeated hour") << 0 << At(10, 25, 0, 59) << At(10, 24, 23, 59);
    QTest::newRow("repeated") << 0 << At(10, 25, 1, 30) << At(10, 25, 0, 30);
    QTest::newRow("behind the repeated hour") << 0 << At(10, 25, 2) << At(10, 25, 2);
    QTest::newRow("west") << 1 << At(1, 15, 15, 30) << At(1, 15, 20, 30);
    QTest::newRow("gap in the west") << 1 << At(3, 8, 2, 30) << At(3, 8, 7);
    QTest::newRow("evening before the gap") << 1 << At(3, 7, 23) << At(3, 8, 4);
    QTest::newRow("repeated in the west") << 1 << At(11, 1, 1, 30) << At(11, 1, 5, 30);
    QTest::newRow("half an hour left out") << 2 << At(10, 4, 2, 15) << At(10, 3, 15, 30);
    QTest::newRow("behind half an hour") << 2 << At(10, 4, 2, 45) << At(10, 3, 15, 45);
    QTest::newRow("day left out") << 3 << At(12, 30, 12) << At(12, 30, 10);
    QTest::newRow("behind the day") << 3 << At(12, 31, 12) << At(12, 30, 22);
}

void tst_DueTime::FindsTheInstant() {
    const ClockOffset zones[] = {London, NewYork, LordHowe, SkipsADay};
    QFETCH(int, zone);
    QFETCH(QDateTime, reading);
    QTEST(InstantOf(reading, zones[zone]), "instant");
}

void tst_DueTime::FindsTheNextComing_data() {
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QDateTime>("instant");  // in London
    QTest::addColumn<QDateTime>("reading");
    QTest::addColumn<QDateTime>("due");

    const QTime half(15, 30);
    QTest::newRow("today") << half << At(1, 15, 12) << At(1, 15, 15, 30) << At(1, 15, 15, 30);
    QTest::newRow("first second") << half << At(1, 15, 15, 30) << At(1, 15, 15, 30)
                                  << At(1, 15, 15, 30);
    QTest::newRow("last second") << half << At(1, 15, 15, 30, 59) << At(1, 15, 15, 30)
                                 << At(1, 15, 15, 30);
    QTest::newRow("minute later") << half << At(1, 15, 15, 31) << At(1, 16, 15, 30)
                                  << At(1, 16, 15, 30);
    QTest::newRow("across midnight")
        << QTime(0, 10) << At(1, 15, 23, 50) << At(1, 16, 0, 10) << At(1, 16, 0, 10);
    QTest::newRow("into summer") << half << At(3, 28, 16) << At(3, 29, 15, 30) << At(3, 29, 14, 30);
    QTest::newRow("into the gap") << QTime(1, 30) << At(3, 28, 16) << At(3, 29, 1, 30)
                                  << At(3, 29, 1);
    QTest::newRow("second of the gap")
        << QTime(1, 30) << At(3, 29, 1, 0, 30) << At(3, 29, 1, 30) << At(3, 29, 1);
    QTest::newRow("behind the gap")
        << QTime(1, 30) << At(3, 29, 1, 1) << At(3, 30, 1, 30) << At(3, 30, 0, 30);
    QTest::newRow("repeated") << QTime(1, 30) << At(10, 24, 16) << At(10, 25, 1, 30)
                              << At(10, 25, 0, 30);
    QTest::newRow("not the second time")
        << QTime(1, 30) << At(10, 25, 1, 10) << At(10, 26, 1, 30) << At(10, 26, 1, 30);
}

void tst_DueTime::FindsTheNextComing() {
    QFETCH(QTime, time);
    QFETCH(QDateTime, instant);
    const ClockMoment next = NextComing(time, TimerDay::Whole, instant, London);
    QTEST(next.Reading, "reading");
    QTEST(next.Instant, "due");
}

void tst_DueTime::TakesEitherHalf_data() {
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QDateTime>("instant");
    QTest::addColumn<QDateTime>("reading");

    QTest::newRow("afternoon") << QTime(3, 10) << At(1, 15, 12) << At(1, 15, 15, 10);
    QTest::newRow("night") << QTime(3, 10) << At(1, 15, 15, 11) << At(1, 16, 3, 10);
    QTest::newRow("present minute") << QTime(3, 10) << At(1, 15, 15, 10, 59) << At(1, 15, 15, 10);
    QTest::newRow("hour of the afternoon") << QTime(15, 10) << At(1, 15, 2) << At(1, 15, 3, 10);
    QTest::newRow("noon") << QTime(0, 0) << At(1, 15, 11, 59) << At(1, 15, 12);
    QTest::newRow("midnight") << QTime(12, 0) << At(1, 15, 12, 1) << At(1, 16);
}

void tst_DueTime::TakesEitherHalf() {
    QFETCH(QTime, time);
    QFETCH(QDateTime, instant);
    QTEST(NextComing(time, TimerDay::Half, instant, London).Reading, "reading");
}

void tst_DueTime::FindsTheReadingAgain_data() {
    QTest::addColumn<QDateTime>("due");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<bool>("wholeDay");
    QTest::addColumn<int>("ahead");
    QTest::addColumn<QDateTime>("reading");

    const QTime half(15, 30);
    QTest::newRow("same") << At(1, 15, 15, 30) << half << true << 0 << At(1, 15, 15, 30);
    QTest::newRow("hour ahead") << At(1, 15, 15, 30) << half << true << Hour << At(1, 15, 15, 30);
    QTest::newRow("hour behind") << At(1, 15, 15, 30) << half << true << -Hour << At(1, 15, 15, 30);
    QTest::newRow("other day") << At(1, 15, 23) << QTime(0, 10) << true << 0 << At(1, 16, 0, 10);
    QTest::newRow("day before") << At(1, 15, 0, 10) << QTime(23, 0) << true << 0 << At(1, 14, 23);
    QTest::newRow("gap") << At(3, 29, 1) << QTime(1, 30) << true << Hour << At(3, 29, 1, 30);
    QTest::newRow("either half") << At(1, 15, 15, 30) << QTime(3, 30) << false << Hour
                                 << At(1, 15, 15, 30);
    QTest::newRow("whole day of the night")
        << At(1, 15, 9) << QTime(3, 30) << true << 0 << At(1, 15, 3, 30);
}

void tst_DueTime::FindsTheReadingAgain() {
    QFETCH(QDateTime, due);
    QFETCH(QTime, time);
    QFETCH(bool, wholeDay);
    QFETCH(int, ahead);
    QTEST(ReadingOf(due, time, wholeDay ? TimerDay::Whole : TimerDay::Half, ahead), "reading");
}

// Every half hour of the weeks of both changes, from its instant to the reading and back.
void tst_DueTime::ComesBackToItsInstant() {
    for (const QDateTime& begin : {At(3, 27), At(10, 23)}) {
        for (int half = 0; half < 5 * 48; ++half) {
            const QDateTime reading = begin.addSecs(half * 1800);
            const QDateTime due = InstantOf(reading, London);
            QCOMPARE(ReadingOf(due, reading.time(), TimerDay::Whole, London(due)), reading);
        }
    }
}

void tst_DueTime::TellsHowLate_data() {
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("early") << -60LL << QString();
    QTest::newRow("in its minute") << 59LL << QString();
    QTest::newRow("minute") << 60LL << u"1 minute late"_s;
    QTest::newRow("minutes") << 779LL << u"12 minutes late"_s;
    QTest::newRow("59 minutes") << 3599LL << u"59 minutes late"_s;
    QTest::newRow("hour") << 3600LL << u"1 h 0 min late"_s;
    QTest::newRow("hours") << 7500LL << u"2 h 5 min late"_s;
    QTest::newRow("almost a day") << 86'399LL << u"23 h 59 min late"_s;
    QTest::newRow("day") << 86'400LL << u"1 day 0 h late"_s;
    QTest::newRow("days") << 273'600LL << u"3 days 4 h late"_s;
}

void tst_DueTime::TellsHowLate() {
    QFETCH(qint64, seconds);
    QTEST(LateText(seconds), "text");
}

QTEST_GUILESS_MAIN(tst_DueTime)
#include "tst_DueTime.moc"
