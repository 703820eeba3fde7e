#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimeZone>

#include "foundation/PropertyFile.h"
#include "support/FakeServices.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;

namespace {

const QString Folder = QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/Timezones/");

struct City {
    const char* Name;
    const char* Iana;
};

constexpr City Cities[] = {
    {"Athens", "Europe/Athens"},
    {"Bangkok", "Asia/Bangkok"},
    {"Berlin", "Europe/Berlin"},
    {"Brisbane", "Australia/Brisbane"},
    {"Buenos Aires", "America/Argentina/Buenos_Aires"},
    {"Dubai", "Asia/Dubai"},
    {"Dublin", "Europe/Dublin"},
    {"Helsinki", "Europe/Helsinki"},
    {"Hong Kong", "Asia/Hong_Kong"},
    {"Honolulu", "Pacific/Honolulu"},
    {"Istanbul", "Europe/Istanbul"},
    {"Johannesburg", "Africa/Johannesburg"},
    {"Kathmandu", "Asia/Kathmandu"},
    {"Lima", "America/Lima"},
    {"Lisbon", "Europe/Lisbon"},
    {"London", "Europe/London"},
    {"Madrid", "Europe/Madrid"},
    {"Moscow", "Europe/Moscow"},
    {"Mumbai", "Asia/Kolkata"},
    {"Nairobi", "Africa/Nairobi"},
    {"Paris", "Europe/Paris"},
    {"Prague", "Europe/Prague"},
    {"Reykjavik", "Atlantic/Reykjavik"},
    {"Rome", "Europe/Rome"},
    {"Seoul", "Asia/Seoul"},
    {"Singapore", "Asia/Singapore"},
    {"Tokyo", "Asia/Tokyo"},
    {"Vienna", "Europe/Vienna"},
    {"Warsaw", "Europe/Warsaw"},
};

void AddCities() {
    QTest::addColumn<QString>("city");
    QTest::addColumn<QByteArray>("iana");
    for (const City& city : Cities) {
        QTest::newRow(city.Name) << QString::fromLatin1(city.Name) << QByteArray(city.Iana);
    }
}

}  // namespace

/// The stock profiles: a clock launched by the city's name takes its zone from them.
class tst_CityProfiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryProfileIsTested();
    void IsNamedAsInTheDatabase_data() { AddCities(); }
    void IsNamedAsInTheDatabase();
    void HasItsSixLines_data() { AddCities(); }
    void HasItsSixLines();
    void AgreesAtNoon_data() { AddCities(); }
    void AgreesAtNoon();
};

void tst_CityProfiles::EveryProfileIsTested() {
    QStringList files;
    for (const City& city : Cities) {
        files.append(QString::fromLatin1(city.Name) + u".ini"_s);
    }
    QCOMPARE(QDir(Folder).entryList({u"*.ini"_s}, QDir::Files, QDir::Name), files);
}

void tst_CityProfiles::IsNamedAsInTheDatabase() {
    QFETCH(QString, city);
    QFETCH(QByteArray, iana);
    ClockProperties properties;
    QVERIFY(
        mduLib::ReadPropertyFile(platform::LocalFiles(), Folder + city + u".ini"_s, properties));
    const QByteArray name = ZoneKeyValue(properties, ZoneKeys()[0]).toUtf8();
    const QByteArray usual = QTimeZone::windowsIdToDefaultIanaId(name);
    QVERIFY2(!usual.isEmpty(), name.constData());
    const QDateTime july(QDate(2026, 7, 1), QTime(0, 0), Qt::UTC);
    QCOMPARE(QTimeZone(usual).offsetFromUtc(july), QTimeZone(iana).offsetFromUtc(july));
}

void tst_CityProfiles::HasItsSixLines() {
    QFETCH(QString, city);
    QFile file(Folder + city + u".ini"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QCOMPARE(content.count("\r\n"), 6);
    QCOMPARE(content.count('\n'), 6);
    for (const QString& key : ZoneKeys()) {
        QVERIFY(content.contains("Time Zone:" + key.toUtf8() + '='));
    }
}

// The rules are not of one year: they hold in the next as well.
void tst_CityProfiles::AgreesAtNoon() {
    QFETCH(QString, city);
    QFETCH(QByteArray, iana);
    FakeServices fake;
    PathTable paths;
    paths.ProfileFolder = Folder;
    ClockProperties properties;
    WriteZoneKeys(fake.Services, paths, properties, city, fake.AppFolder() + u"/zone.ini"_s);
    const QTimeZone zone(iana);
    for (QDate date(2026, 1, 1); date.year() < 2028; date = date.addDays(1)) {
        const QDateTime local(date, QTime(12, 0), Qt::UTC);
        const QDateTime now = local.addSecs(-zone.offsetFromUtc(local));  // on a machine in GMT
        TimeZoneRecord record;
        record.StandardName = city;
        OverlayZoneKeys(record, properties, now);
        ApplyCurrentOffset(record, now, 0.0F);
        QCOMPARE(GetClockTime(record, now), now.addSecs(zone.offsetFromUtc(now)));
    }
}

QTEST_GUILESS_MAIN(tst_CityProfiles)
#include "tst_CityProfiles.moc"
