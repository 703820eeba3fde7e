#include <QTest>

#include "platform/CalendarWatch.h"
#include "platform/SimulatedClock.h"

class tst_CalendarWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        clock_.SetNow(At(QDate(2026, 12, 30), QTime(23, 58)));
        told_ = 0;
    }

    void TellsOfANewYear() {
        const platform::CalendarWatch watch(clock_, [this] { ++told_; });
        clock_.Advance(Day + 60000);  // to 23:59 on New Year's Eve
        QCOMPARE(told_, 0);
        clock_.Advance(60000);
        QCOMPARE(told_, 1);
        clock_.Advance(30 * Day);
        QCOMPARE(told_, 1);
        clock_.Advance(Day);
        QCOMPARE(told_, 2);
    }

    void TellsOfTheSameMonthOfAnotherYear() {
        const platform::CalendarWatch watch(clock_, [this] { ++told_; });
        clock_.SetNow(At(QDate(2027, 12, 30), QTime(9, 0)));
        clock_.Advance(60000);
        QCOMPARE(told_, 1);
        clock_.Advance(60000);
        QCOMPARE(told_, 1);
    }

    void EndsWithItsLife() {
        {
            const platform::CalendarWatch watch(clock_, [this] { ++told_; });
        }
        clock_.Advance(90 * Day);
        QCOMPARE(told_, 0);
    }

private:
    static constexpr qint64 Day = 86400000;  // milliseconds

    static QDateTime At(const QDate& date, const QTime& time) {
        return QDateTime(date, time, Qt::UTC);
    }

    platform::SimulatedClock clock_{At(QDate(2026, 1, 1), QTime(0, 0)), QTimeZone::utc()};
    int told_ = 0;
};

QTEST_GUILESS_MAIN(tst_CalendarWatch)
#include "tst_CalendarWatch.moc"
