#include <QTest>

#include "platform/SimulatedClock.h"
#include "platform/TzFolder.h"
#include "platform/TzPlaces.h"
#include "platform/TzZoneDatabase.h"

using namespace Qt::StringLiterals;
using platform::ZonePlace;

namespace {

const QByteArray Table =
    "# a remark\tof\tthe table\n"
    "GB\t+513030-0000731\tEurope/London\n"
    "GB,IE\t+5320-00615\tEurope/Dublin\tof a later line\n"
    "XX\tnowhere\tNo/Place\n"
    "\n"
    "PT\t+3843-00908\n"
    "ES\t+4024-00341\tEurope/London\n";

}  // namespace

class tst_TzPlaces : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ParsesPlaces_data();
    void ParsesPlaces();
    void RefusesOtherTexts_data();
    void RefusesOtherTexts();
    void ReadsATable();
    void PlacesOfTheSystem_data();
    void PlacesOfTheSystem();
    void CountriesOfTheSystem();
};

void tst_TzPlaces::ParsesPlaces_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("seconds") << QByteArray("+404230-0740030") << 40.7083333 << -74.0083333;
    QTest::newRow("minutes") << QByteArray("-3352+15113") << -33.8666667 << 151.2166667;
    QTest::newRow("zero") << QByteArray("+0000-00000") << 0.0 << 0.0;
    QTest::newRow("the ends") << QByteArray("-9000+18000") << -90.0 << 180.0;
}

void tst_TzPlaces::ParsesPlaces() {
    QFETCH(QByteArray, text);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const auto place = platform::ParseTzPlace(text);
    QVERIFY(place);
    QVERIFY(std::abs(place->Latitude - latitude) < 1e-6);
    QVERIFY(std::abs(place->Longitude - longitude) < 1e-6);
}

void tst_TzPlaces::RefusesOtherTexts_data() {
    QTest::addColumn<QByteArray>("text");
    for (const char* text :
         {"", "+", "+4042", "4042-07400", "+4042-0740", "+404-07400", "+40a2-07400", "+9001+00000",
          "+0000+18001", "+4042--7400", "+4042-07400-1", "+-1042-07400"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void tst_TzPlaces::RefusesOtherTexts() {
    QFETCH(QByteArray, text);
    QVERIFY(!platform::ParseTzPlace(text));
}

void tst_TzPlaces::ReadsATable() {
    const platform::TzPlaces places(Table);
    QVERIFY(places.PlaceOf("Europe/London"));
    QVERIFY(places.PlaceOf("Europe/London")->Latitude > 51.5);
    QCOMPARE(places.PlaceOf("Europe/Dublin"), (ZonePlace{53 + 20 / 60.0, -6.25}));
    QVERIFY(!places.PlaceOf("No/Place"));
    QVERIFY(!places.PlaceOf("Europe/Lisbon"));
    QCOMPARE(places.CountriesOfIana("Europe/London"), QStringList{u"United Kingdom"_s});
    QCOMPARE(places.CountriesOf(u"GMT Standard Time"_s),
             (QStringList{u"Ireland"_s, u"United Kingdom"_s}));
    QCOMPARE(places.CountriesOf(u"Nowhere"_s), QStringList());
    QCOMPARE(platform::TzPlaces({}).CountriesOf(u"GMT Standard Time"_s), QStringList());
}

void tst_TzPlaces::PlacesOfTheSystem_data() {
    QTest::addColumn<QString>("subkey");
    QTest::addColumn<bool>("known");
    QTest::addColumn<int>("latitude");
    QTest::addColumn<int>("longitude");
    QTest::newRow("New York") << u"Eastern Standard Time"_s << true << 40 << -74;
    QTest::newRow("Kolkata, renamed") << u"India Standard Time"_s << true << 22 << 88;
    QTest::newRow("Sydney") << u"AUS Eastern Standard Time"_s << true << -33 << 151;
    QTest::newRow("an island of UTC-11") << u"UTC-11"_s << true << 28 << -177;
    QTest::newRow("nowhere") << u"UTC"_s << false << 0 << 0;
    QTest::newRow("no subkey") << u"No Such Time"_s << false << 0 << 0;
    QTest::newRow("the machine's own") << u"Troll"_s << true << -72 << 2;
}

void tst_TzPlaces::PlacesOfTheSystem() {
    QFETCH(QString, subkey);
    QFETCH(bool, known);
    const platform::SimulatedClock clock(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC),
                                         platform::TzZone("Antarctica/Troll"));
    const platform::TzZoneDatabase zones(clock, "Antarctica/Troll");
    const auto place = zones.Place(subkey);
    QCOMPARE(place.has_value(), known);
    if (known) {
        QTEST(static_cast<int>(place->Latitude), "latitude");
        QTEST(static_cast<int>(place->Longitude), "longitude");
    }
}

void tst_TzPlaces::CountriesOfTheSystem() {
    const platform::SimulatedClock clock(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC),
                                         platform::TzZone("Antarctica/Troll"));
    const platform::TzZoneDatabase zones(clock, "Antarctica/Troll");
    const QStringList europe = zones.Countries(u"W. Europe Standard Time"_s);
    QVERIFY(europe.contains(u"Germany"_s));
    QVERIFY(europe.contains(u"Norway"_s));
    QVERIFY(!europe.contains(u"France"_s));
    QCOMPARE(zones.Countries(u"India Standard Time"_s), QStringList{u"India"_s});
    QCOMPARE(zones.Countries(u"Troll"_s), QStringList{u"Antarctica"_s});
    QCOMPARE(zones.Countries(u"UTC"_s), QStringList());
}

QTEST_GUILESS_MAIN(tst_TzPlaces)
#include "tst_TzPlaces.moc"
