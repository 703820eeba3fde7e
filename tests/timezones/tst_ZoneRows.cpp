#include <QTest>

#include "timezones/ZoneListDesk.h"
#include "timezones/ZoneSearch.h"
#include "timezones/ZoneSources.h"

using namespace mduTimeZones;

class tst_ZoneRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ChosenZonesAreOneText();
    void ChoiceNeedsTheWholeName();
    void Band_data();
    void Band();
    void NamelessRecordsAreLeftOut();
    void FiltersByChoice_data();
    void FiltersByChoice();
    void FillsRowsOfTheDatabase();
    void FillsRowsOfProfiles();
    void AppendsToRows();
    void NamesZoneFilesAfterTheirFiles();
    void ZoneFilesHaveThePlaceOfTheirZone();
    void AProfileOfItsOwnKeepsItsPlace();
    void AFileThatNoClockHasOpenedShowsItsZone_data();
    void AFileThatNoClockHasOpenedShowsItsZone();
    void FoundCitiesAnswerToCityAndCountry();

private:
    static ZoneRows RowsOfZoneFiles(const ZoneListDesk& desk) {
        ZoneRows rows;
        FillZoneFileRows(rows,
                         ListProfileTimeZones(desk.Machine.Services, desk.Paths.ZoneFileFolder), {},
                         desk.Machine.Services);
        return rows;
    }
};

void tst_ZoneRows::ChosenZonesAreOneText() {
    ZoneListDesk desk;
    QCOMPARE(ChosenZones(desk.Machine.Files, desk.Paths.ZoneFileFolder), QString());
    desk.ZoneFile(u"Tokyo Standard Time"_s);
    QCOMPARE(ChosenZones(desk.Machine.Files, desk.Paths.ZoneFileFolder),
             u"@Tokyo Standard Time@"_s);
    desk.ZoneFile(u"UTC"_s);
    const QString both = ChosenZones(desk.Machine.Files, desk.Paths.ZoneFileFolder);
    QVERIFY(both == u"@Tokyo Standard Time@@UTC@"_s || both == u"@UTC@@Tokyo Standard Time@"_s);
    QCOMPARE(ChosenZones(desk.Machine.Files, u"/no/such/folder/"_s), QString());
    QCOMPARE(ChosenZones(desk.Machine.Files, QString()), QString());
}

void tst_ZoneRows::ChoiceNeedsTheWholeName() {
    const QString chosen = u"@Tokyo Standard Time@@UTC@"_s;
    QVERIFY(IsChosen(chosen, u"UTC"_s));
    QVERIFY(IsChosen(chosen, u"Tokyo Standard Time"_s));
    QVERIFY(!IsChosen(chosen, u"Tokyo"_s));
    QVERIFY(!IsChosen(chosen, u"utc"_s));
    QVERIFY(!IsChosen(chosen, u"UTC-11"_s));
}

void tst_ZoneRows::Band_data() {
    QTest::addColumn<int>("minutesWest");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("inside");
    QTest::newRow("Greenwich") << 0 << 12.0 << true;
    QTest::newRow("half an hour above") << 30 << 12.0 << true;
    QTest::newRow("half an hour below") << -30 << 12.0 << true;
    QTest::newRow("an hour above") << 60 << 12.0 << false;
    QTest::newRow("an hour below") << -60 << 12.0 << false;
    QTest::newRow("New York") << 300 << 17.2 << true;
    QTest::newRow("New York from far") << 300 << 17.6 << false;
    QTest::newRow("Nepal") << -345 << 6.0 << true;
    QTest::newRow("the far west") << 720 << 24.0 << true;
    QTest::newRow("the far east") << -840 << -2.0 << true;
}

void tst_ZoneRows::Band() {
    QFETCH(int, minutesWest);
    QFETCH(double, value);
    TimeZoneRecord record;
    record.StandardName = u"Zone"_s;
    record.CurrentGMTHours = static_cast<float>(minutesWest) / 60.0F;
    QTEST(IsInBand(record, value), "inside");
    QTEST((RowFilter{ShowFilter::All, {}, value}.Lists(record)), "inside");
}

void tst_ZoneRows::NamelessRecordsAreLeftOut() {
    TimeZoneRecord record;
    QVERIFY(!RowFilter().Lists(record));
    record.StandardName = u"  "_s;
    QVERIFY(!RowFilter().Lists(record));
    record.StandardName = u"0"_s;
    QVERIFY(RowFilter().Lists(record));
}

void tst_ZoneRows::FiltersByChoice_data() {
    QTest::addColumn<ShowFilter>("show");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<bool>("other");
    QTest::newRow("all") << ShowFilter::All << true << true;
    QTest::newRow("selected") << ShowFilter::Selected << true << false;
    QTest::newRow("unselected") << ShowFilter::Unselected << false << true;
}

void tst_ZoneRows::FiltersByChoice() {
    QFETCH(ShowFilter, show);
    const RowFilter filter{show, u"@UTC@"_s, {}};
    TimeZoneRecord record;
    record.StandardName = u"UTC"_s;
    QTEST(filter.Lists(record), "chosen");
    record.StandardName = u"Tokyo Standard Time"_s;
    QTEST(filter.Lists(record), "other");
}

void tst_ZoneRows::FillsRowsOfTheDatabase() {
    ZoneListDesk desk;
    desk.Machine.Zones.Places[u"T"_s] = {35.7, 139.7};
    desk.Machine.Zones.CountryNames[u"T"_s] = {u"Japan"_s};
    TimeZoneRecords records(4);
    records[2].StandardName = u"Tokyo Standard Time"_s;
    records[2].KeyName = u"T"_s;
    records[2].DisplayName = u"(GMT+09:00) Tokyo"_s;
    ZoneRows rows;
    FillWindowsRows(rows, records, {ShowFilter::All, u"@Tokyo Standard Time@"_s, {}},
                    desk.Machine.Services);
    QCOMPARE(rows.size(), std::size_t{1});
    QCOMPARE(rows[0].Name, u"Tokyo Standard Time"_s);
    QCOMPARE(rows[0].DisplayName, u"(GMT+09:00) Tokyo"_s);
    QCOMPARE(rows[0].ToolTipText, QString());
    QVERIFY(rows[0].Checked);
    QVERIFY(rows[0].HasFile);
    QCOMPARE(rows[0].Place, (platform::ZonePlace{35.7, 139.7}));
    QVERIFY(rows[0].SearchText.contains(u"japan"_s));
}

void tst_ZoneRows::FillsRowsOfProfiles() {
    ZoneListDesk desk;
    const QString path = desk.Profile(u"Oslo.ini"_s, "W. Europe Standard Time", -60,
                                      "Zone:Latitude=59.9\r\nZone:Longitude=10.7\r\n"
                                      "Zone:Country=Norway\r\n");
    TimeZoneRecords records(2);
    records[1].StandardName = u"W. Europe Standard Time"_s;
    records[1].KeyName = path;
    ZoneRows rows;
    FillProfileRows(rows, records, {}, desk.Machine.Services);
    QCOMPARE(rows.size(), std::size_t{1});
    QCOMPARE(rows[0].ToolTipText, path);
    QVERIFY(!rows[0].Checked);
    QVERIFY(!rows[0].HasFile);
    QCOMPARE(rows[0].Place, (platform::ZonePlace{59.9, 10.7}));
    QVERIFY(rows[0].SearchText.contains(u"norway"_s));
}

void tst_ZoneRows::AppendsToRows() {
    ZoneListDesk desk;
    TimeZoneRecords records(2);
    records[1].StandardName = u"UTC"_s;
    ZoneRows rows;
    FillWindowsRows(rows, records, {}, desk.Machine.Services);
    FillProfileRows(rows, records, {}, desk.Machine.Services);
    QCOMPARE(rows.size(), std::size_t{2});
}

void tst_ZoneRows::NamesZoneFilesAfterTheirFiles() {
    ZoneListDesk desk;
    desk.ZoneFile(u"My Desk"_s,
                  "Time Zone:Time Zone Standard Name=Tokyo Standard Time\r\n"
                  "Time Zone:Time Zone Standard GMT (Minutes)=-540\r\n");
    const ZoneRows rows = RowsOfZoneFiles(desk);
    QCOMPARE(rows.size(), std::size_t{1});
    QCOMPARE(rows[0].Name, u"My Desk"_s);
    QCOMPARE(rows[0].ToolTipText, desk.Paths.ZoneFileFolder + u"My Desk.ini"_s);
    QCOMPARE(rows[0].Record.CurrentGMTHours, -9.0F);
    QCOMPARE(rows[0].Place, std::nullopt);
}

void tst_ZoneRows::ZoneFilesHaveThePlaceOfTheirZone() {
    ZoneListDesk desk;
    desk.Machine.Zones.Places[u"Tokyo Standard Time"_s] = {35.7, 139.7};
    desk.Machine.Zones.CountryNames[u"Tokyo Standard Time"_s] = {u"Japan"_s};
    desk.ZoneFile(u"Tokyo Standard Time"_s,
                  "Time Zone:Time Zone Standard Name=Tokyo Standard Time\r\n");
    const ZoneRows rows = RowsOfZoneFiles(desk);
    QCOMPARE(rows[0].Place, (platform::ZonePlace{35.7, 139.7}));
    QVERIFY(IsFound(rows[0].SearchText, SearchWords(u"japan"_s)));
}

void tst_ZoneRows::AProfileOfItsOwnKeepsItsPlace() {
    ZoneListDesk desk;
    desk.Machine.Zones.Places[u"Tokyo Standard Time"_s] = {35.7, 139.7};
    desk.ZoneFile(u"Tokyo Standard Time"_s,
                  "Zone:Latitude=34.7\r\nZone:Longitude=135.5\r\nZone:Country=Nippon\r\n");
    const ZoneRows rows = RowsOfZoneFiles(desk);
    QCOMPARE(rows[0].Place, (platform::ZonePlace{34.7, 135.5}));
    QVERIFY(IsFound(rows[0].SearchText, SearchWords(u"nippon"_s)));
}

void tst_ZoneRows::AFileThatNoClockHasOpenedShowsItsZone_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty keys") << "Time Zone:Time Zone Standard Name=\r\nA:B=c\r\n"_ba;
    QTest::newRow("no keys") << "A:B=c\r\n"_ba;
}

/// The program's first start makes such a file for the machine's own zone.
void tst_ZoneRows::AFileThatNoClockHasOpenedShowsItsZone() {
    QFETCH(QByteArray, content);
    ZoneListDesk desk;
    desk.ZoneFile(u"Tokyo Standard Time"_s, content);
    const ZoneRows rows = RowsOfZoneFiles(desk);
    QCOMPARE(rows.size(), std::size_t{1});
    QCOMPARE(rows[0].Name, u"Tokyo Standard Time"_s);
    QCOMPARE(rows[0].DisplayName, u"(GMT) Tokyo Standard Time"_s);
    QCOMPARE(rows[0].Record.CurrentGMTHours, -9.0F);
    QCOMPARE(rows[0].ToolTipText, desk.Paths.ZoneFileFolder + u"Tokyo Standard Time.ini"_s);
}

void tst_ZoneRows::FoundCitiesAnswerToCityAndCountry() {
    ZoneListDesk desk;
    desk.Profile(u"Oslo.ini"_s, "Oslo", -60,
                 "Zone:Country=Norway\r\nZone:Latitude=59.9\r\nZone:Longitude=10.7\r\n");
    ZoneRows rows;
    FillFoundCities(rows, ListProfileTimeZones(desk.Machine.Services, desk.Paths.ProfileFolder), {},
                    desk.Machine.Services);
    QCOMPARE(rows.size(), std::size_t{1});
    QVERIFY(rows[0].IsFoundCity);
    QCOMPARE(rows[0].Name, u"Oslo"_s);
    QCOMPARE(rows[0].Place, (platform::ZonePlace{59.9, 10.7}));
    QVERIFY(IsFound(rows[0].SearchText, SearchWords(u"oslo norway"_s)));
    QVERIFY(!IsFound(rows[0].SearchText, SearchWords(u"+1:00"_s)));
    QVERIFY(!IsFound(rows[0].SearchText, SearchWords(u"time"_s)));
}

QTEST_GUILESS_MAIN(tst_ZoneRows)
#include "tst_ZoneRows.moc"
