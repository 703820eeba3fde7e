#include <QTest>

#include "support/FakeServices.h"
#include "timezones/ProfileFacts.h"

using namespace Qt::StringLiterals;
using mduTimeZones::FactsInText;

class tst_ProfileFacts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Places_data();
    void Places();
    void Countries_data();
    void Countries();
    void MissingFilesTellNothing();
};

void tst_ProfileFacts::Places_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("known");
    QTest::newRow("both") << QByteArray("A:B=c\r\nZone:Latitude=-33.5\r\nZone:Longitude=151.25\r\n")
                          << true;
    QTest::newRow("no category, no last line end")
        << QByteArray("Latitude=-33.5\nLongitude=151.25") << true;
    QTest::newRow("with choices") << QByteArray(
                                         "Zone:Latitude= -33.5 ,1,2\r\nZone:Longitude=151.25,3\r\n")
                                  << true;
    QTest::newRow("one alone") << QByteArray("Zone:Latitude=-33.5\r\n") << false;
    QTest::newRow("beyond the pole")
        << QByteArray("Zone:Latitude=-90.5\r\nZone:Longitude=151.25\r\n") << false;
    QTest::newRow("beyond the date line")
        << QByteArray("Zone:Latitude=-33.5\r\nZone:Longitude=181\r\n") << false;
    QTest::newRow("no number") << QByteArray("Zone:Latitude=south\r\nZone:Longitude=151.25\r\n")
                               << false;
    QTest::newRow("another key") << QByteArray(
                                        "Zone:My Latitude=-33.5\r\nZone:Longitude=151.25\r\n")
                                 << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void tst_ProfileFacts::Places() {
    QFETCH(QByteArray, text);
    QFETCH(bool, known);
    const auto place = FactsInText(text).Place;
    QCOMPARE(place.has_value(), known);
    if (known) {
        QCOMPARE(place, (platform::ZonePlace{-33.5, 151.25}));
    }
}

void tst_ProfileFacts::Countries_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("country");
    QTest::newRow("one") << QByteArray("Zone:Country=Côte d’Ivoire\r\nA:B=c") << u"Côte d’Ivoire"_s;
    QTest::newRow("none") << QByteArray("A:B=c") << QString();
    QTest::newRow("behind a longer key")
        << QByteArray("Zone:Home Country=x\r\nZone:Country=Peru") << u"Peru"_s;
}

void tst_ProfileFacts::Countries() {
    QFETCH(QByteArray, text);
    QTEST(FactsInText(text).Country, "country");
}

void tst_ProfileFacts::MissingFilesTellNothing() {
    FakeServices machine;
    const auto facts = mduTimeZones::ReadProfileFacts(machine.Files, u"/no/such.ini"_s);
    QVERIFY(!facts.Place);
    QCOMPARE(facts.Country, QString());
}

QTEST_GUILESS_MAIN(tst_ProfileFacts)
#include "tst_ProfileFacts.moc"
