#include <QTest>

#include "timezones/ZoneDescription.h"

using namespace Qt::StringLiterals;
using platform::SYSTEMTIME;

namespace {

const QDate Today(2008, 1, 15);
const QLocale MondayFirst(QLocale::English, QLocale::UnitedKingdom);
const QLocale SundayFirst(QLocale::English, QLocale::UnitedStates);

QString Describe(const TimeZoneRecord& record, const QLocale& locale = MondayFirst) {
    return mduTimeZones::ZoneDescription(record, Today, locale);
}

/// A zone of the south, seen from a machine in GMT.
TimeZoneRecord SouthernZone() {
    TimeZoneRecord record;
    record.StandardName = u"Standard"_s;
    record.StandardBias = -600;
    record.StandardDate = SYSTEMTIME{0, 3, 0, 5, 3, 0, 0, 0};
    record.DaylightName = u"Daylight"_s;
    record.DaylightBias = -660;
    record.DaylightDate = SYSTEMTIME{0, 10, 0, 5, 2, 0, 0, 0};
    record.HoursFromLocal = 10;
    return record;
}

TimeZoneRecord PlainZone(std::int32_t bias, float ahead) {
    TimeZoneRecord record;
    record.StandardName = u"Zone"_s;
    record.StandardBias = bias;
    record.HoursFromLocal = ahead;
    return record;
}

}  // namespace

class tst_ZoneDescription : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HoursText_data();
    void HoursText();
    void OrdinalWord_data();
    void OrdinalWord();
    void TellsRules();
    void TellsDates();
    void TellsARuleMovedBackAYear();
    void TellsAZoneWithoutDaylightTime_data();
    void TellsAZoneWithoutDaylightTime();
    void TellsDaylightOffsets_data();
    void TellsDaylightOffsets();
    void TellsUnknownOccurrences();
    void CountsWeekdays_data();
    void CountsWeekdays();
};

void tst_ZoneDescription::HoursText_data() {
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("text");
    QTest::newRow("half an hour east") << -570 << u"9 hour(s) and 30 Minutes "_s;
    QTest::newRow("west") << 60 << u"1 hour(s) "_s;
    QTest::newRow("none") << 0 << u"0 hour(s) "_s;
    QTest::newRow("minutes alone") << -1 << u"0 hour(s) and 1 Minutes "_s;
    QTest::newRow("three quarters") << 345 << u"5 hour(s) and 45 Minutes "_s;
    QTest::newRow("a minute short") << 59 << u"0 hour(s) and 59 Minutes "_s;
    QTest::newRow("the least") << -2147483647 - 1 << u"35791394 hour(s) and 8 Minutes "_s;
}

void tst_ZoneDescription::HoursText() {
    QFETCH(int, minutes);
    QTEST(mduTimeZones::HoursText(minutes), "text");
}

void tst_ZoneDescription::OrdinalWord_data() {
    QTest::addColumn<int>("occurrence");
    QTest::addColumn<QString>("word");
    QTest::newRow("1") << 1 << u" First "_s;
    QTest::newRow("2") << 2 << u" Second "_s;
    QTest::newRow("3") << 3 << u" Third "_s;
    QTest::newRow("4") << 4 << u" Fourth "_s;
    QTest::newRow("5") << 5 << u" Last "_s;
    QTest::newRow("6") << 6 << u" Unknown "_s;
    QTest::newRow("0") << 0 << u" Unknown "_s;
    QTest::newRow("-1") << -1 << u" Unknown "_s;
}

void tst_ZoneDescription::OrdinalWord() {
    QFETCH(int, occurrence);
    QTEST(mduTimeZones::OrdinalWord(occurrence), "word");
}

void tst_ZoneDescription::TellsRules() {
    QCOMPARE(Describe(SouthernZone()),
             u"Standard Begins on  Last Sunday in March (30/03/2008) at 3:00:00\r\n"
             "Daylight Begins on  Last Sunday in October (26/10/2008) at 2:00:00\r\n"
             "\r\n"
             "Standard is 10 hour(s) after Greenwich Standard Time\r\n"
             "Daylight is 11 hour(s) after Greenwich Standard Time\r\n"
             "\r\n"
             "Standard is 10 hour(s)  before Local Time"_s);
}

void tst_ZoneDescription::TellsDates() {
    TimeZoneRecord record = SouthernZone();
    record.StandardDate = SYSTEMTIME{2008, 4, 0, 6, 3, 5, 9, 0};
    record.DaylightDate = SYSTEMTIME{2008, 2, 0, 31, 12, 0, 0, 0};  // no such day: today
    QCOMPARE(Describe(record).section(u"\r\n"_s, 0, 1),
             u"Standard Begins on 06/04/2008 At 3:05:09\r\n"
             "Daylight Begins on 15/01/2008 At 12:00:00"_s);
}

// It has a year, though one that no date has.
void tst_ZoneDescription::TellsARuleMovedBackAYear() {
    TimeZoneRecord record = SouthernZone();
    record.DaylightDate.wYear = -1;
    QCOMPARE(Describe(record).section(u"\r\n"_s, 1, 1),
             u"Daylight Begins on 15/01/2008 At 2:00:00"_s);
}

void tst_ZoneDescription::TellsAZoneWithoutDaylightTime_data() {
    QTest::addColumn<int>("bias");
    QTest::addColumn<float>("ahead");
    QTest::addColumn<QString>("text");
    QTest::newRow("the machine's own in Greenwich")
        << 0 << 0.0F
        << u"\r\nZone is 0 hour(s) after Greenwich Standard Time\r\n\r\n"
           "Zone is 0 hour(s)  later than Local Time"_s;
    QTest::newRow("west") << 300 << -5.0F
                          << u"\r\nZone is 5 hour(s) before Greenwich Standard Time\r\n\r\n"
                             "Zone is 5 hour(s)  later than Local Time"_s;
    QTest::newRow("quarters of an hour east")
        << -345 << 5.75F
        << u"\r\nZone is 5 hour(s) and 45 Minutes after Greenwich Standard Time\r\n\r\n"
           "Zone is 5 hour(s) and 45 Minutes  before Local Time"_s;
}

void tst_ZoneDescription::TellsAZoneWithoutDaylightTime() {
    QFETCH(int, bias);
    QFETCH(float, ahead);
    QTEST(Describe(PlainZone(bias, ahead)), "text");
}

void tst_ZoneDescription::TellsDaylightOffsets_data() {
    QTest::addColumn<int>("bias");
    QTest::addColumn<QString>("line");
    QTest::newRow("1") << 1
                       << u"Daylight is 0 hour(s) and 1 Minutes before Greenwich Standard Time"_s;
    QTest::newRow("0") << 0 << u"Daylight is 0 hour(s) after Greenwich Standard Time"_s;
    QTest::newRow("west") << 240 << u"Daylight is 4 hour(s) before Greenwich Standard Time"_s;
}

void tst_ZoneDescription::TellsDaylightOffsets() {
    QFETCH(int, bias);
    TimeZoneRecord record = SouthernZone();
    record.DaylightBias = bias;
    QTEST(Describe(record).section(u"\r\n"_s, 4, 4), "line");
}

void tst_ZoneDescription::TellsUnknownOccurrences() {
    TimeZoneRecord record = SouthernZone();
    record.StandardDate.wDay = 7;
    QCOMPARE(Describe(record).section(u"\r\n"_s, 0, 0),
             u"Standard Begins on  Unknown Sunday in March (30/03/2008) at 3:00:00"_s);
}

void tst_ZoneDescription::CountsWeekdays_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<int>("weekday");
    QTest::addColumn<QString>("name");
    QTest::newRow("Monday first, 0") << MondayFirst << 0 << u"Sunday"_s;
    QTest::newRow("Monday first, 1") << MondayFirst << 1 << u"Monday"_s;
    QTest::newRow("Monday first, 6") << MondayFirst << 6 << u"Saturday"_s;
    QTest::newRow("Sunday first, 0") << SundayFirst << 0 << u"Saturday"_s;
    QTest::newRow("Sunday first, 1") << SundayFirst << 1 << u"Sunday"_s;
    QTest::newRow("German") << QLocale(QLocale::German) << 0 << u"Sonntag"_s;
    QTest::newRow("no such day") << MondayFirst << 9 << QString();
}

void tst_ZoneDescription::CountsWeekdays() {
    QFETCH(QLocale, locale);
    QFETCH(int, weekday);
    TimeZoneRecord record = SouthernZone();
    record.StandardDate.wDayOfWeek = static_cast<std::int16_t>(weekday);
    const QString line = Describe(record, locale).section(u"\r\n"_s, 0, 0);
    QTEST(line.section(u" Last "_s, 1).section(u" in "_s, 0, 0), "name");
}

QTEST_GUILESS_MAIN(tst_ZoneDescription)
#include "tst_ZoneDescription.moc"
