#include <QDateTime>
#include <QTest>

#include "platform/TzRule.h"

using namespace Qt::StringLiterals;
using platform::MakeTzRule;
using platform::SYSTEMTIME;
using platform::TzRule;
using platform::TzYear;

namespace {

qint64 At(int year, int month, int day, int hour = 0) {
    return QDateTime(QDate(year, month, day), QTime(hour, 0), Qt::UTC).toSecsSinceEpoch();
}

constexpr int Hour = 3600;

/// A zone in GMT with an hour of daylight time between two instants of 2026.
TzYear Daylight(qint64 begin, qint64 end) {
    return {2026, 0, {{begin, 0, Hour}, {end, Hour, 0}}};
}

}  // namespace

class tst_TzRule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LastWeekdays_data() {
        QTest::addColumn<int>("day");
        QTest::addColumn<SYSTEMTIME>("date");
        QTest::newRow("Sunday") << 31 << SYSTEMTIME{0, 5, 0, 5, 2, 0, 0, 0};
        QTest::newRow("Monday") << 25 << SYSTEMTIME{2026, 5, 1, 25, 2, 0, 0, 0};
        QTest::newRow("Tuesday") << 26 << SYSTEMTIME{2026, 5, 2, 26, 2, 0, 0, 0};
        QTest::newRow("Wednesday") << 27 << SYSTEMTIME{2026, 5, 3, 27, 2, 0, 0, 0};
        QTest::newRow("Thursday") << 28 << SYSTEMTIME{2026, 5, 4, 28, 2, 0, 0, 0};
        QTest::newRow("Friday") << 29 << SYSTEMTIME{0, 5, 5, 5, 2, 0, 0, 0};
        QTest::newRow("Saturday") << 30 << SYSTEMTIME{0, 5, 6, 5, 2, 0, 0, 0};
        QTest::newRow("last Sunday but one") << 24 << SYSTEMTIME{2026, 5, 0, 24, 2, 0, 0, 0};
    }
    void LastWeekdays() {
        QFETCH(int, day);
        const TzYear year = Daylight(At(2026, 5, day, 2), At(2026, 9, 2));
        QTEST(MakeTzRule(year, At(2026, 6, 1)).DaylightDate, "date");
    }

    void TellsEachOnTheClockBefore() {
        const TzYear year = Daylight(At(2026, 3, 10, 23), At(2026, 9, 10, 23));
        const TzRule rule = MakeTzRule(year, At(2026, 6, 1));
        QCOMPARE(rule.DaylightDate, (SYSTEMTIME{2026, 3, 2, 10, 23, 0, 0, 0}));
        QCOMPARE(rule.StandardDate, (SYSTEMTIME{2026, 9, 5, 11, 0, 0, 0, 0}));
    }

    void TellsTheHalfOfTheYear_data() {
        QTest::addColumn<qint64>("present");
        QTest::addColumn<bool>("daylightNow");
        QTest::newRow("before") << At(2026, 3, 10, 1) - 1 << false;
        QTest::newRow("the start") << At(2026, 3, 10, 1) << true;
        QTest::newRow("within") << At(2026, 9, 10, 1) - 1 << true;
        QTest::newRow("the end") << At(2026, 9, 10, 1) << false;
    }
    void TellsTheHalfOfTheYear() {
        QFETCH(qint64, present);
        const TzRule rule = MakeTzRule(Daylight(At(2026, 3, 10, 1), At(2026, 9, 10, 1)), present);
        QVERIFY(rule.KeepsDaylight);
        QTEST(rule.DaylightNow, "daylightNow");
    }

    // The zone's clock can stand in the next year already, while the machine's has not turned.
    void ChangeAtTheTurnOfTheYear_data() {
        QTest::addColumn<qint64>("present");
        QTest::addColumn<bool>("keepsDaylight");
        QTest::addColumn<int>("bias");
        QTest::newRow("in the year") << At(2026, 12, 31, 12) << false << 0;
        QTest::newRow("behind the change") << At(2027, 1, 1, 12) << true << 0;
    }
    void ChangeAtTheTurnOfTheYear() {
        QFETCH(qint64, present);
        const TzYear year = {2026, 0, {{At(2027, 1, 1, 1), 0, Hour}}};
        const TzRule rule = MakeTzRule(year, present);
        QTEST(rule.KeepsDaylight, "keepsDaylight");
        QTEST(static_cast<int>(rule.Bias), "bias");
        QCOMPARE(rule.DaylightNow, rule.KeepsDaylight);
    }

    // From GMT+1 to GMT+3 and on to GMT+2: two changes, and no way back.
    void TwoChangesWithoutReturn_data() {
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("bias");
        QTest::addColumn<int>("daylightBias");
        QTest::addColumn<bool>("daylightNow");
        QTest::newRow("before both") << 1 << -60 << -120 << false;
        QTest::newRow("between") << 6 << -120 << -60 << true;
        QTest::newRow("behind both") << 12 << -120 << -60 << false;
    }
    void TwoChangesWithoutReturn() {
        QFETCH(int, month);
        const TzYear year = {
            2026, Hour, {{At(2026, 4, 1), Hour, 3 * Hour}, {At(2026, 8, 1), 3 * Hour, 2 * Hour}}};
        const TzRule rule = MakeTzRule(year, At(2026, month, 15));
        QTEST(static_cast<int>(rule.Bias), "bias");
        QTEST(static_cast<int>(rule.DaylightBias), "daylightBias");
        QTEST(rule.DaylightNow, "daylightNow");
        QCOMPARE(rule.StandardDate, (SYSTEMTIME{2026, 8, 6, 1, 3, 0, 0, 0}));
    }

    void NoChange() {
        const TzRule rule = MakeTzRule({2026, -34200, {}}, At(2026, 6, 1));
        TzRule expected;
        expected.Bias = 570;
        QCOMPARE(rule, expected);
    }

    void WritesItsBytes() {
        TzRule rule;
        rule.Bias = -60;
        rule.DaylightBias = 258;
        rule.StandardDate = {0, 10, 0, 5, 3, 0, 0, 0};
        rule.DaylightDate = {2026, 3, 0, 29, 2, 30, 59, 999};
        QCOMPARE(platform::TziBytes(rule).toHex(' '),
                 QByteArray("c4 ff ff ff 00 00 00 00 02 01 00 00 "
                            "00 00 0a 00 00 00 05 00 03 00 00 00 00 00 00 00 "
                            "ea 07 03 00 00 00 1d 00 02 00 1e 00 3b 00 e7 03"));
    }
};

QTEST_GUILESS_MAIN(tst_TzRule)
#include "tst_TzRule.moc"
