#include <QTest>

#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;
using platform::SYSTEMTIME;

namespace {

const QDate Today(2026, 6, 15);

QDateTime Moment(int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return QDateTime(QDate(2026, month, day), QTime(hour, minute, second), Qt::UTC);
}

/// Second Sunday of March, first Sunday of November; in 2026 the 8th and the 1st.
TimeZoneRecord Eastern() {
    TimeZoneRecord record;
    record.StandardName = u"Eastern Standard Time"_s;
    record.StandardBias = 300;
    record.StandardDate = {0, 11, 0, 1, 2, 0, 0, 0};
    record.DaylightName = u"Eastern Daylight Time"_s;
    record.DaylightBias = 240;
    record.DaylightDate = {0, 3, 0, 2, 2, 0, 0, 0};
    return record;
}

/// Last Sunday of March, first Sunday of October; in 2026 the 29th and the 4th.
TimeZoneRecord Southern() {
    TimeZoneRecord record;
    record.StandardName = u"Standard"_s;
    record.StandardBias = -600;
    record.StandardDate = {0, 3, 0, 5, 3, 0, 0, 0};
    record.DaylightName = u"Daylight"_s;
    record.DaylightBias = -660;
    record.DaylightDate = {0, 10, 0, 1, 2, 0, 0, 0};
    return record;
}

/// The name in force when the zone's standard clock shows that moment.
QString NameAt(TimeZoneRecord record, const QDateTime& standardClock) {
    ApplyCurrentOffset(record, standardClock, static_cast<float>(record.StandardBias / 60.0));
    return record.CurrentName;
}

}  // namespace

class tst_ZoneArithmetic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsRuleDates_data();
    void FindsRuleDates();
    void FindsRuleDateOfItsYear();
    void MakesDatesFromParts_data();
    void MakesDatesFromParts();
    void OrdersTransitions_data();
    void OrdersTransitions();
    void TellsDaylightRules();
    void NorthernBoundsAreStrict_data();
    void NorthernBoundsAreStrict();
    void AbsoluteEndHoldsToItsSecond();
    void SouthernYear_data();
    void SouthernYear();
    void EqualTransitionsAreSouthern();
    void LeapDayMovesBack();
    void ZoneWithoutRuleIsStandard_data();
    void ZoneWithoutRuleIsStandard();
    void MovedRuleIsStillARule();
    void SetsDerivedFields();
    void TellsNameAtTime();
    void NameAtTimeLeavesStandard();
    void ClockTime_data();
    void ClockTime();
    void OwnZoneIsNoHoursAway();
    void SurvivesAnyRecord_data();
    void SurvivesAnyRecord();
};

void tst_ZoneArithmetic::FindsRuleDates_data() {
    QTest::addColumn<int>("occurrence");
    QTest::addColumn<int>("weekday");
    QTest::addColumn<int>("month");
    QTest::addColumn<QDate>("date");
    QTest::newRow("last of four") << 5 << 0 << 2 << QDate(2026, 2, 22);
    QTest::newRow("last of five") << 5 << 0 << 3 << QDate(2026, 3, 29);
    QTest::newRow("fourth of five") << 4 << 0 << 3 << QDate(2026, 3, 22);
    QTest::newRow("month begins on Sunday") << 1 << 0 << 2 << QDate(2026, 2, 1);
    QTest::newRow("first date in the month before") << 1 << 0 << 4 << QDate(2026, 4, 5);
    QTest::newRow("the day before the first") << 1 << 2 << 4 << QDate(2026, 4, 7);
    QTest::newRow("the first itself") << 1 << 3 << 4 << QDate(2026, 4, 1);
    QTest::newRow("the day behind the first") << 1 << 4 << 4 << QDate(2026, 4, 2);
    QTest::newRow("third Saturday") << 3 << 6 << 8 << QDate(2026, 8, 15);
    QTest::newRow("occurrence 0 is the last") << 0 << 0 << 4 << QDate(2026, 4, 26);
    QTest::newRow("occurrence 6 is the last") << 6 << 5 << 10 << QDate(2026, 10, 30);
    QTest::newRow("occurrence -1 is the last") << -1 << 4 << 10 << QDate(2026, 10, 29);
    QTest::newRow("last of the year") << 5 << 0 << 12 << QDate(2026, 12, 27);
    QTest::newRow("weekday 7 is a week on") << 1 << 7 << 2 << QDate(2026, 2, 8);
    // No month: from the Sunday before today, seven weeks on.
    QTest::newRow("month 0") << 1 << 0 << 0 << QDate(2026, 8, 2);
    QTest::newRow("month 13") << 5 << 2 << 13 << QDate(2026, 8, 4);
    QTest::newRow("month -1") << 5 << 2 << -1 << QDate(2026, 8, 4);
}

void tst_ZoneArithmetic::FindsRuleDates() {
    QFETCH(int, occurrence);
    QFETCH(int, weekday);
    QFETCH(int, month);
    QTEST(RuleTransitionDate(occurrence, weekday, month, Today), "date");
}

void tst_ZoneArithmetic::FindsRuleDateOfItsYear() {
    QCOMPARE(RuleTransitionDate(1, 0, 4, QDate(2008, 12, 31)), QDate(2008, 4, 6));
}

void tst_ZoneArithmetic::MakesDatesFromParts_data() {
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("year");
    QTest::addColumn<QDate>("date");
    QTest::newRow("valid") << 25 << 3 << 2008 << QDate(2008, 3, 25);
    QTest::newRow("leap day") << 29 << 2 << 2024 << QDate(2024, 2, 29);
    QTest::newRow("no leap year") << 29 << 2 << 2026 << Today;
    QTest::newRow("day 0") << 0 << 3 << 2026 << Today;
    QTest::newRow("month 0") << 1 << 0 << 2026 << Today;
    QTest::newRow("month 13") << 1 << 13 << 2026 << Today;
    QTest::newRow("behind the month") << 31 << 4 << 2026 << Today;
    QTest::newRow("negative year") << 1 << 1 << -1 << Today;
}

void tst_ZoneArithmetic::MakesDatesFromParts() {
    QFETCH(int, day);
    QFETCH(int, month);
    QFETCH(int, year);
    QTEST(DateFromParts(day, month, year, Today), "date");
}

void tst_ZoneArithmetic::OrdersTransitions_data() {
    QTest::addColumn<SYSTEMTIME>("transition");
    QTest::addColumn<QDateTime>("value");
    QTest::newRow("occurrence as a day")
        << SYSTEMTIME{0, 3, 0, 5, 1, 5, 9, 0} << Moment(3, 5, 1, 5, 9);
    QTest::newRow("moved rule") << SYSTEMTIME{-1, 10, 0, 1, 2, 0, 0, 0} << Moment(10, 1, 2);
    QTest::newRow("date") << SYSTEMTIME{2026, 10, 0, 25, 2, 30, 1, 0} << Moment(10, 25, 2, 30, 1);
    QTest::newRow("date of another year") << SYSTEMTIME{2024, 2, 4, 29, 0, 0, 0, 0}
                                          << QDateTime(QDate(2024, 2, 29), QTime(0, 0), Qt::UTC);
    QTest::newRow("date that is none")
        << SYSTEMTIME{2026, 2, 0, 30, 4, 0, 0, 0} << Moment(6, 15, 4);
    QTest::newRow("rule without a day") << SYSTEMTIME{0, 3, 0, 0, 1, 0, 0, 0} << QDateTime();
    QTest::newRow("rule without a month") << SYSTEMTIME{0, 0, 0, 5, 1, 0, 0, 0} << QDateTime();
    QTest::newRow("rule at 24:00") << SYSTEMTIME{0, 3, 0, 5, 24, 0, 0, 0} << QDateTime();
    QTest::newRow("nothing") << SYSTEMTIME{} << QDateTime();
}

void tst_ZoneArithmetic::OrdersTransitions() {
    QFETCH(SYSTEMTIME, transition);
    QTEST(TransitionValue(transition, Today), "value");
}

void tst_ZoneArithmetic::TellsDaylightRules() {
    TimeZoneRecord record = Eastern();
    QVERIFY(HasDaylightRule(record));
    record.DaylightDate.wMonth = 0;
    QVERIFY(!HasDaylightRule(record));
    record = Eastern();
    record.DaylightDate.wDay = 0;
    QVERIFY(!HasDaylightRule(record));
}

// The end of the rule is told on the daylight clock but compared on the standard clock: one hour
// late, and one second early.
void tst_ZoneArithmetic::NorthernBoundsAreStrict_data() {
    QTest::addColumn<QDateTime>("zoneTime");
    QTest::addColumn<QString>("name");
    const QString standard = u"Eastern Standard Time"_s;
    const QString summer = u"Eastern Daylight Time"_s;
    QTest::newRow("new year") << Moment(1, 1) << standard;
    QTest::newRow("second before the start") << Moment(3, 8, 1, 59, 59) << standard;
    QTest::newRow("the start") << Moment(3, 8, 2) << standard;
    QTest::newRow("within its second") << Moment(3, 8, 2).addMSecs(999) << standard;
    QTest::newRow("second behind the start") << Moment(3, 8, 2, 0, 1) << summer;
    QTest::newRow("summer") << Moment(7, 1) << summer;
    QTest::newRow("two seconds before the end") << Moment(11, 1, 1, 59, 58) << summer;
    QTest::newRow("second before the end") << Moment(11, 1, 1, 59, 59) << standard;
    QTest::newRow("the end") << Moment(11, 1, 2) << standard;
    QTest::newRow("old year") << Moment(12, 31, 23, 59, 59) << standard;
}

void tst_ZoneArithmetic::NorthernBoundsAreStrict() {
    QFETCH(QDateTime, zoneTime);
    QTEST(NameAt(Eastern(), zoneTime), "name");
}

void tst_ZoneArithmetic::AbsoluteEndHoldsToItsSecond() {
    TimeZoneRecord record = Eastern();
    record.StandardDate = {2026, 11, 0, 1, 2, 0, 0, 0};
    QCOMPARE(NameAt(record, Moment(11, 1, 1, 59, 59)), u"Eastern Daylight Time"_s);
    QCOMPARE(NameAt(record, Moment(11, 1, 2)), u"Eastern Standard Time"_s);
}

void tst_ZoneArithmetic::SouthernYear_data() {
    QTest::addColumn<QDateTime>("zoneTime");
    QTest::addColumn<QString>("name");
    QTest::newRow("January") << Moment(1, 15) << u"Daylight"_s;
    QTest::newRow("two seconds before the end") << Moment(3, 29, 2, 59, 58) << u"Daylight"_s;
    QTest::newRow("second before the end") << Moment(3, 29, 2, 59, 59) << u"Standard"_s;
    QTest::newRow("June") << Moment(6, 15) << u"Standard"_s;
    QTest::newRow("the start") << Moment(10, 4, 2) << u"Standard"_s;
    QTest::newRow("second behind the start") << Moment(10, 4, 2, 0, 1) << u"Daylight"_s;
    QTest::newRow("November") << Moment(11, 15) << u"Daylight"_s;
}

void tst_ZoneArithmetic::SouthernYear() {
    QFETCH(QDateTime, zoneTime);
    QTEST(NameAt(Southern(), zoneTime), "name");
}

void tst_ZoneArithmetic::EqualTransitionsAreSouthern() {
    TimeZoneRecord record = Southern();
    record.StandardDate = {2026, 5, 0, 1, 0, 0, 0, 0};
    record.DaylightDate = record.StandardDate;
    QCOMPARE(NameAt(record, Moment(4, 30, 23, 59, 59)), u"Daylight"_s);
    QCOMPARE(NameAt(record, Moment(5, 1)), u"Standard"_s);
    QCOMPARE(NameAt(record, Moment(5, 1, 0, 0, 1)), u"Daylight"_s);
}

void tst_ZoneArithmetic::LeapDayMovesBack() {
    TimeZoneRecord record = Southern();
    record.DaylightDate = {2028, 2, 0, 29, 0, 0, 0, 0};
    record.StandardDate = {2028, 1, 0, 1, 0, 0, 0, 0};
    const QDateTime moved(QDate(2027, 2, 28), QTime(0, 0), Qt::UTC);
    QCOMPARE(NameAt(record, moved), u"Standard"_s);
    QCOMPARE(NameAt(record, moved.addSecs(1)), u"Daylight"_s);
}

void tst_ZoneArithmetic::ZoneWithoutRuleIsStandard_data() {
    QTest::addColumn<SYSTEMTIME>("daylightDate");
    QTest::newRow("no month") << SYSTEMTIME{0, 0, 0, 2, 2, 0, 0, 0};
    QTest::newRow("no day") << SYSTEMTIME{0, 3, 0, 0, 2, 0, 0, 0};
    QTest::newRow("nothing") << SYSTEMTIME{};
}

void tst_ZoneArithmetic::ZoneWithoutRuleIsStandard() {
    QFETCH(SYSTEMTIME, daylightDate);
    TimeZoneRecord record = Eastern();
    record.DaylightDate = daylightDate;
    for (int month = 1; month <= 12; ++month) {
        QCOMPARE(NameAt(record, Moment(month, 10)), u"Eastern Standard Time"_s);
    }
}

void tst_ZoneArithmetic::MovedRuleIsStillARule() {
    TimeZoneRecord record = Southern();
    record.DaylightDate.wYear = -1;
    QCOMPARE(NameAt(record, Moment(10, 4, 2)), u"Standard"_s);
    QCOMPARE(NameAt(record, Moment(10, 4, 2, 0, 1)), u"Daylight"_s);
    // An end of that year is no rule: it is a date that is none, so today at three.
    record.StandardDate.wYear = -1;
    QCOMPARE(NameAt(record, Moment(6, 15, 2, 59, 59)), u"Daylight"_s);
    QCOMPARE(NameAt(record, Moment(6, 15, 3)), u"Standard"_s);
}

void tst_ZoneArithmetic::SetsDerivedFields() {
    TimeZoneRecord record = Eastern();
    ApplyCurrentOffset(record, Moment(1, 10, 12), -1.0F);
    QCOMPARE(record.CurrentName, u"Eastern Standard Time"_s);
    QCOMPARE(record.CurrentGMTHours, 5.0F);
    QCOMPARE(record.HoursFromLocal, -6.0F);
    ApplyCurrentOffset(record, Moment(7, 10, 12), -2.0F);
    QCOMPARE(record.CurrentName, u"Eastern Daylight Time"_s);
    QCOMPARE(record.CurrentGMTHours, 4.0F);
    QCOMPARE(record.HoursFromLocal, -6.0F);
    // Back again: nothing of the former state stays.
    ApplyCurrentOffset(record, Moment(12, 10, 12), 4.5F);
    QCOMPARE(record.CurrentName, u"Eastern Standard Time"_s);
    QCOMPARE(record.CurrentGMTHours, 5.0F);
    QCOMPARE(record.HoursFromLocal, -0.5F);
}

// At a local clock of GMT the zone's standard clock is five hours behind.
void tst_ZoneArithmetic::TellsNameAtTime() {
    TimeZoneRecord record = Eastern();
    const QDateTime now = Moment(1, 10);
    const QString standard = u"Eastern Standard Time"_s;
    QCOMPARE(ZoneNameAtTime(Moment(3, 8, 7), now, record, 0.0F), standard);
    QCOMPARE(ZoneNameAtTime(Moment(3, 8, 7, 0, 1), now, record, 0.0F), u"Eastern Daylight Time"_s);
    // A rule falls in the present year: a moment of the next has no daylight time.
    const QDateTime nextSummer(QDate(2027, 7, 1), QTime(0, 0), Qt::UTC);
    QCOMPARE(ZoneNameAtTime(nextSummer, now, record, 0.0F), standard);
}

void tst_ZoneArithmetic::NameAtTimeLeavesStandard() {
    TimeZoneRecord record = Eastern();
    record.HoursFromLocal = 17.0F;
    QCOMPARE(ZoneNameAtTime(Moment(7, 1), Moment(7, 1), record, 0.0F), u"Eastern Daylight Time"_s);
    QCOMPARE(record.CurrentName, u"Eastern Standard Time"_s);
    QCOMPARE(record.CurrentGMTHours, 5.0F);
    QCOMPARE(record.HoursFromLocal, 17.0F);
}

void tst_ZoneArithmetic::ClockTime_data() {
    QTest::addColumn<int>("bias");
    QTest::addColumn<QDateTime>("shown");
    QTest::newRow("GMT") << 0 << Moment(6, 15, 12, 0, 7);
    QTest::newRow("whole hours") << -300 << Moment(6, 15, 17, 0, 7);
    QTest::newRow("half an hour more") << -330 << Moment(6, 15, 17, 30, 7);
    QTest::newRow("three quarters more") << -345 << Moment(6, 15, 17, 45, 7);
    QTest::newRow("a third of an hour") << 20 << Moment(6, 15, 11, 40, 7);
    QTest::newRow("a minute") << -1 << Moment(6, 15, 12, 1, 7);
    QTest::newRow("across midnight") << -840 << Moment(6, 16, 2, 0, 7);
    QTest::newRow("the day before") << 780 << Moment(6, 14, 23, 0, 7);
}

void tst_ZoneArithmetic::ClockTime() {
    QFETCH(int, bias);
    TimeZoneRecord record;
    record.StandardBias = bias;
    const QDateTime now = Moment(6, 15, 12, 0, 7).addMSecs(980);
    ApplyCurrentOffset(record, now, 0.0F);
    QTEST(GetClockTime(record, now), "shown");
}

void tst_ZoneArithmetic::OwnZoneIsNoHoursAway() {
    TimeZoneRecord record = Eastern();
    ApplyCurrentOffset(record, Moment(7, 1, 12), 4.0F);
    QCOMPARE(record.HoursFromLocal, 0.0F);
    ApplyCurrentOffset(record, Moment(1, 1, 12), 5.0F);
    QCOMPARE(record.HoursFromLocal, 0.0F);
}

void tst_ZoneArithmetic::SurvivesAnyRecord_data() {
    QTest::addColumn<SYSTEMTIME>("transition");
    const std::int16_t high = 32767;
    const std::int16_t low = -32768;
    QTest::newRow("highest") << SYSTEMTIME{high, high, high, high, high, high, high, high};
    QTest::newRow("lowest") << SYSTEMTIME{low, low, low, low, low, low, low, low};
    QTest::newRow("highest rule") << SYSTEMTIME{0, high, high, high, high, high, high, high};
    QTest::newRow("far weekday") << SYSTEMTIME{0, 4, high, 5, 0, 0, 0, 0};
}

void tst_ZoneArithmetic::SurvivesAnyRecord() {
    QFETCH(SYSTEMTIME, transition);
    TimeZoneRecord record = Eastern();
    record.StandardDate = transition;
    record.DaylightDate = transition;
    record.StandardBias = std::numeric_limits<std::int32_t>::min();
    record.DaylightBias = std::numeric_limits<std::int32_t>::max();
    ApplyCurrentOffset(record, Moment(6, 15), 0.0F);
    QVERIFY(record.CurrentName == record.StandardName || record.CurrentName == record.DaylightName);
    QVERIFY(GetClockTime(record, Moment(6, 15)).isValid());
}

QTEST_GUILESS_MAIN(tst_ZoneArithmetic)
#include "tst_ZoneArithmetic.moc"
