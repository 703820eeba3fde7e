#include <QTest>

#include "support/FakeServices.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;
using platform::SYSTEMTIME;

namespace {

QByteArray Profile(const QByteArray& name, const QByteArray& minutes) {
    return "Zone:Time Zone Standard Name=" + name +
           "\r\nZone:Time Zone Standard GMT (Minutes)=" + minutes + "\r\n";
}

TimeZoneRecords List(const FakeServices& fake) {
    return ListProfileTimeZones(fake.Services, fake.AppFolder() + u"/Timezones/"_s);
}

}  // namespace

class tst_ProfileZones : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ReadsAProfile();
    void BuildsDisplay_data();
    void BuildsDisplay();
    void DisplayWithoutNumber_data();
    void DisplayWithoutNumber();
    void MissingKeysReadZero();
    void RuleFormIsNoDaylightTime();
    void OtherPlatformsReadNoDates();
    void TakesProfilesOnly();
    void UnreadableFileLeavesAGap();
    void EmptyFileLeavesAGap();
    void GrowsInSteps_data();
    void GrowsInSteps();
    void FolderThatIsMissing_data();
    void FolderThatIsMissing();
};

void tst_ProfileZones::ReadsAProfile() {
    FakeServices fake;
    fake.Zones.LocalName = u"Here"_s;
    fake.Zones.Add(u"Here"_s, -60);
    const QString path =
        fake.WriteFile(u"Timezones/Some Town.ini"_s,
                       "Zone:Time Zone Standard Name= Town Standard \r\n"
                       "Zone:Time Zone Standard Start Time= 25/10/2026 3:00:00 \r\n"
                       "Zone:Time Zone Standard GMT (Minutes)= -120 \r\n"
                       "Zone:Time Zone Daylight Name= Town Daylight \r\n"
                       "Zone:Time Zone Daylight Start Time= 29/03/2026 2:00:00 \r\n"
                       "Zone:Time Zone Daylight GMT (Minutes)= -180 \r\n");
    TimeZoneRecord expected;
    expected.KeyName = path;
    expected.StandardName = u"Town Standard"_s;
    expected.StandardDate = {2026, 10, 0, 25, 3, 0, 0, 0};
    expected.StandardBias = -120;
    expected.DaylightName = u"Town Daylight"_s;
    expected.DaylightDate = {2026, 3, 0, 29, 2, 0, 0, 0};
    expected.DaylightBias = -180;
    expected.DisplayName = u"(GMT+02:00) Some Town"_s;
    expected.CurrentGMTHours = -2.0F;
    expected.HoursFromLocal = 1.0F;
    const TimeZoneRecords records = List(fake);
    QCOMPARE(records[0], TimeZoneRecord());
    QCOMPARE(records[1], expected);
    QCOMPARE(records[2], TimeZoneRecord());
    // A folder named without its separator is the same folder.
    QCOMPARE(ListProfileTimeZones(fake.Services, fake.AppFolder() + u"/Timezones"_s), records);
}

void tst_ProfileZones::BuildsDisplay_data() {
    QTest::addColumn<QByteArray>("minutes");
    QTest::addColumn<QString>("display");
    QTest::newRow("west") << QByteArray("330") << u"(GMT-05:30) Name"_s;
    QTest::newRow("east") << QByteArray("-570") << u"(GMT+09:30) Name"_s;
    QTest::newRow("zero") << QByteArray("0") << u"(GMT-00:00) Name"_s;
    QTest::newRow("below an hour") << QByteArray("-30") << u"(GMT+00:30) Name"_s;
    QTest::newRow("whole hour") << QByteArray("-60") << u"(GMT+01:00) Name"_s;
    QTest::newRow("two digits") << QByteArray("720") << u"(GMT-12:00) Name"_s;
    QTest::newRow("quarter") << QByteArray("-345") << u"(GMT+05:45) Name"_s;
    QTest::newRow("five minutes show as fifty") << QByteArray("65") << u"(GMT-01:50) Name"_s;
    QTest::newRow("nine minutes show as ninety") << QByteArray("-9") << u"(GMT+00:90) Name"_s;
    QTest::newRow("a hundred hours") << QByteArray("6000") << u"(GMT-00:00) Name"_s;
    QTest::newRow("twenty minutes") << QByteArray("20") << u"(GMT-00:20) Name"_s;
}

void tst_ProfileZones::BuildsDisplay() {
    QFETCH(QByteArray, minutes);
    FakeServices fake;
    fake.WriteFile(u"Timezones/Name.ini"_s, Profile("N", minutes));
    const TimeZoneRecords records = List(fake);
    QTEST(records[1].DisplayName, "display");
    QCOMPARE(records[1].StandardBias, minutes.toInt());
}

void tst_ProfileZones::DisplayWithoutNumber_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << Profile("N", "soon");
    QTest::newRow("number with a tail") << Profile("N", "60 minutes");
    QTest::newRow("empty") << Profile("N", "");
}

void tst_ProfileZones::DisplayWithoutNumber() {
    QFETCH(QByteArray, content);
    FakeServices fake;
    fake.WriteFile(u"Timezones/Name.ini"_s, content);
    const TimeZoneRecords records = List(fake);
    QCOMPARE(records[1].StandardName, u"N"_s);
    QCOMPARE(records[1].DisplayName, u"Name"_s);
    QCOMPARE(records[1].StandardBias, 0);
    QCOMPARE(records[1].DaylightBias, 0);
}

void tst_ProfileZones::MissingKeysReadZero() {
    FakeServices fake;
    const QString path = fake.WriteFile(u"Timezones/Name.ini"_s, "Look:Clocks=Digital\r\n");
    TimeZoneRecord expected;
    expected.KeyName = path;
    expected.StandardName = u"0"_s;
    expected.DaylightName = u"0"_s;
    expected.DisplayName = u"(GMT-00:00) Name"_s;
    QCOMPARE(List(fake)[1], expected);
}

void tst_ProfileZones::RuleFormIsNoDaylightTime() {
    FakeServices fake;
    fake.WriteFile(u"Timezones/Name.ini"_s,
                   "Time Zone Standard Name=N\r\n"
                   "Time Zone Standard Start Time=5.0.10 3:00:00\r\n"
                   "Time Zone Daylight Start Time=5.0.3 2:00:00\r\n"
                   "Time Zone Daylight GMT (Minutes)=-180\r\n");
    const TimeZoneRecords records = List(fake);
    QCOMPARE(records[1].StandardDate, SYSTEMTIME());
    QCOMPARE(records[1].DaylightDate, SYSTEMTIME());
    QCOMPARE(records[1].DaylightBias, -180);
}

void tst_ProfileZones::OtherPlatformsReadNoDates() {
    FakeServices fake;
    fake.Zones.NT = false;
    fake.WriteFile(u"Timezones/Name.ini"_s,
                   "Time Zone Standard Name=N\r\n"
                   "Time Zone Daylight Start Time=29/03/2026 2:00:00\r\n");
    QCOMPARE(List(fake)[1].DaylightDate, SYSTEMTIME());
    fake.Zones.NT = true;
    QCOMPARE(List(fake)[1].DaylightDate, (SYSTEMTIME{2026, 3, 0, 29, 2, 0, 0, 0}));
}

void tst_ProfileZones::TakesProfilesOnly() {
    FakeServices fake;
    for (const QString& name :
         {u"b.ini"_s, u"Tempolark.ini"_s, u"capitals.INI"_s, u"mixed.Ini"_s, u"a.ini"_s,
          u"note.txt"_s, u"c.ini.bak"_s, u"ini"_s, u"tempolark.ini"_s, u"B.ini"_s}) {
        fake.WriteFile(u"Timezones/"_s + name, Profile("N", "0"));
    }
    const TimeZoneRecords records = List(fake);
    // In the order of the file names, capitals first.
    QCOMPARE(records[1].DisplayName, u"(GMT-00:00) B"_s);
    QCOMPARE(records[2].DisplayName, u"(GMT-00:00) a"_s);
    QCOMPARE(records[3].DisplayName, u"(GMT-00:00) b"_s);
    QCOMPARE(records[4].DisplayName, u"(GMT-00:00) tempolark"_s);
    QCOMPARE(records[5], TimeZoneRecord());
}

void tst_ProfileZones::UnreadableFileLeavesAGap() {
    FakeServices fake;
    fake.WriteFile(u"Timezones/a.ini"_s, Profile("A", "0"));
    fake.Files.Unreadable = {fake.WriteFile(u"Timezones/b.ini"_s, Profile("B", "0"))};
    fake.WriteFile(u"Timezones/c.ini"_s, Profile("C", "0"));
    const TimeZoneRecords records = List(fake);
    QCOMPARE(records[1].StandardName, u"A"_s);
    QCOMPARE(records[2], TimeZoneRecord());
    QCOMPARE(records[3].StandardName, u"C"_s);
    PathTable paths;
    paths.ProfileFolder = fake.AppFolder() + u"/Timezones/"_s;
    QCOMPARE(FindTimeZone(fake.Services, paths, u"C"_s).StandardName, u"C"_s);
    QVERIFY(FindTimeZone(fake.Services, paths, u"C"_s).KeyName.endsWith(u"/c.ini"_s));
}

void tst_ProfileZones::EmptyFileLeavesAGap() {
    FakeServices fake;
    fake.WriteFile(u"Timezones/a.ini"_s, "");
    fake.WriteFile(u"Timezones/b.ini"_s, Profile("B", "0"));
    const TimeZoneRecords records = List(fake);
    QCOMPARE(records[1], TimeZoneRecord());
    QCOMPARE(records[2].StandardName, u"B"_s);
}

void tst_ProfileZones::GrowsInSteps_data() {
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("upperBound");
    QTest::newRow("none") << 0 << 20;
    QTest::newRow("full") << 20 << 20;
    QTest::newRow("one more") << 21 << 31;
    QTest::newRow("full again") << 31 << 31;
    QTest::newRow("one more again") << 32 << 42;
}

void tst_ProfileZones::GrowsInSteps() {
    QFETCH(int, files);
    FakeServices fake;
    for (int number = 1; number <= files; ++number) {
        fake.WriteFile(u"Timezones/%1.ini"_s.arg(number, 3, 10, QChar(u'0')),
                       Profile("N" + QByteArray::number(number), "0"));
    }
    const TimeZoneRecords records = List(fake);
    QTEST(static_cast<int>(records.size()) - 1, "upperBound");
    for (int number = 1; number <= files; ++number) {
        QCOMPARE(records[static_cast<std::size_t>(number)].StandardName, u"N%1"_s.arg(number));
    }
}

void tst_ProfileZones::FolderThatIsMissing_data() {
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QString();
    QTest::newRow("missing") << u"/nowhere/at/all/"_s;
}

void tst_ProfileZones::FolderThatIsMissing() {
    QFETCH(QString, folder);
    FakeServices fake;
    QCOMPARE(ListProfileTimeZones(fake.Services, folder), TimeZoneRecords(21));
}

QTEST_GUILESS_MAIN(tst_ProfileZones)
#include "tst_ProfileZones.moc"
