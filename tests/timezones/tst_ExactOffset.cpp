#include <QTest>

#include "support/ExactMachine.h"
#include "timezones/ExactOffset.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

class tst_ExactOffset : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsThePresent_data();
    void TellsThePresent();
    void LeavesARecordWithItsOwnRules();
    void HoldsUntilAClockIsChanged();
    void HoldsForEverWhereNothingChanges();
    void GivesTheZonesTimeInEverySecond();
    void TellsOfAChange();
    void WritesOffsets_data();
    void WritesOffsets();
};

void tst_ExactOffset::TellsThePresent_data() {
    QTest::addColumn<QByteArray>("machine");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("gmt");
    QTest::addColumn<QString>("name");
    QTest::addColumn<float>("west");
    QTest::addColumn<float>("fromLocal");
    const auto row = [](const char* title, const char* machine, const char* id, const char* gmt,
                        const char* name, float west, float fromLocal) {
        QTest::newRow(title) << QByteArray(machine) << QString::fromLatin1(id) << QByteArray(gmt)
                             << QString::fromLatin1(name) << west << fromLocal;
    };
    // New York is four hours behind London while summer has begun there and not yet here.
    row("both in winter", "Europe/London", "America/New_York", "2026-03-08T06:59:59", "Standard", 5,
        -5);
    row("only there in summer", "Europe/London", "America/New_York", "2026-03-08T07:00:00",
        "Daylight", 4, -4);
    row("still so", "Europe/London", "America/New_York", "2026-03-29T00:59:59", "Daylight", 4, -4);
    row("both in summer", "Europe/London", "America/New_York", "2026-03-29T01:00:00", "Daylight", 4,
        -5);
    row("only there again", "Europe/London", "America/New_York", "2026-10-25T01:00:00", "Daylight",
        4, -4);
    row("in Dublin's summer", "Europe/London", "Europe/Dublin", "2026-07-01T00:00:00", "Daylight",
        -1, 0);
    row("in Dublin's winter", "Asia/Kolkata", "Europe/Dublin", "2026-01-01T00:00:00", "Standard", 0,
        -5.5F);
    row("half an hour", "Asia/Kathmandu", "Australia/Lord_Howe", "2026-06-01T00:00:00", "Standard",
        -10.5F, 4.75F);
    row("its summer", "Asia/Kathmandu", "Australia/Lord_Howe", "2026-12-01T00:00:00", "Daylight",
        -11, 5.25F);
    row("far off", "Europe/London", "America/New_York", "9999-07-01T00:00:00", "Daylight", 4, -5);
    row("the date line", "Europe/London", "Pacific/Apia", "2011-12-30T10:00:00", "Daylight", -14,
        14);
}

void tst_ExactOffset::TellsThePresent() {
    QFETCH(QByteArray, machine);
    QFETCH(QString, id);
    QFETCH(QByteArray, gmt);
    QFETCH(QString, name);
    QFETCH(float, west);
    QFETCH(float, fromLocal);
    const TimeZoneRecord record = ExactMachine(gmt, machine).Record(id);
    QCOMPARE(record.CurrentName, name);
    QCOMPARE(record.CurrentGMTHours, west);
    QCOMPARE(record.HoursFromLocal, fromLocal);
}

void tst_ExactOffset::LeavesARecordWithItsOwnRules() {
    const ExactMachine machine("2026-06-15T12:00:00");
    TimeZoneRecord record;
    record.StandardName = u"Town"_s;
    record.StandardBias = -345;
    mduTimeZones::ApplyPresentOffset(machine.Services, record);
    QCOMPARE(record.CurrentName, u"Town"_s);
    QCOMPARE(record.CurrentGMTHours, -5.75F);
    QCOMPARE(record.HoursFromLocal, 4.75F);
    QVERIFY(!mduTimeZones::IsOutdated(record, ExactMachine::Instant("9999-01-01T00:00:00")));
    QVERIFY(!mduTimeZones::IsOutdated(record, ExactMachine::Instant("0100-01-01T00:00:00")));
}

// The machine's summer begins on 29 March, the zone's began on the 8th.
void tst_ExactOffset::HoldsUntilAClockIsChanged() {
    ExactMachine machine("2026-03-15T00:00:00");
    TimeZoneRecord record = machine.Record(u"America/New_York"_s);
    QVERIFY(!mduTimeZones::IsOutdated(record, ExactMachine::Instant("2026-03-08T07:00:00")));
    QVERIFY(mduTimeZones::IsOutdated(record, ExactMachine::Instant("2026-03-08T06:59:59")));
    QVERIFY(!mduTimeZones::IsOutdated(record, ExactMachine::Instant("2026-03-29T00:59:59")));
    QVERIFY(mduTimeZones::IsOutdated(record, ExactMachine::Instant("2026-03-29T01:00:00")));
    machine.MoveTo("2026-10-28T00:00:00");
    mduTimeZones::ApplyPresentOffset(machine.Services, record);
    QCOMPARE(record.HoldsSince, ExactMachine::Instant("2026-10-25T01:00:00"));
    QCOMPARE(record.HoldsUntil, ExactMachine::Instant("2026-11-01T06:00:00"));
}

void tst_ExactOffset::HoldsForEverWhereNothingChanges() {
    const ExactMachine machine("2026-03-15T00:00:00", "Asia/Tokyo");
    const TimeZoneRecord record = machine.Record(u"Asia/Kolkata"_s);
    QCOMPARE(record.HoldsSince, -platform::ZoneSpan::Always);
    QCOMPARE(record.HoldsUntil, platform::ZoneSpan::Always);
}

// Also while the machine lives through an hour twice.
void tst_ExactOffset::GivesTheZonesTimeInEverySecond() {
    ExactMachine machine("2026-10-25T00:59:59");
    const QString newYork = u"America/New_York"_s;
    const auto time = [&] {
        return mduTimeZones::GetClockTime(machine.Record(newYork), machine.Services.Clock.Now());
    };
    QCOMPARE(time(), QDateTime(QDate(2026, 10, 24), QTime(20, 59, 59), Qt::UTC));
    machine.MoveTo("2026-10-25T01:00:00");
    QCOMPARE(machine.Services.Clock.Now().time(), QTime(1, 0));
    QCOMPARE(time(), QDateTime(QDate(2026, 10, 24), QTime(21, 0), Qt::UTC));
}

void tst_ExactOffset::TellsOfAChange() {
    ExactMachine machine("2026-11-01T06:00:00");
    TimeZoneRecord record = machine.Record(u"America/New_York"_s);
    QCOMPARE(mduTimeZones::ChangeText(machine.Services, record),
             u"New York has changed to standard time, UTC-05:00"_s);
    machine.MoveTo("2026-10-03T15:30:00");
    record.ExactId = u"Australia/Lord_Howe"_s;
    QCOMPARE(mduTimeZones::ChangeText(machine.Services, record),
             u"Lord Howe has changed to daylight time, UTC+11:00"_s);
}

void tst_ExactOffset::WritesOffsets_data() {
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("Greenwich") << 0 << u"UTC+00:00"_s;
    QTest::newRow("east") << 20700 << u"UTC+05:45"_s;
    QTest::newRow("west") << -34200 << u"UTC-09:30"_s;
    QTest::newRow("less than an hour") << -1800 << u"UTC-00:30"_s;
    QTest::newRow("seconds") << -2670 << u"UTC-00:44:30"_s;
}

void tst_ExactOffset::WritesOffsets() {
    QFETCH(int, seconds);
    QFETCH(QString, text);
    QCOMPARE(mduTimeZones::OffsetText(seconds), text);
}

QTEST_GUILESS_MAIN(tst_ExactOffset)
#include "tst_ExactOffset.moc"
