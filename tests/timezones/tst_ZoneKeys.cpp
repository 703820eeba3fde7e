#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeServices.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;
using platform::SYSTEMTIME;

namespace {

const QDateTime Now(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC);

/// Second Sunday of March, first Sunday of November.
TimeZoneRecord Eastern() {
    TimeZoneRecord record;
    record.KeyName = u"subkey"_s;
    record.StandardName = u"Eastern Standard Time"_s;
    record.StandardBias = 300;
    record.StandardDate = {2026, 11, 0, 1, 2, 0, 0, 0};
    record.DaylightName = u"Eastern Daylight Time"_s;
    record.DaylightBias = 240;
    record.DaylightDate = {2026, 3, 0, 8, 2, 0, 0, 0};
    return record;
}

/// First Sunday of October, first Sunday of April: its daylight time spans the turn of the year.
TimeZoneRecord Sydney() {
    TimeZoneRecord record;
    record.StandardName = u"AUS Eastern Standard Time"_s;
    record.StandardBias = -600;
    record.StandardDate = {2026, 4, 0, 5, 3, 0, 0, 0};
    record.DaylightName = u"AUS Eastern Daylight Time"_s;
    record.DaylightBias = -660;
    record.DaylightDate = {2026, 10, 0, 4, 2, 0, 0, 0};
    return record;
}

QString ValueOf(const ClockProperties& properties, const QString& key) {
    return mduLib::GetPropertyRaw(u"Time Zone "_s + key, properties);
}

/// The six keys with these values.
ClockProperties Keys(const QStringList& values) {
    ClockProperties properties;
    for (qsizetype key = 0; key < values.size(); ++key) {
        mduLib::AppendProperty(u"Time Zone"_s, ZoneKeys()[key], values[key], properties);
    }
    return properties;
}

const QStringList ParisValues = {u"Romance Standard Time"_s, u"25/10/2026 3:00:00"_s, u"-60"_s,
                                 u"Romance Daylight Time"_s, u"29/03/2026 2:00:00"_s, u"-120"_s};

QDateTime MomentOf2026(int month, int day, int hour, int minute, int second) {
    return QDateTime(QDate(2026, month, day), QTime(hour, minute, second), Qt::UTC);
}

/// A program folder with a zone database of one zone and a folder of profiles.
struct Machine {
    Machine() {
        Paths.AppFolder = Fake.AppFolder();
        Paths.ProfileFolder = Fake.AppFolder() + u"/Timezones/"_s;
        Fake.Zones.Add(u"Eastern Standard Time"_s, 300, 0, -60, {2026, 11, 0, 1, 2, 0, 0, 0},
                       {2026, 3, 0, 8, 2, 0, 0, 0});
    }

    FakeServices Fake;
    PathTable Paths;
};

}  // namespace

class tst_ZoneKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NamesTheKeys();
    void ValueOfAKey();
    void FillsInEmptyKeys();
    void FirstLoadAndSecondAgree_data();
    void FirstLoadAndSecondAgree();
    void RecordWithoutNamesStaysNameless();
    void TakesValues();
    void RuleBecomesADate();
    void ZeroRuleIsNoDaylightTime();
    void IgnoresGarbage_data();
    void IgnoresGarbage();
    void DateKeepsTheWeekday();
    void TakesNumbers_data();
    void TakesNumbers();
    void RollsBackStrictly_data();
    void RollsBackStrictly();
    void RollsBackARule();
    void NoRollbackWithoutDates();
    void RollsBackBeforeTheLastKey();
    void SavesWhatItFillsIn();
    void StoresTextsWhole();
    void LeavesAFullFileAlone();
    void TellsWhenItCannotSave();
    void WritesAZone();
    void WritesFromAProfileFile();
    void WritesWhatAProfileListTells();
    void WritesNothingForAnUnknownZone();
    void NeverLeavesTheProfileFolder_data();
    void NeverLeavesTheProfileFolder();
    void CopiesPresentKeysOnly();
    void AppliesAZoneToAFile();
    void KeepsAFileThatItCannotRead();
    void LoadsFiles_data();
    void LoadsFiles();
    void LoadsAZone();
    void LoadsAnUnknownZone();
    void TellsWhetherALoadWasSaved();
};

void tst_ZoneKeys::NamesTheKeys() {
    const QStringList expected = {
        u"Time Zone Standard Name"_s,          u"Time Zone Standard Start Time"_s,
        u"Time Zone Standard GMT (Minutes)"_s, u"Time Zone Daylight Name"_s,
        u"Time Zone Daylight Start Time"_s,    u"Time Zone Daylight GMT (Minutes)"_s};
    QCOMPARE(ZoneKeys(), expected);
}

void tst_ZoneKeys::ValueOfAKey() {
    const ClockProperties properties = Keys({u"  Some Name , One, Two"_s, u" "_s});
    QCOMPARE(ZoneKeyValue(properties, ZoneKeys()[0]), u"Some Name"_s);
    QCOMPARE(ZoneKeyValue(properties, ZoneKeys()[1]), QString());
    QCOMPARE(ZoneKeyValue(properties, ZoneKeys()[2]), QString());
}

void tst_ZoneKeys::FillsInEmptyKeys() {
    TimeZoneRecord record = Eastern();
    ClockProperties properties = Keys({QString(), u"  "_s, QString()});
    QCOMPARE(OverlayZoneKeys(record, properties, Now), ZoneKeys());
    QCOMPARE(ValueOf(properties, u"Standard Name"_s), u"Eastern Standard Time"_s);
    QCOMPARE(ValueOf(properties, u"Standard Start Time"_s), u"01/11/2026 2:00:00"_s);
    QCOMPARE(ValueOf(properties, u"Standard GMT (Minutes)"_s), u"300"_s);
    QCOMPARE(ValueOf(properties, u"Daylight Name"_s), u"Eastern Daylight Time"_s);
    QCOMPARE(ValueOf(properties, u"Daylight Start Time"_s), u"08/03/2026 2:00:00"_s);
    QCOMPARE(ValueOf(properties, u"Daylight GMT (Minutes)"_s), u"240"_s);
    TimeZoneRecord expected = Eastern();
    expected.KeyName = u"Eastern Standard Time"_s;
    QCOMPARE(record, expected);
}

void tst_ZoneKeys::FirstLoadAndSecondAgree_data() {
    QTest::addColumn<SYSTEMTIME>("standardDate");
    QTest::addColumn<SYSTEMTIME>("daylightDate");
    QTest::newRow("dates") << SYSTEMTIME{2026, 11, 0, 1, 2, 0, 0, 0}
                           << SYSTEMTIME{2026, 3, 0, 8, 2, 0, 0, 0};
    QTest::newRow("rules") << SYSTEMTIME{0, 11, 0, 1, 2, 0, 0, 0}
                           << SYSTEMTIME{0, 3, 0, 2, 2, 30, 15, 0};
    QTest::newRow("moved date") << SYSTEMTIME{2026, 11, 0, 1, 2, 0, 0, 0}
                                << SYSTEMTIME{2026, 12, 0, 8, 2, 0, 0, 0};
    QTest::newRow("no daylight time") << SYSTEMTIME{} << SYSTEMTIME{};
    QTest::newRow("date that is none")
        << SYSTEMTIME{2026, 2, 0, 30, 2, 0, 0, 0} << SYSTEMTIME{2026, 3, 0, 8, 2, 0, 0, 0};
    QTest::newRow("garbage rule") << SYSTEMTIME{0, 99, 7, 99, 99, 99, 99, 99}
                                  << SYSTEMTIME{0, -5, -5, -5, -5, -5, -5, -5};
}

void tst_ZoneKeys::FirstLoadAndSecondAgree() {
    QFETCH(SYSTEMTIME, standardDate);
    QFETCH(SYSTEMTIME, daylightDate);
    TimeZoneRecord first = Eastern();
    first.StandardDate = standardDate;
    first.DaylightDate = daylightDate;
    TimeZoneRecord second = first;
    ClockProperties properties;
    QCOMPARE(OverlayZoneKeys(first, properties, Now).size(), 6);
    QCOMPARE(OverlayZoneKeys(second, properties, Now), QStringList());
    QCOMPARE(second, first);
}

void tst_ZoneKeys::RecordWithoutNamesStaysNameless() {
    TimeZoneRecord record;
    record.KeyName = u"key"_s;
    ClockProperties properties;
    QCOMPARE(OverlayZoneKeys(record, properties, Now), ZoneKeys());
    QCOMPARE(ValueOf(properties, u"Standard Name"_s), QString());
    QCOMPARE(ValueOf(properties, u"Standard Start Time"_s), u"0.0.0 0:00:00"_s);
    QCOMPARE(ValueOf(properties, u"Standard GMT (Minutes)"_s), u"0"_s);
    TimeZoneRecord expected;
    expected.KeyName = u"key"_s;
    QCOMPARE(record, expected);
}

void tst_ZoneKeys::TakesValues() {
    TimeZoneRecord record = Eastern();
    record.DisplayName = u"(GMT-05:00) New York"_s;
    record.Bias = 300;
    ClockProperties properties = Keys(ParisValues);
    QCOMPARE(OverlayZoneKeys(record, properties, Now), QStringList());
    QCOMPARE(properties, Keys(ParisValues));
    TimeZoneRecord expected;
    expected.Bias = 300;
    expected.KeyName = u"Romance Standard Time"_s;
    expected.StandardName = u"Romance Standard Time"_s;
    expected.StandardDate = {2026, 10, 0, 25, 3, 0, 0, 0};
    expected.StandardBias = -60;
    expected.DaylightName = u"Romance Daylight Time"_s;
    expected.DaylightDate = {2026, 3, 0, 29, 2, 0, 0, 0};
    expected.DaylightBias = -120;
    expected.DisplayName = u"(GMT-05:00) New York"_s;
    QCOMPARE(record, expected);
}

void tst_ZoneKeys::RuleBecomesADate() {
    TimeZoneRecord record;
    QStringList values = ParisValues;
    values[1] = u"5.0.10 3:00:00"_s;
    values[4] = u"1.0.3 2:30:45"_s;
    ClockProperties properties = Keys(values);
    OverlayZoneKeys(record, properties, Now);
    QCOMPARE(record.StandardDate, (SYSTEMTIME{2026, 10, 0, 25, 3, 0, 0, 0}));
    QCOMPARE(record.DaylightDate, (SYSTEMTIME{2026, 3, 0, 29, 2, 30, 0, 0}));
    QCOMPARE(ValueOf(properties, u"Daylight Start Time"_s), u"1.0.3 2:30:45"_s);
}

void tst_ZoneKeys::ZeroRuleIsNoDaylightTime() {
    TimeZoneRecord record = Eastern();
    QStringList values = ParisValues;
    values[1] = u"0.0.0 0:00:00"_s;
    values[4] = u"0.0.0 0:00:00"_s;
    ClockProperties properties = Keys(values);
    OverlayZoneKeys(record, properties, Now);
    QCOMPARE(record.StandardDate, SYSTEMTIME());
    QCOMPARE(record.DaylightDate, SYSTEMTIME());
}

void tst_ZoneKeys::IgnoresGarbage_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("start: word") << 1 << u"soon"_s;
    QTest::newRow("start: date with dots") << 1 << u"25.10.2026"_s;
    QTest::newRow("start: no such date") << 1 << u"31/02/2026"_s;
    QTest::newRow("standard minutes: word") << 2 << u"west"_s;
    QTest::newRow("standard minutes: tail") << 2 << u"60 minutes"_s;
    QTest::newRow("standard minutes: two signs") << 2 << u"--60"_s;
    QTest::newRow("daylight start: word") << 4 << u"later"_s;
    QTest::newRow("daylight start: number") << 4 << u"12345"_s;
    QTest::newRow("daylight minutes: word") << 5 << u"east"_s;
    QTest::newRow("daylight minutes: time") << 5 << u"4:00"_s;
}

// What can't be read leaves the record's field, and the text stands as it was.
void tst_ZoneKeys::IgnoresGarbage() {
    QFETCH(int, key);
    QFETCH(QString, text);
    TimeZoneRecord record = Eastern();
    QStringList values = {u"Eastern Standard Time"_s, u"01/11/2026 2:00:00"_s, u"300"_s,
                          u"Eastern Daylight Time"_s, u"08/03/2026 2:00:00"_s, u"240"_s};
    values[key] = text;
    ClockProperties properties = Keys(values);
    QCOMPARE(OverlayZoneKeys(record, properties, Now), QStringList());
    TimeZoneRecord expected = Eastern();
    expected.KeyName = u"Eastern Standard Time"_s;
    QCOMPARE(record, expected);
    QCOMPARE(properties, Keys(values));
}

void tst_ZoneKeys::DateKeepsTheWeekday() {
    TimeZoneRecord record = Eastern();
    record.StandardDate.wDayOfWeek = 4;
    ClockProperties properties = Keys(ParisValues);
    OverlayZoneKeys(record, properties, Now);
    QCOMPARE(record.StandardDate, (SYSTEMTIME{2026, 10, 4, 25, 3, 0, 0, 0}));
}

void tst_ZoneKeys::TakesNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("minutes");
    QTest::newRow("signed") << u"-570"_s << -570;
    QTest::newRow("plus") << u"+60"_s << 60;
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("half to even") << u"90.5"_s << 90;
    QTest::newRow("beyond 32 bits") << u"99999999999"_s << 2147483647;
}

void tst_ZoneKeys::TakesNumbers() {
    QFETCH(QString, text);
    TimeZoneRecord record = Eastern();
    QStringList values = ParisValues;
    values[2] = text;
    ClockProperties properties = Keys(values);
    OverlayZoneKeys(record, properties, Now);
    QTEST(record.StandardBias, "minutes");
}

void tst_ZoneKeys::RollsBackStrictly_data() {
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<SYSTEMTIME>("daylightDate");
    QTest::addColumn<int>("year");
    const SYSTEMTIME october = {2026, 10, 0, 4, 2, 0, 0, 0};
    QTest::newRow("January") << MomentOf2026(1, 15, 12, 0, 0) << october << 2025;
    QTest::newRow("a second before the end") << MomentOf2026(4, 5, 2, 59, 59) << october << 2025;
    QTest::newRow("the end") << MomentOf2026(4, 5, 3, 0, 0) << october << 2026;
    QTest::newRow("within the second before")
        << MomentOf2026(4, 5, 2, 59, 59).addMSecs(500) << october << 2025;
    QTest::newRow("June") << MomentOf2026(6, 15, 12, 0, 0) << october << 2026;
    QTest::newRow("start a second behind the end")
        << MomentOf2026(1, 15, 12, 0, 0) << SYSTEMTIME{2026, 4, 0, 5, 3, 0, 1, 0} << 2025;
    QTest::newRow("start at the end")
        << MomentOf2026(1, 15, 12, 0, 0) << SYSTEMTIME{2026, 4, 0, 5, 3, 0, 0, 0} << 2026;
    QTest::newRow("start before the end")
        << MomentOf2026(1, 15, 12, 0, 0) << SYSTEMTIME{2026, 3, 0, 1, 3, 0, 0, 0} << 2026;
}

void tst_ZoneKeys::RollsBackStrictly() {
    QFETCH(QDateTime, now);
    QFETCH(SYSTEMTIME, daylightDate);
    TimeZoneRecord record = Sydney();
    record.DaylightDate = daylightDate;
    ClockProperties properties;
    OverlayZoneKeys(record, properties, now);
    QTEST(static_cast<int>(record.DaylightDate.wYear), "year");
    QCOMPARE(record.StandardDate.wYear, std::int16_t{2026});
    // The file keeps the date as it was.
    QVERIFY(ValueOf(properties, u"Daylight Start Time"_s).contains(u"/2026 "_s));
}

// A text that is ignored leaves a rule in the record; its occurrence is ordered as a day.
void tst_ZoneKeys::RollsBackARule() {
    TimeZoneRecord record = Sydney();
    record.StandardDate = {0, 4, 0, 1, 3, 0, 0, 0};
    record.DaylightDate = {0, 10, 0, 1, 2, 0, 0, 0};
    QStringList values = ParisValues;
    values[1] = u"kept"_s;
    values[4] = u"kept"_s;
    ClockProperties properties = Keys(values);
    OverlayZoneKeys(record, properties, MomentOf2026(1, 15, 12, 0, 0));
    QCOMPARE(record.DaylightDate, (SYSTEMTIME{-1, 10, 0, 1, 2, 0, 0, 0}));
    QCOMPARE(record.StandardDate, (SYSTEMTIME{0, 4, 0, 1, 3, 0, 0, 0}));
}

void tst_ZoneKeys::NoRollbackWithoutDates() {
    TimeZoneRecord record = Sydney();
    record.StandardDate = {0, 0, 0, 0, 0, 0, 0, 0};
    QStringList values = ParisValues;
    values[1] = u"kept"_s;
    values[4] = u"04/10/2026 2:00:00"_s;
    ClockProperties properties = Keys(values);
    OverlayZoneKeys(record, properties, MomentOf2026(1, 15, 12, 0, 0));
    QCOMPARE(record.DaylightDate, (SYSTEMTIME{2026, 10, 0, 4, 2, 0, 0, 0}));
}

void tst_ZoneKeys::RollsBackBeforeTheLastKey() {
    TimeZoneRecord record = Sydney();
    QStringList values = {u"N"_s, u"05/04/2026 3:00:00"_s, u"-600"_s,
                          u"D"_s, u"04/10/2026 2:00:00"_s, u"-675"_s};
    ClockProperties properties = Keys(values);
    OverlayZoneKeys(record, properties, MomentOf2026(1, 15, 12, 0, 0));
    QCOMPARE(record.DaylightDate.wYear, std::int16_t{2025});
    QCOMPARE(record.DaylightBias, -675);
}

void tst_ZoneKeys::SavesWhatItFillsIn() {
    Machine machine;
    const QString path =
        machine.Fake.WriteFile(u"zone.ini"_s,
                               "Look:Clocks=Digital,Analogue\r\n"
                               "Zone:Time Zone Standard Name=\r\n"
                               "Zone:Time Zone Standard Start Time=5.0.10 3:00:00\r\n"
                               "Zone:Time Zone Standard GMT (Minutes)=text\r\n"
                               "Zone:Time Zone Daylight Name= \r\n"
                               "Zone:Time Zone Daylight Start Time=\r\n");
    ClockProperties properties;
    QVERIFY(mduLib::ReadPropertyFile(machine.Fake.Files, path, properties));
    TimeZoneRecord record = Eastern();
    QVERIFY(ReadZoneKeys(machine.Fake.Services, record, properties, path));
    QCOMPARE(machine.Fake.ReadFile(u"zone.ini"_s),
             QByteArray("Look:Clocks=Digital,Analogue\r\n"
                        "Zone:Time Zone Standard Name=Eastern Standard Time\r\n"
                        "Zone:Time Zone Standard Start Time=5.0.10 3:00:00\r\n"
                        "Zone:Time Zone Standard GMT (Minutes)=text\r\n"
                        "Zone:Time Zone Daylight Name=Eastern Daylight Time\r\n"
                        "Zone:Time Zone Daylight Start Time=08/03/2026 2:00:00\r\n"
                        "Time Zone Daylight GMT (Minutes)=240\r\n"));
    QCOMPARE(record.StandardBias, 300);
    QCOMPARE(record.StandardDate, (SYSTEMTIME{2026, 10, 0, 25, 3, 0, 0, 0}));
    QCOMPARE(machine.Fake.Files.Writes, QStringList(4, path));
}

void tst_ZoneKeys::StoresTextsWhole() {
    Machine machine;
    TimeZoneRecord record = Eastern();
    record.StandardName = u" East, or so "_s;
    TimeZoneRecord same = record;
    ClockProperties properties;
    ClockProperties saved;
    OverlayZoneKeys(record, properties, Now);
    QCOMPARE(ValueOf(properties, u"Standard Name"_s), u" East, or so "_s);
    QCOMPARE(record.StandardName, u"East"_s);
    QVERIFY(ReadZoneKeys(machine.Fake.Services, same, saved,
                         machine.Fake.AppFolder() + u"/zone.ini"_s));
    QVERIFY(machine.Fake.ReadFile(u"zone.ini"_s)
                .startsWith("Time Zone Standard Name= East, or so \r\n"));
    QCOMPARE(same.StandardName, u"East"_s);
}

void tst_ZoneKeys::LeavesAFullFileAlone() {
    Machine machine;
    ClockProperties properties = Keys(ParisValues);
    TimeZoneRecord record = Eastern();
    QVERIFY(ReadZoneKeys(machine.Fake.Services, record, properties,
                         machine.Fake.AppFolder() + u"/zone.ini"_s));
    QCOMPARE(machine.Fake.Files.Writes, QStringList());
    QCOMPARE(record.StandardName, u"Romance Standard Time"_s);
}

void tst_ZoneKeys::TellsWhenItCannotSave() {
    Machine machine;
    const QString path = machine.Fake.AppFolder() + u"/zone.ini"_s;
    machine.Fake.Files.Unwritable = {path};
    ClockProperties properties;
    TimeZoneRecord record = Eastern();
    QVERIFY(!ReadZoneKeys(machine.Fake.Services, record, properties, path));
    // The clock runs all the same.
    QCOMPARE(record.StandardName, u"Eastern Standard Time"_s);
    QCOMPARE(record.DaylightBias, 240);
}

void tst_ZoneKeys::WritesAZone() {
    Machine machine;
    const QString path = machine.Fake.AppFolder() + u"/zone.ini"_s;
    ClockProperties properties = Keys(ParisValues);
    bool written = false;
    const TimeZoneRecord record = WriteZoneKeys(machine.Fake.Services, machine.Paths, properties,
                                                u"Eastern Standard Time"_s, path, &written);
    QVERIFY(written);
    QCOMPARE(record.KeyName, u"Eastern Standard Time"_s);
    QCOMPARE(record.StandardBias, 300);
    QCOMPARE(machine.Fake.ReadFile(u"zone.ini"_s),
             QByteArray("Time Zone:Time Zone Standard Name=Eastern Standard Time\r\n"
                        "Time Zone:Time Zone Standard Start Time=01/11/2026 2:00:00\r\n"
                        "Time Zone:Time Zone Standard GMT (Minutes)=300\r\n"
                        "Time Zone:Time Zone Daylight Name=Eastern Daylight Time\r\n"
                        "Time Zone:Time Zone Daylight Start Time=08/03/2026 2:00:00\r\n"
                        "Time Zone:Time Zone Daylight GMT (Minutes)=240\r\n"));
    QCOMPARE(machine.Fake.Files.Writes, QStringList(6, path));

    machine.Fake.Files.Unwritable = {path};
    WriteZoneKeys(machine.Fake.Services, machine.Paths, properties, u"Eastern Standard Time"_s,
                  path, &written);
    QVERIFY(!written);
}

void tst_ZoneKeys::WritesFromAProfileFile() {
    Machine machine;
    machine.Fake.WriteFile(u"Timezones/Paris.ini"_s,
                           "Time Zone:Time Zone Standard Name=Romance Standard Time\r\n"
                           "Time Zone:Time Zone Standard Start Time=5.0.10 3:00:00\r\n"
                           "Time Zone:Time Zone Standard GMT (Minutes)=-60\r\n"
                           "Look:Clocks=Digital\r\n");
    const QString path = machine.Fake.AppFolder() + u"/zone.ini"_s;
    ClockProperties properties = Keys({u"old"_s, u"old"_s, u"old"_s, u"old"_s, u"old"_s, u"old"_s});
    bool written = false;
    const TimeZoneRecord record =
        WriteZoneKeys(machine.Fake.Services, machine.Paths, properties, u"Paris"_s, path, &written);
    QVERIFY(written);
    TimeZoneRecord nameOnly;
    nameOnly.StandardName = u"Paris"_s;
    QCOMPARE(record, nameOnly);
    QCOMPARE(machine.Fake.ReadFile(u"zone.ini"_s),
             QByteArray("Time Zone:Time Zone Standard Name=Romance Standard Time\r\n"
                        "Time Zone:Time Zone Standard Start Time=5.0.10 3:00:00\r\n"
                        "Time Zone:Time Zone Standard GMT (Minutes)=-60\r\n"
                        "Time Zone:Time Zone Daylight Name=old\r\n"
                        "Time Zone:Time Zone Daylight Start Time=old\r\n"
                        "Time Zone:Time Zone Daylight GMT (Minutes)=old\r\n"));
    // The name may bring its extension, in any case.
    ClockProperties other;
    WriteZoneKeys(machine.Fake.Services, machine.Paths, other, u"Paris.ini"_s, path, &written);
    QCOMPARE(ValueOf(other, u"Standard GMT (Minutes)"_s), u"-60"_s);
}

// A profile that is found by its standard name goes through its record, where a rule is no date.
void tst_ZoneKeys::WritesWhatAProfileListTells() {
    Machine machine;
    machine.Fake.WriteFile(u"Timezones/Paris.ini"_s,
                           "Time Zone Standard Name=Romance Standard Time\r\n"
                           "Time Zone Standard Start Time=5.0.10 3:00:00\r\n"
                           "Time Zone Standard GMT (Minutes)=-60\r\n");
    ClockProperties properties;
    const TimeZoneRecord record =
        WriteZoneKeys(machine.Fake.Services, machine.Paths, properties, u"Romance Standard Time"_s,
                      machine.Fake.AppFolder() + u"/zone.ini"_s);
    QCOMPARE(record.KeyName, machine.Paths.ProfileFolder + u"Paris.ini"_s);
    QCOMPARE(ValueOf(properties, u"Standard Start Time"_s), u"0.0.0 0:00:00"_s);
    QCOMPARE(ValueOf(properties, u"Standard GMT (Minutes)"_s), u"-60"_s);
}

void tst_ZoneKeys::WritesNothingForAnUnknownZone() {
    Machine machine;
    const QString path = machine.Fake.AppFolder() + u"/zone.ini"_s;
    ClockProperties properties = Keys(ParisValues);
    bool written = false;
    WriteZoneKeys(machine.Fake.Services, machine.Paths, properties, u"Nowhere"_s, path, &written);
    QVERIFY(written);
    QCOMPARE(properties, Keys(ParisValues));
    QCOMPARE(machine.Fake.Files.Writes, QStringList());
}

void tst_ZoneKeys::NeverLeavesTheProfileFolder_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("folder above") << u"../outside"_s;
    QTest::newRow("sub-folder") << u"sub/inside"_s;
    QTest::newRow("dots") << u".."_s;
    QTest::newRow("back slash") << u"..\\outside"_s;
    QTest::newRow("long") << QString(300, u'x');
    QTest::newRow("control character") << u"a\nb"_s;
}

void tst_ZoneKeys::NeverLeavesTheProfileFolder() {
    QFETCH(QString, name);
    Machine machine;
    const QByteArray keys = "Time Zone Standard Name=Trap\r\n";
    machine.Fake.WriteFile(u"outside.ini"_s, keys);
    machine.Fake.WriteFile(u"Timezones/sub/inside.ini"_s, keys);
    ClockProperties properties;
    bool written = false;
    WriteZoneKeys(machine.Fake.Services, machine.Paths, properties, name,
                  machine.Fake.AppFolder() + u"/zone.ini"_s, &written);
    QVERIFY(written);
    QCOMPARE(properties, ClockProperties());
    QCOMPARE(machine.Fake.Files.Writes, QStringList());
}

void tst_ZoneKeys::CopiesPresentKeysOnly() {
    ClockProperties source = Keys({u"New"_s, QString()});
    mduLib::AppendProperty({}, u"Clocks"_s, u"Digital"_s, source);
    ClockProperties target;
    mduLib::AppendProperty(u"Zone"_s, ZoneKeys()[1], u"old"_s, target);
    mduLib::AppendProperty(u"Zone"_s, ZoneKeys()[2], u"60"_s, target);
    CopyZoneKeys(source, target);
    QCOMPARE(ValueOf(target, u"Standard Name"_s), u"New"_s);
    QCOMPARE(ValueOf(target, u"Standard Start Time"_s), QString());
    QCOMPARE(ValueOf(target, u"Standard GMT (Minutes)"_s), u"60"_s);
    QCOMPARE(mduLib::FindPropertyRow(u"Clocks"_s, target), 0);
    QCOMPARE(target[mduLib::FindPropertyRow(ZoneKeys()[1], target)].Category, u"Zone"_s);
}

void tst_ZoneKeys::AppliesAZoneToAFile() {
    Machine machine;
    const QString path = machine.Fake.WriteFile(
        u"zone.ini"_s, "Look:Clocks=Digital\r\nZone:Time Zone Standard Name=\r\n");
    QVERIFY(
        ApplyZoneToFile(machine.Fake.Services, machine.Paths, path, u"Eastern Standard Time"_s));
    const QByteArray content = machine.Fake.ReadFile(u"zone.ini"_s);
    QVERIFY(
        content.startsWith("Look:Clocks=Digital\r\n"
                           "Zone:Time Zone Standard Name=Eastern Standard Time\r\n"));
    QVERIFY(content.contains("Time Zone Daylight GMT (Minutes)=240\r\n"));

    const QString missing = machine.Fake.AppFolder() + u"/new.ini"_s;
    QVERIFY(
        ApplyZoneToFile(machine.Fake.Services, machine.Paths, missing, u"Eastern Standard Time"_s));
    QVERIFY(machine.Fake.ReadFile(u"new.ini"_s)
                .startsWith("Time Zone Standard Name=Eastern Standard Time\r\n"));
}

void tst_ZoneKeys::KeepsAFileThatItCannotRead() {
    Machine machine;
    const QString path = machine.Fake.WriteFile(u"zone.ini"_s, "Look:Clocks=Digital\r\n");
    machine.Fake.Files.Unreadable = {path};
    QVERIFY(
        !ApplyZoneToFile(machine.Fake.Services, machine.Paths, path, u"Eastern Standard Time"_s));
    QCOMPARE(machine.Fake.ReadFile(u"zone.ini"_s), QByteArray("Look:Clocks=Digital\r\n"));
}

void tst_ZoneKeys::LoadsFiles_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<QString>("name");
    QTest::newRow("keys") << "Time Zone Standard Name=N\r\n"_ba << true << u"N"_s;
    QTest::newRow("nothing") << QByteArray() << true << QString();
    QTest::newRow("binary") << QByteArray("Time Zone Standard Name=N\r\n\0\1", 29) << false
                            << QString();
    QTest::newRow("as many lines as can be counted")
        << "Time Zone Standard Name=N\n"_ba + QByteArray("\n").repeated(32766) << true << u"N"_s;
    QTest::newRow("a line more") << "Time Zone Standard Name=N\n"_ba +
                                        QByteArray("\n").repeated(32767)
                                 << false << QString();
}

void tst_ZoneKeys::LoadsFiles() {
    QFETCH(QByteArray, content);
    QFETCH(bool, loaded);
    Machine machine;
    const QString path = machine.Fake.WriteFile(u"zone.ini"_s, content);
    ClockProperties properties = Keys(ParisValues);
    QCOMPARE(LoadZoneFile(machine.Fake.Files, path, properties), loaded);
    QTEST(ValueOf(properties, u"Standard Name"_s), "name");
    QCOMPARE(
        ApplyZoneToFile(machine.Fake.Services, machine.Paths, path, u"Eastern Standard Time"_s),
        loaded);
    QCOMPARE(machine.Fake.ReadFile(u"zone.ini"_s) == content, !loaded);
}

// GMT noon of 15 June on a machine in GMT.
void tst_ZoneKeys::LoadsAZone() {
    Machine machine;
    machine.Fake.Zones.LocalName = u"GMT"_s;
    machine.Fake.Zones.Add(u"GMT"_s, 0);
    const QString path = machine.Fake.AppFolder() + u"/zone.ini"_s;
    ClockProperties properties;
    const TimeZoneRecord record = LoadZone(machine.Fake.Services, machine.Paths,
                                           u"Eastern Standard Time"_s, properties, path);
    QCOMPARE(record.KeyName, u"Eastern Standard Time"_s);
    QCOMPARE(record.CurrentName, u"Eastern Daylight Time"_s);
    QCOMPARE(record.CurrentGMTHours, 4.0F);
    QCOMPARE(record.HoursFromLocal, -4.0F);
    QVERIFY(machine.Fake.ReadFile(u"zone.ini"_s).contains("(Minutes)=300\r\n"));
}

void tst_ZoneKeys::LoadsAnUnknownZone() {
    Machine machine;
    machine.Fake.Zones.LocalName = u"Local"_s;
    machine.Fake.Zones.Add(u"Local"_s, -120);
    ClockProperties properties;
    const TimeZoneRecord record = LoadZone(machine.Fake.Services, machine.Paths, u"Nowhere"_s,
                                           properties, machine.Fake.AppFolder() + u"/zone.ini"_s);
    QCOMPARE(record.StandardName, u"Nowhere"_s);
    QCOMPARE(record.KeyName, u"Nowhere"_s);
    QCOMPARE(record.CurrentName, u"Nowhere"_s);
    QCOMPARE(record.CurrentGMTHours, 0.0F);
    QCOMPARE(record.HoursFromLocal, -2.0F);
}

void tst_ZoneKeys::TellsWhetherALoadWasSaved() {
    Machine machine;
    const QString path = machine.Fake.AppFolder() + u"/zone.ini"_s;
    bool written = false;
    ClockProperties properties;
    LoadZone(machine.Fake.Services, machine.Paths, u"Eastern Standard Time"_s, properties, path,
             &written);
    QVERIFY(written);
    machine.Fake.Files.Unwritable = {path};
    ClockProperties empty;
    LoadZone(machine.Fake.Services, machine.Paths, u"Eastern Standard Time"_s, empty, path,
             &written);
    QVERIFY(!written);
    // Full keys need no saving.
    LoadZone(machine.Fake.Services, machine.Paths, u"Eastern Standard Time"_s, properties, path,
             &written);
    QVERIFY(written);
}

QTEST_GUILESS_MAIN(tst_ZoneKeys)
#include "tst_ZoneKeys.moc"
