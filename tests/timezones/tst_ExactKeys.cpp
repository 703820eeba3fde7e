#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "support/ExactMachine.h"
#include "timezones/ExactKeys.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray Exact = "Time Zone:Time Zone Rules=Exact,Exact,As Stored\r\n";

/// A file of a zone on a machine in London, in June.
struct ZoneFile {
    explicit ZoneFile(const QByteArray& content, const QByteArray& gmt = "2026-06-15T12:00:00")
        : Machine(gmt), Path(Machine.Machine.WriteFile(u"Zone.ini"_s, content)) {
        Paths.AppFolder = Machine.Machine.AppFolder();
        Paths.ProfileFolder = Paths.AppFolder + u"/Timezones/"_s;
        mduLib::ReadPropertyFile(Machine.Services.FileSystem, Path, Properties);
    }

    TimeZoneRecord Load(const QString& name) {
        return mduTimeZones::LoadZone(Machine.Services, Paths, name, Properties, Path);
    }
    /// The value of a key in the file as it now stands on disk.
    QString Stored(const QString& key) const {
        ClockProperties stored;
        mduLib::ReadPropertyFile(Machine.Services.FileSystem, Path, stored);
        return mduTimeZones::ZoneKeyValue(stored, key);
    }

    ExactMachine Machine;
    PathTable Paths;
    ClockProperties Properties;
    QString Path;
};

QByteArray Keys(const QByteArray& name, int standard, int daylight = 0,
                const QByteArray& from = "0.0.0 0:00:00", const QByteArray& to = "0.0.0 0:00:00") {
    return "Time Zone Standard Name=" + name + "\r\nTime Zone Standard Start Time=" + to +
           "\r\nTime Zone Standard GMT (Minutes)=" + QByteArray::number(standard) +
           "\r\nTime Zone Daylight Name=" + name +
           " Summer\r\nTime Zone Daylight Start Time=" + from +
           "\r\nTime Zone Daylight GMT (Minutes)=" + QByteArray::number(daylight) + "\r\n";
}

}  // namespace

class tst_ExactKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TakesAnIdentifier();
    void DoesNothingWithoutTheKeys_data();
    void DoesNothingWithoutTheKeys();
    void KeepsTheSixKeysUpToDate();
    void WritesNothingThatIsUpToDate();
    void FindsAnIdentifier_data();
    void FindsAnIdentifier();
    void FindsTheIdentifierOfAProfile();
    void LeavesOnesOwnNumbers_data();
    void LeavesOnesOwnNumbers();
    void TakesAnOffsetOfThePast();
    void KeepsAnUnknownIdentifier();
    void AnotherZoneHasAnotherIdentifier();
    void TheSameZoneKeepsItsIdentifier();
    void AZoneWithoutANameKeepsItsIdentifier();
    void CopiesTheIdentifierWithTheZone();
};

// A winter that is stored is none any more.
void tst_ExactKeys::TakesAnIdentifier() {
    ZoneFile file(Exact + "Time Zone:Time Zone Id=America/New_York\r\n" + Keys("Office", 300));
    const TimeZoneRecord record = file.Load(u"Office"_s);
    QCOMPARE(record.ExactId, u"America/New_York"_s);
    QCOMPARE(record.StandardName, u"Office"_s);
    QCOMPARE(record.CurrentName, u"Office Summer"_s);
    QCOMPARE(record.CurrentGMTHours, 4.0F);
    QCOMPARE(record.HoursFromLocal, -5.0F);
    QCOMPARE(record.DaylightBias, 240);
    QVERIFY(!record.LacksId);
}

void tst_ExactKeys::DoesNothingWithoutTheKeys_data() {
    QTest::addColumn<QByteArray>("keys");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("an identifier alone") << QByteArray("Time Zone Id=America/New_York\r\n");
    QTest::newRow("as stored") << QByteArray(
        "Time Zone Rules=As Stored,Exact,As Stored\r\nTime Zone Id=America/New_York\r\n");
    QTest::newRow("empty") << QByteArray("Time Zone Rules=\r\nTime Zone Id=America/New_York\r\n");
}

void tst_ExactKeys::DoesNothingWithoutTheKeys() {
    QFETCH(QByteArray, keys);
    const QByteArray content = keys + Keys("Eastern Standard Time", 300);
    ZoneFile file(content);
    const TimeZoneRecord record = file.Load(u"Eastern Standard Time"_s);
    QCOMPARE(record.ExactId, QString());
    QVERIFY(!record.LacksId);
    QCOMPARE(record.CurrentGMTHours, 5.0F);
    QCOMPARE(file.Machine.Machine.ReadFile(u"Zone.ini"_s), content);
}

void tst_ExactKeys::KeepsTheSixKeysUpToDate() {
    ZoneFile file(Exact + "Time Zone Id=America/New_York\r\n" +
                  Keys("Office", 300, 240, "10/03/2024 2:00:00", "03/11/2024 2:00:00"));
    file.Load(u"Office"_s);
    QCOMPARE(file.Stored(u"Time Zone Daylight Start Time"_s), u"08/03/2026 2:00:00"_s);
    QCOMPARE(file.Stored(u"Time Zone Standard Start Time"_s), u"01/11/2026 2:00:00"_s);
    QCOMPARE(file.Stored(u"Time Zone Standard GMT (Minutes)"_s), u"300"_s);
    QCOMPARE(file.Stored(u"Time Zone Daylight GMT (Minutes)"_s), u"240"_s);
    QCOMPARE(file.Stored(u"Time Zone Standard Name"_s), u"Office"_s);
    QCOMPARE(file.Stored(u"Time Zone Daylight Name"_s), u"Office Summer"_s);
}

void tst_ExactKeys::WritesNothingThatIsUpToDate() {
    ZoneFile file(Exact + "Time Zone Id=America/New_York\r\n" +
                  Keys("Office", 300, 240, "08/03/2026 2:00:00", "01/11/2026 2:00:00"));
    TimeZoneRecord record;
    QVERIFY(!mduTimeZones::OverlayExactKeys(file.Machine.Services, {}, record, file.Properties));
    QCOMPARE(record.ExactId, u"America/New_York"_s);
}

void tst_ExactKeys::FindsAnIdentifier_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("id");
    QTest::newRow("a zone's name")
        << u"Eastern Standard Time"_s << QByteArray() << u"America/New_York"_s;
    QTest::newRow("a renamed zone")
        << u"India Standard Time"_s << QByteArray() << u"Asia/Kolkata"_s;
    QTest::newRow("a city that names a zone")
        << u"Oslo"_s << Keys("Oslo", -60, -120, "29/03/2026 2:00:00", "25/10/2026 3:00:00")
        << u"Europe/Oslo"_s;
    QTest::newRow("a city that lies in one")
        << u"Mumbai"_s << Keys("Mumbai", -330) << u"Asia/Kolkata"_s;
    QTest::newRow("the city of a profile")
        << u"Head office"_s << QByteArray("Zone:City=Oslo\r\n") + Keys("Head office", -60)
        << u"Europe/Oslo"_s;
}

void tst_ExactKeys::FindsAnIdentifier() {
    QFETCH(QString, name);
    QFETCH(QByteArray, keys);
    QFETCH(QString, id);
    ZoneFile file(Exact + "Time Zone:Time Zone Id=\r\n" + keys);
    QCOMPARE(file.Load(name).ExactId, id);
    QCOMPARE(file.Stored(u"Time Zone Id"_s), id);
}

void tst_ExactKeys::FindsTheIdentifierOfAProfile() {
    ZoneFile file(Exact + "Time Zone Id=\r\n");
    file.Machine.Machine.WriteFile(u"Timezones/Hill.ini"_s,
                                   "Time Zone Id=Asia/Kathmandu\r\n" + Keys("Hill", -345));
    QCOMPARE(file.Load(u"Hill"_s).ExactId, u"Asia/Kathmandu"_s);
    QCOMPARE(file.Stored(u"Time Zone Id"_s), u"Asia/Kathmandu"_s);
}

void tst_ExactKeys::LeavesOnesOwnNumbers_data() {
    QTest::addColumn<QByteArray>("keys");
    QTest::newRow("an unknown name") << Keys("Town", -345);
    QTest::newRow("another standard time") << Keys("Eastern Standard Time", 315);
    QTest::newRow("another summer")
        << Keys("Eastern Standard Time", 300, 270, "08/03/2026 2:00:00", "01/11/2026 2:00:00");
}

void tst_ExactKeys::LeavesOnesOwnNumbers() {
    QFETCH(QByteArray, keys);
    const QByteArray content = Exact + "Time Zone Id=\r\n" + keys;
    ZoneFile file(content);
    const TimeZoneRecord record = file.Load(u"Eastern Standard Time"_s);
    QCOMPARE(record.ExactId, QString());
    QVERIFY(record.LacksId);
    QCOMPARE(file.Machine.Machine.ReadFile(u"Zone.ini"_s), content);
}

// Moscow kept four hours until 2014.
void tst_ExactKeys::TakesAnOffsetOfThePast() {
    ZoneFile file(Exact + "Time Zone Id=\r\n" + Keys("Russian Standard Time", -240));
    const TimeZoneRecord record = file.Load(u"Russian Standard Time"_s);
    QCOMPARE(record.ExactId, u"Europe/Moscow"_s);
    QCOMPARE(record.CurrentGMTHours, -3.0F);
    QCOMPARE(file.Stored(u"Time Zone Standard GMT (Minutes)"_s), u"-180"_s);
}

void tst_ExactKeys::KeepsAnUnknownIdentifier() {
    const QByteArray content = Exact + "Time Zone Id=Mars/Phobos\r\n" + Keys("Town", -345);
    ZoneFile file(content);
    const TimeZoneRecord record = file.Load(u"Town"_s);
    QVERIFY(record.LacksId);
    QCOMPARE(record.CurrentGMTHours, -5.75F);
    QCOMPARE(file.Machine.Machine.ReadFile(u"Zone.ini"_s), content);
}

void tst_ExactKeys::AnotherZoneHasAnotherIdentifier() {
    ZoneFile file(Exact + "Time Zone Id=America/New_York\r\n" + Keys("Office", 300));
    mduTimeZones::WriteZoneKeys(file.Machine.Services, file.Paths, file.Properties,
                                u"Tokyo Standard Time"_s, file.Path);
    QCOMPARE(file.Stored(u"Time Zone Id"_s), u"Asia/Tokyo"_s);
    QCOMPARE(file.Load(u"Tokyo Standard Time"_s).ExactId, u"Asia/Tokyo"_s);

    mduTimeZones::PutZoneKeys(file.Machine.Services, file.Paths, file.Properties,
                              u"Eastern Standard Time"_s);
    QCOMPARE(file.Load(u"Eastern Standard Time"_s).ExactId, u"America/New_York"_s);
}

// Vancouver, told by hand, in the file of a zone of that name.
void tst_ExactKeys::TheSameZoneKeepsItsIdentifier() {
    ZoneFile file(Exact + "Time Zone Id=America/Vancouver\r\n" +
                  Keys("Pacific Standard Time", 480));
    mduTimeZones::WriteZoneKeys(file.Machine.Services, file.Paths, file.Properties,
                                u"Pacific Standard Time"_s, file.Path);
    QCOMPARE(file.Load(u"Pacific Standard Time"_s).ExactId, u"America/Vancouver"_s);
}

// Nobody's but the user's own.
void tst_ExactKeys::AZoneWithoutANameKeepsItsIdentifier() {
    ZoneFile file(Exact + "Time Zone Id=America/Vancouver\r\n");
    mduTimeZones::WriteZoneKeys(file.Machine.Services, file.Paths, file.Properties,
                                u"Pacific Standard Time"_s, file.Path);
    QCOMPARE(file.Load(u"Pacific Standard Time"_s).ExactId, u"America/Vancouver"_s);
}

void tst_ExactKeys::CopiesTheIdentifierWithTheZone() {
    ZoneFile file(Exact + "Time Zone Id=Asia/Tokyo\r\n" + Keys("Home", -540));
    ZoneFile other(Exact + "Time Zone Id=America/New_York\r\n" + Keys("Office", 300));
    mduTimeZones::CopyZoneKeys(file.Properties, other.Properties);
    QCOMPARE(mduTimeZones::ZoneKeyValue(other.Properties, u"Time Zone Id"_s), u"Asia/Tokyo"_s);
    ZoneFile plain(Keys("Town", -345));
    mduTimeZones::CopyZoneKeys(plain.Properties, other.Properties);
    QCOMPARE(mduTimeZones::ZoneKeyValue(other.Properties, u"Time Zone Id"_s), QString());
    QCOMPARE(mduTimeZones::ZoneKeyValue(other.Properties, u"Time Zone Rules"_s), u"Exact"_s);
}

QTEST_GUILESS_MAIN(tst_ExactKeys)
#include "tst_ExactKeys.moc"
