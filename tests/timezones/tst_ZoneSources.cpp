#include <QTest>

#include "support/FakeServices.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;
using platform::SYSTEMTIME;

namespace {

const SYSTEMTIME FirstSundayOfNovember = {0, 11, 0, 1, 2, 0, 0, 0};
const SYSTEMTIME SecondSundayOfMarch = {0, 3, 0, 2, 2, 0, 0, 0};

platform::TimeZoneInformation NewYork(int result) {
    platform::TimeZoneInformation information;
    information.Result = result;
    information.Bias = 300;
    information.StandardName = u"Eastern Standard Time"_s;
    information.StandardDate = FirstSundayOfNovember;
    information.DaylightName = u"Eastern Daylight Time"_s;
    information.DaylightDate = SecondSundayOfMarch;
    information.DaylightBias = -60;
    return information;
}

/// Adds @p count zones "Zone 1", "Zone 2", ...
void AddZones(FakeServices& fake, int count) {
    for (int number = 1; number <= count; ++number) {
        fake.Zones.Add(u"Zone %1"_s.arg(number), number);
    }
}

}  // namespace

class tst_ZoneSources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ListsTheDatabase();
    void MissingRootGivesOneEmptyRecord();
    void UnreadableRootGivesNothing();
    void GrowsInSteps_data();
    void GrowsInSteps();
    void LongSubkeyEndsTheList();
    void UnreadableZoneIsBlank();
    void ReadsTotals();
    void RefusesOtherSizes_data();
    void RefusesOtherSizes();
    void OverflowingBiasesWrap();
    void ReadsTextsInOrder();
    void CutsTexts_data();
    void CutsTexts();
    void LocalStandard();
    void LocalDaylight();
    void LocalFromRegistry_data();
    void LocalFromRegistry();
    void LocalOfAnyOtherResultIsEmpty();
    void FindsByStandardName();
    void FindsExactlyOnly_data();
    void FindsExactlyOnly();
    void FirstOfTwoWins();
    void FindsNothingBehindALongSubkey();
    void FindsNothingWithoutARoot_data();
    void FindsNothingWithoutARoot();
    void FindsWhatTheListHolds();
    void DatabaseComesBeforeProfiles();
    void BlankNameFindsNothing_data();
    void BlankNameFindsNothing();
};

void tst_ZoneSources::ListsTheDatabase() {
    FakeServices fake;
    fake.Zones.Local = NewYork(2);
    fake.Zones.Add(u"Tokyo Standard Time"_s, -540);
    fake.Zones.Add(u"Eastern Standard Time"_s, 300, 0, -60, FirstSundayOfNovember,
                   SecondSundayOfMarch);
    const TimeZoneRecords records = ListWindowsTimeZones(fake.Services);
    QCOMPARE(records.size(), std::size_t{101});
    QCOMPARE(records[0], TimeZoneRecord());

    QCOMPARE(records[1].KeyName, u"Tokyo Standard Time"_s);
    QCOMPARE(records[1].StandardName, u"Tokyo Standard Time"_s);
    QCOMPARE(records[1].DaylightName, u"Tokyo Daylight Time"_s);
    QCOMPARE(records[1].DisplayName, u"(GMT) Tokyo Standard Time"_s);
    QCOMPARE(records[1].CurrentName, QString());
    QCOMPARE(records[1].CurrentGMTHours, -9.0F);
    QCOMPARE(records[1].HoursFromLocal, 13.0F);  // New York stands at 4 hours now

    QCOMPARE(records[2].Bias, 300);
    QCOMPARE(records[2].StandardBias, 300);
    QCOMPARE(records[2].DaylightBias, 240);
    QCOMPARE(records[2].StandardDate, FirstSundayOfNovember);
    QCOMPARE(records[2].DaylightDate, SecondSundayOfMarch);
    QCOMPARE(records[2].CurrentGMTHours, 5.0F);
    QCOMPARE(records[2].HoursFromLocal, -1.0F);
    QCOMPARE(records[3], TimeZoneRecord());
    QCOMPARE(records[100], TimeZoneRecord());
}

void tst_ZoneSources::MissingRootGivesOneEmptyRecord() {
    FakeServices fake;
    AddZones(fake, 3);
    fake.Zones.Root = platform::ZoneRoot::Missing;
    QCOMPARE(ListWindowsTimeZones(fake.Services), TimeZoneRecords(2));
}

void tst_ZoneSources::UnreadableRootGivesNothing() {
    FakeServices fake;
    AddZones(fake, 3);
    fake.Zones.Root = platform::ZoneRoot::Unreadable;
    QVERIFY(ListWindowsTimeZones(fake.Services).empty());
}

void tst_ZoneSources::GrowsInSteps_data() {
    QTest::addColumn<int>("zones");
    QTest::addColumn<int>("upperBound");
    QTest::newRow("none") << 0 << 100;
    QTest::newRow("full") << 100 << 100;
    QTest::newRow("one more") << 101 << 121;
    QTest::newRow("full again") << 121 << 121;
    QTest::newRow("one more again") << 122 << 142;
}

void tst_ZoneSources::GrowsInSteps() {
    QFETCH(int, zones);
    FakeServices fake;
    AddZones(fake, zones);
    const TimeZoneRecords records = ListWindowsTimeZones(fake.Services);
    QTEST(static_cast<int>(records.size()) - 1, "upperBound");
    for (int number = 1; number <= zones; ++number) {
        QCOMPARE(records[static_cast<std::size_t>(number)].StandardBias, number);
    }
}

void tst_ZoneSources::LongSubkeyEndsTheList() {
    FakeServices fake;
    fake.Zones.Add(QString(31, u'a'), 1);
    fake.Zones.Add(QString(32, u'b'), 2);
    fake.Zones.Add(u"Behind it"_s, 3);
    const TimeZoneRecords records = ListWindowsTimeZones(fake.Services);
    QCOMPARE(records[1].StandardName, QString(31, u'a'));
    QCOMPARE(records[2], TimeZoneRecord());
    QCOMPARE(records[3], TimeZoneRecord());
}

void tst_ZoneSources::UnreadableZoneIsBlank() {
    FakeServices fake;
    fake.Zones.Subkeys.push_back({u"Broken"_s, {}, std::nullopt});
    fake.Zones.Add(u"Whole"_s, 60);
    const TimeZoneRecords records = ListWindowsTimeZones(fake.Services);
    TimeZoneRecord blank;
    blank.KeyName = u"Broken"_s;
    QCOMPARE(records[1], blank);
    QCOMPARE(records[2].StandardName, u"Whole"_s);
}

void tst_ZoneSources::ReadsTotals() {
    FakeServices fake;
    fake.Zones.Add(u"A"_s, -570, 5, -65, {2026, 4, 0, 5, 3, 1, 2, 4},
                   {-1, 10, 6, 4, 23, 59, 58, 999});
    TimeZoneRecord record;
    ReadZoneTZI(fake.Zones, u"A"_s, record);
    QCOMPARE(record.Bias, -570);
    QCOMPARE(record.StandardBias, -565);
    QCOMPARE(record.DaylightBias, -635);
    QCOMPARE(record.StandardDate, (SYSTEMTIME{2026, 4, 0, 5, 3, 1, 2, 4}));
    QCOMPARE(record.DaylightDate, (SYSTEMTIME{-1, 10, 6, 4, 23, 59, 58, 999}));
    QCOMPARE(record.KeyName, QString());
}

void tst_ZoneSources::RefusesOtherSizes_data() {
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 43, 45, 88}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void tst_ZoneSources::RefusesOtherSizes() {
    QFETCH(int, size);
    FakeServices fake;
    fake.Zones.Subkeys.push_back({u"A"_s, {}, QByteArray(size, '\x11')});
    TimeZoneRecord record;
    ReadZoneTZI(fake.Zones, u"A"_s, record);
    QCOMPARE(record, TimeZoneRecord());
}

void tst_ZoneSources::OverflowingBiasesWrap() {
    FakeServices fake;
    fake.Zones.Add(u"A"_s, 2147483647, 1, 2147483647);
    TimeZoneRecord record;
    ReadZoneTZI(fake.Zones, u"A"_s, record);
    QCOMPARE(record.StandardBias, std::numeric_limits<std::int32_t>::min());
    QCOMPARE(record.DaylightBias, -2);
}

void tst_ZoneSources::ReadsTextsInOrder() {
    FakeServices fake;
    fake.Zones.Add(u"Tokyo Standard Time"_s, -540);
    const std::array<QString, 3> texts =
        ReadZoneValues(fake.Zones, u"Tokyo Standard Time"_s, {u"Dlt"_s, u"Other"_s, u"Display"_s});
    QCOMPARE(texts[0], u"Tokyo Daylight Time"_s);
    QCOMPARE(texts[1], QString());
    QCOMPARE(texts[2], u"(GMT) Tokyo Standard Time"_s);
}

void tst_ZoneSources::CutsTexts_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("read");
    QTest::newRow("at the first NUL") << u"abc\0def\0"_s << u"abc"_s;
    QTest::newRow("NUL in front") << u"\0abc"_s << QString();
    QTest::newRow("what fits") << QString(255, u'x') << QString(255, u'x');
    QTest::newRow("what does not fit") << QString(256, u'x') << QString();
}

void tst_ZoneSources::CutsTexts() {
    QFETCH(QString, stored);
    FakeServices fake;
    fake.Zones.Subkeys.push_back({u"A"_s, {{u"Std"_s, stored}}, std::nullopt});
    QTEST(ReadZoneValues(fake.Zones, u"A"_s, {u"Std"_s, {}, {}})[0], "read");
}

void tst_ZoneSources::LocalStandard() {
    FakeServices fake;
    fake.Zones.Local = NewYork(1);
    TimeZoneRecord expected;
    expected.StandardName = u"Eastern Standard Time"_s;
    expected.StandardDate = FirstSundayOfNovember;
    expected.StandardBias = 300;
    expected.DaylightName = u"Eastern Daylight Time"_s;
    expected.DaylightDate = SecondSundayOfMarch;
    expected.DaylightBias = 240;
    expected.CurrentName = u"Eastern Standard Time"_s;
    expected.CurrentGMTHours = 5.0F;
    expected.HoursFromLocal = 5.0F;
    QCOMPARE(GetLocalZone(fake.Services), expected);
}

void tst_ZoneSources::LocalDaylight() {
    FakeServices fake;
    fake.Zones.Local = NewYork(2);
    const TimeZoneRecord record = GetLocalZone(fake.Services);
    QCOMPARE(record.Bias, 0);
    QCOMPARE(record.KeyName, QString());
    QCOMPARE(record.DisplayName, QString());
    QCOMPARE(record.CurrentName, u"Eastern Daylight Time"_s);
    QCOMPARE(record.CurrentGMTHours, 4.0F);
    QCOMPARE(record.HoursFromLocal, 4.0F);
}

void tst_ZoneSources::LocalFromRegistry_data() {
    QTest::addColumn<int>("result");
    QTest::newRow("no daylight time") << 0;
    QTest::newRow("failure") << -1;
}

// On this road daylight time is not applied, whatever the season.
void tst_ZoneSources::LocalFromRegistry() {
    QFETCH(int, result);
    FakeServices fake;
    fake.Zones.Local = NewYork(result);
    fake.Zones.LocalName = u"AUS Eastern Standard Time"_s;
    fake.Zones.Add(u"AUS Eastern Standard Time"_s, -600, 0, -60, {0, 4, 0, 1, 3, 0, 0, 0},
                   {0, 10, 0, 1, 2, 0, 0, 0});
    fake.Clock.SetNow(QDateTime(QDate(2026, 1, 15), QTime(12, 0), Qt::UTC));
    const TimeZoneRecord record = GetLocalZone(fake.Services);
    QCOMPARE(record, ReadRegistryLocalZone(fake.Services));
    QCOMPARE(record.KeyName, u"AUS Eastern Standard Time"_s);
    QCOMPARE(record.StandardName, u"AUS Eastern Standard Time"_s);
    QCOMPARE(record.DaylightName, u"AUS Eastern Daylight Time"_s);
    QCOMPARE(record.DisplayName, u"(GMT) AUS Eastern Standard Time"_s);
    QCOMPARE(record.Bias, -600);
    QCOMPARE(record.StandardBias, -600);
    QCOMPARE(record.DaylightBias, -660);
    QCOMPARE(record.CurrentName, u"AUS Eastern Standard Time"_s);
    QCOMPARE(record.CurrentGMTHours, -10.0F);
    QCOMPARE(record.HoursFromLocal, -10.0F);
}

void tst_ZoneSources::LocalOfAnyOtherResultIsEmpty() {
    FakeServices fake;
    fake.Zones.LocalName = u"Zone 1"_s;
    AddZones(fake, 1);
    for (const int result : {3, 99, -2}) {
        fake.Zones.Local = NewYork(result);
        QCOMPARE(GetLocalZone(fake.Services), TimeZoneRecord());
    }
}

void tst_ZoneSources::FindsByStandardName() {
    FakeServices fake;
    fake.Zones.Local = NewYork(1);
    fake.Zones.Add(u"subkey"_s, -330);
    fake.Zones.Subkeys[0].Texts[u"Std"_s] = u"India Standard Time"_s;
    const TimeZoneRecord record = FindTimeZone(fake.Services, {}, u"India Standard Time"_s);
    QCOMPARE(record.KeyName, u"subkey"_s);
    QCOMPARE(record.StandardBias, -330);
    QCOMPARE(record.CurrentGMTHours, -5.5F);
    QCOMPARE(record.HoursFromLocal, 10.5F);
    QCOMPARE(FindTimeZone(fake.Services, {}, u"subkey"_s).KeyName, QString());
}

void tst_ZoneSources::FindsExactlyOnly_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("lower case") << u"zone 1"_s;
    QTest::newRow("blank behind") << u"Zone 1 "_s;
    QTest::newRow("beginning") << u"Zone"_s;
    QTest::newRow("unknown") << u"Elsewhere"_s;
    QTest::newRow("long") << QString(300, u'z');
    QTest::newRow("path") << u"../Zone 1"_s;
}

void tst_ZoneSources::FindsExactlyOnly() {
    QFETCH(QString, name);
    FakeServices fake;
    AddZones(fake, 2);
    TimeZoneRecord nothing;
    nothing.StandardName = name;
    QCOMPARE(FindTimeZone(fake.Services, {}, name), nothing);
}

void tst_ZoneSources::FirstOfTwoWins() {
    FakeServices fake;
    fake.Zones.Add(u"first"_s, 60);
    fake.Zones.Add(u"second"_s, 120);
    for (auto& zone : fake.Zones.Subkeys) {
        zone.Texts[u"Std"_s] = u"Twin"_s;
    }
    QCOMPARE(FindTimeZone(fake.Services, {}, u"Twin"_s).KeyName, u"first"_s);
}

void tst_ZoneSources::FindsNothingBehindALongSubkey() {
    FakeServices fake;
    fake.Zones.Add(u"Before"_s, 1);
    fake.Zones.Add(QString(32, u'b'), 2);
    fake.Zones.Add(u"Behind"_s, 3);
    QCOMPARE(FindTimeZone(fake.Services, {}, u"Before"_s).KeyName, u"Before"_s);
    QCOMPARE(FindTimeZone(fake.Services, {}, QString(32, u'b')).KeyName, QString());
    QCOMPARE(FindTimeZone(fake.Services, {}, u"Behind"_s).KeyName, QString());
}

void tst_ZoneSources::FindsNothingWithoutARoot_data() {
    QTest::addColumn<int>("root");
    QTest::newRow("missing") << static_cast<int>(platform::ZoneRoot::Missing);
    QTest::newRow("unreadable") << static_cast<int>(platform::ZoneRoot::Unreadable);
}

void tst_ZoneSources::FindsNothingWithoutARoot() {
    QFETCH(int, root);
    FakeServices fake;
    AddZones(fake, 2);
    fake.Zones.Root = static_cast<platform::ZoneRoot>(root);
    QCOMPARE(FindTimeZone(fake.Services, {}, u"Zone 1"_s).KeyName, QString());
}

void tst_ZoneSources::FindsWhatTheListHolds() {
    FakeServices fake;
    fake.Zones.Local = NewYork(2);
    AddZones(fake, 130);
    const TimeZoneRecords records = ListWindowsTimeZones(fake.Services);
    QCOMPARE(FindTimeZone(fake.Services, {}, u"Zone 1"_s), records[1]);
    QCOMPARE(FindTimeZone(fake.Services, {}, u"Zone 130"_s), records[130]);
}

void tst_ZoneSources::DatabaseComesBeforeProfiles() {
    FakeServices fake;
    PathTable paths;
    paths.ProfileFolder = fake.AppFolder() + u"/Timezones/"_s;
    const QByteArray profile =
        "Time Zone Standard Name=Zone 1\r\nTime Zone Standard GMT (Minutes)=77\r\n";
    const QString path = fake.WriteFile(u"Timezones/City.ini"_s, profile);
    QCOMPARE(FindTimeZone(fake.Services, paths, u"Zone 1"_s).KeyName, path);
    QCOMPARE(FindTimeZone(fake.Services, paths, u"Zone 1"_s).StandardBias, 77);
    QCOMPARE(FindTimeZone(fake.Services, paths, u"City"_s).KeyName, QString());
    AddZones(fake, 1);
    QCOMPARE(FindTimeZone(fake.Services, paths, u"Zone 1"_s).KeyName, u"Zone 1"_s);
}

void tst_ZoneSources::BlankNameFindsNothing_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << u"  "_s;
}

void tst_ZoneSources::BlankNameFindsNothing() {
    QFETCH(QString, name);
    FakeServices fake;
    PathTable paths;
    paths.ProfileFolder = fake.AppFolder() + u"/Timezones/"_s;
    fake.WriteFile(u"Timezones/Nameless.ini"_s, "Time Zone Standard Name=\r\n");
    fake.Zones.Add(name, 60);
    TimeZoneRecord nothing;
    nothing.StandardName = name;
    QCOMPARE(FindTimeZone(fake.Services, paths, name), nothing);
}

QTEST_GUILESS_MAIN(tst_ZoneSources)
#include "tst_ZoneSources.moc"
