#include <QTimeZone>

#include "foundation/PropertyFile.h"
#include "platform/TzYear.h"
#include "profiles/ProfileMaker.h"
#include "support/FakeServices.h"
#include "timezones/ProfileFacts.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace mduTimeZones;

namespace {

constexpr int Year = 2026;

QList<QByteArray> TableRows() {
    QFile table(u"/usr/share/zoneinfo/zone.tab"_s);
    QList<QByteArray> rows;
    if (table.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : table.readAll().split('\n')) {
            if (!line.isEmpty() && !line.startsWith('#')) {
                rows += line;
            }
        }
    }
    return rows;
}

QDate FirstDay(const QTimeZone& zone) {
    const bool plain = platform::ReadTzYear(zone, Year).Changes.size() <= 2;
    return plain ? QDate(Year, 1, 1) : QDate(Year, 7, 1);
}

}  // namespace

/// The profiles of this machine's tz database, as the program reads them.
class tst_CityProfiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void EveryCityOfTheTableHasOne_data();
    void EveryCityOfTheTableHasOne();
    void EachIsAZoneOfItsOwn();
    void EachHasAPlaceAndACountry();

private:
    const ProfileMaker maker_;
};

// What holds for every edition is shown with the one that this machine has.
void tst_CityProfiles::initTestCase() {
    qunsetenv("TZDIR");
    QCOMPARE(maker_.Run(QString::number(Year) + u"-07-01"_s), 0);
}

void tst_CityProfiles::EveryCityOfTheTableHasOne_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QString>("city");
    for (const QByteArray& row : TableRows()) {
        const QByteArray iana = row.split('\t')[2];
        const QByteArray city = iana.mid(iana.lastIndexOf('/') + 1).replace('_', ' ');
        QTest::newRow(iana.constData()) << iana << QString::fromLatin1(city);
    }
}

// The clock is right at noon of each third day of the year, on a machine in GMT; a zone that
// changes more than twice in it, from the day of making on.
void tst_CityProfiles::EveryCityOfTheTableHasOne() {
    QFETCH(QByteArray, iana);
    QFETCH(QString, city);
    FakeServices fake;
    ClockProperties properties;
    QVERIFY(mduLib::ReadPropertyFile(fake.Files, maker_.Path(city), properties));
    const QTimeZone zone(iana);
    for (QDate date = FirstDay(zone); date.year() == Year; date = date.addDays(3)) {
        const QDateTime local(date, QTime(12, 0), Qt::UTC);
        const QDateTime now = local.addSecs(-zone.offsetFromUtc(local));
        TimeZoneRecord record;
        QCOMPARE(OverlayZoneKeys(record, properties, now), QStringList());
        ApplyCurrentOffset(record, now, 0.0F);
        QCOMPARE(GetClockTime(record, now), now.addSecs(zone.offsetFromUtc(now)));
    }
}

void tst_CityProfiles::EachIsAZoneOfItsOwn() {
    FakeServices fake;
    const QString folder = maker_.Folder.filePath(u"Timezones/"_s);
    const QStringList files = maker_.Names();
    QVERIFY(files.size() > 500);
    QSet<QString> names;
    for (const TimeZoneRecord& record : ListProfileTimeZones(fake.Services, folder)) {
        if (!record.KeyName.isEmpty()) {
            QCOMPARE(record.KeyName, folder + record.StandardName + u".ini"_s);
            names.insert(record.StandardName);
        }
    }
    QCOMPARE(names.size(), files.size());
}

void tst_CityProfiles::EachHasAPlaceAndACountry() {
    const platform::LocalFiles files;
    for (const QString& name : maker_.Names()) {
        const auto facts = ReadProfileFacts(files, maker_.Folder.filePath(u"Timezones/"_s + name));
        QVERIFY2(facts.Place, qPrintable(name));
        QVERIFY2(!facts.Country.isEmpty(), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(tst_CityProfiles)
#include "tst_CityProfiles.moc"
