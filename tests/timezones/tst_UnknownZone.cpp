#include <QTest>

#include "support/FakeServices.h"
#include "timezones/UnknownZone.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;

namespace {

const std::vector<CalledZone> Zones = {
    {u"Russian Standard Time"_s, {u"Moscow"_s, u"Saint Petersburg"_s, u"Russian"_s}},
    {u"Tokyo Standard Time"_s, {u"Japan"_s, u"Tokyo"_s, u"Osaka"_s}},
    {u"E. South America Standard Time"_s, {u"Brazil"_s, u"São Paulo"_s}},
    {u"Osaka"_s, {}},
    {u"Oslo"_s, {}},
};

/// A machine with a database of two zones, a profile and a folder of the user's zone files.
struct Machine {
    Machine() {
        Fake.Zones.Add(u"Tokyo Standard Time"_s, -540);
        Fake.Zones.CountryNames[u"Tokyo Standard Time"_s] = {u"Japan"_s};
        Fake.Zones.Add(u"Nepal Standard Time"_s, -345);
        Fake.WriteFile(u"Timezones/Lyon.ini"_s, "Time Zone Standard Name=Lyon\r\n");
        Paths.ProfileFolder = Fake.AppFolder() + u"/Timezones/"_s;
        Paths.ZoneFileFolder = Fake.AppFolder() + u"/tester/TimeZones/"_s;
    }

    QString Notice(const QString& name) const {
        return UnknownZoneNotice(Fake.Services, Paths, name);
    }

    FakeServices Fake;
    PathTable Paths;
};

}  // namespace

class tst_UnknownZone : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsTheNearest_data();
    void FindsTheNearest();
    void TellsOfANameThatNoZoneHas_data();
    void TellsOfANameThatNoZoneHas();
    void AFileOfItsOwnIsEnough_data();
    void AFileOfItsOwnIsEnough();
    void AnExtensionIsNoneOfTheName();
};

void tst_UnknownZone::FindsTheNearest_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("nearest");
    QTest::newRow("small letters") << u"tokyo standard time"_s << u"Tokyo Standard Time"_s;
    QTest::newRow("city") << u"tokyo"_s << u"Tokyo Standard Time"_s;
    QTest::newRow("country") << u"JAPAN"_s << u"Tokyo Standard Time"_s;
    QTest::newRow("two letters off") << u"Tkoyo"_s << u"Tokyo Standard Time"_s;
    QTest::newRow("a letter too much") << u"Mosscow"_s << u"Russian Standard Time"_s;
    QTest::newRow("a letter missing") << u"mosow"_s << u"Russian Standard Time"_s;
    QTest::newRow("without its accent") << u"Sao Paolo"_s << u"E. South America Standard Time"_s;
    QTest::newRow("blanks") << u"  saint   petersburg "_s << u"Russian Standard Time"_s;
    QTest::newRow("the first of two") << u"osaka"_s << u"Tokyo Standard Time"_s;
    QTest::newRow("the second is nearer") << u"Oslow"_s << u"Oslo"_s;
    QTest::newRow("a third of the letters") << u"sxintxpextersbxrg"_s << u"Russian Standard Time"_s;
    QTest::newRow("three letters off") << u"txxxo"_s << QString();
    QTest::newRow("two letters, one off") << u"ol"_s << QString();
    QTest::newRow("one letter") << u"o"_s << QString();
    QTest::newRow("nothing alike") << u"Nowhere"_s << QString();
    QTest::newRow("nothing") << QString() << QString();
}

void tst_UnknownZone::FindsTheNearest() {
    QFETCH(QString, typed);
    QTEST(NearestZoneName(typed, Zones), "nearest");
}

void tst_UnknownZone::TellsOfANameThatNoZoneHas_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("notice");
    const QString known;
    QTest::newRow("zone") << u"Tokyo Standard Time"_s << known;
    QTest::newRow("profile") << u"Lyon"_s << known;
    const auto row = [](const QString& name, const QString& nearest) {
        QTest::newRow(qPrintable(name))
            << name << u"No time zone is called \""_s + name + u"\": it counts as GMT"_s + nearest;
    };
    row(u"tokyo"_s, u". The nearest is \"Tokyo Standard Time\""_s);
    row(u"japan"_s, u". The nearest is \"Tokyo Standard Time\""_s);
    row(u"nepal"_s, u". The nearest is \"Nepal Standard Time\""_s);
    row(u"lyons"_s, u". The nearest is \"Lyon\""_s);
    row(u"100% x"_s, {});
}

void tst_UnknownZone::TellsOfANameThatNoZoneHas() {
    QFETCH(QString, name);
    const Machine machine;
    QTEST(machine.Notice(name), "notice");
}

void tst_UnknownZone::AFileOfItsOwnIsEnough_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("told");
    QTest::newRow("no keys") << QByteArray("Clock:Clocks=Analogue\r\n") << true;
    QTest::newRow("GMT") << QByteArray("Time Zone Standard GMT (Minutes)=0\r\n") << true;
    QTest::newRow("another time") << QByteArray("Time Zone Standard GMT (Minutes)=-90\r\n")
                                  << false;
    QTest::newRow("another time in summer")
        << QByteArray("Time Zone Daylight GMT (Minutes)=-60\r\n") << false;
}

void tst_UnknownZone::AFileOfItsOwnIsEnough() {
    QFETCH(QByteArray, file);
    QFETCH(bool, told);
    Machine machine;
    machine.Fake.WriteFile(u"tester/TimeZones/Ours.ini"_s, file);
    QCOMPARE(!UnknownClockNotice(machine.Fake.Services, machine.Paths, u"Ours"_s).isEmpty(), told);
    QCOMPARE(machine.Fake.ReadFile(u"tester/TimeZones/Ours.ini"_s), file);
    QVERIFY(!UnknownClockNotice(machine.Fake.Services, machine.Paths, u"a/b"_s).isEmpty());
}

// A clock may be named by its file, too.
void tst_UnknownZone::AnExtensionIsNoneOfTheName() {
    const Machine machine;
    for (const QString& name : {u"Tokyo Standard Time.ini"_s, u"Nepal Standard Time.INI"_s}) {
        QCOMPARE(UnknownClockNotice(machine.Fake.Services, machine.Paths, name), QString());
    }
    QVERIFY(UnknownClockNotice(machine.Fake.Services, machine.Paths, u"tokyo.ini"_s)
                .startsWith(u"No time zone is called \"tokyo\":"_s));
}

QTEST_GUILESS_MAIN(tst_UnknownZone)
#include "tst_UnknownZone.moc"
