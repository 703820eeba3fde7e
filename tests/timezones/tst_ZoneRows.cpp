#include <QTest>

#include "timezones/ZoneListDesk.h"

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

QTEST_GUILESS_MAIN(tst_ZoneRows)
#include "tst_ZoneRows.moc"
