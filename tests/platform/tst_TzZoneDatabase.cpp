#include <QFile>
#include <QTest>
#include <QTimeZone>
#include <QtEndian>

#include "platform/SimulatedClock.h"
#include "platform/TzAliases.h"
#include "platform/TzFolder.h"
#include "platform/TzWindowsZones.h"
#include "platform/TzZoneDatabase.h"

using namespace Qt::StringLiterals;
using platform::SYSTEMTIME;
using platform::TzZoneDatabase;

namespace {

/// A machine in that zone, at a reading of its own clock.
struct Machine {
    Machine(const QByteArray& iana, const QDate& date, const QTime& time = QTime(12, 0))
        : Clock(QDateTime(date, time, Qt::UTC), platform::TzZone(iana)), Zones(Clock, iana) {}

    void SetDate(const QDate& date) { Clock.SetNow(QDateTime(date, QTime(12, 0), Qt::UTC)); }

    platform::SimulatedClock Clock;
    TzZoneDatabase Zones;
};

struct Tzi {
    int Bias = 0;
    int StandardBias = 0;
    int DaylightBias = 0;
    SYSTEMTIME StandardDate;
    SYSTEMTIME DaylightDate;
};

SYSTEMTIME DateAt(const QByteArray& bytes, int offset) {
    const auto field = [&](int index) {
        return qFromLittleEndian<qint16>(bytes.constData() + offset + 2 * index);
    };
    return {field(0), field(1), field(2), field(3), field(4), field(5), field(6), field(7)};
}

Tzi TziOf(const TzZoneDatabase& zones, const QString& subkey) {
    const QByteArray bytes = zones.TziValue(subkey).value_or(QByteArray());
    if (bytes.size() != 44) {
        return {};
    }
    const auto number = [&](int offset) {
        return qFromLittleEndian<qint32>(bytes.constData() + offset);
    };
    return {number(0), number(4), number(8), DateAt(bytes, 12), DateAt(bytes, 28)};
}

QStringList Subkeys(const TzZoneDatabase& zones) {
    QStringList names;
    while (const auto name = zones.SubkeyName(static_cast<int>(names.size()))) {
        names.append(*name);
    }
    return names;
}

const SYSTEMTIME None;

/// Every zone and link of the tests' database.
QList<QByteArray> KnownIdentifiers() {
    QList<QByteArray> identifiers;
    for (const QByteArray& line : platform::TzFile(u"tzdata.zi"_s).split('\n')) {
        const QList<QByteArray> words = line.split('\t');
        if (words[0] == "Zone" || words[0] == "Link") {
            identifiers += words[words[0] == "Zone" ? 1 : 2];
        }
    }
    return identifiers;
}

/// A clock whose offset is of no zone.
struct OffsetClock final : platform::WallClock {
    explicit OffsetClock(int offset) : Offset(offset) {}

    QDateTime Now() const override {
        return QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC).addSecs(Offset);
    }
    int OffsetFromGmt() const override { return Offset; }
    std::unique_ptr<platform::Ticker> MakeTicker(std::function<void()>) override { return {}; }

    int Offset;
};

}  // namespace

class tst_TzZoneDatabase : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HoldsEveryNamedZone();
    void EveryZoneCanBeRead();
    void EveryCityKeepsItsZonesTime();
    void TellsTexts_data();
    void TellsTexts();
    void RefusesOtherNames();
    void TellsRules_data();
    void TellsRules();
    void FollowsTheYear();
    void OneChange_data();
    void OneChange();
    void FourChanges_data();
    void FourChanges();
    void FindsNamesOfAliases_data();
    void FindsNamesOfAliases();
    void GoesBackToPresentNames();
    void LocalZone_data();
    void LocalZone();
    void LocalBiases();
    void LocalSubkey_data();
    void LocalSubkey();
    void ExtraSubkeyStandsLast();
    void ExtraSubkeyGoesWithItsYear();
    void UnusableLocalZoneIsUtc_data();
    void UnusableLocalZoneIsUtc();
    void NamelessLocalZone_data();
    void NamelessLocalZone();
    void NamelessZoneFollowsTheClock();
    void MachineUnderAWrongName();
    void MachineUnderAWrongNameWithDaylightTime();
};

void tst_TzZoneDatabase::HoldsEveryNamedZone() {
    const Machine machine("Etc/UTC", QDate(2026, 6, 15));
    const QStringList names = Subkeys(machine.Zones);
    QSet<QString> named;
    for (const QByteArray& iana : QTimeZone::availableTimeZoneIds()) {
        named.insert(QString::fromUtf8(QTimeZone::ianaIdToWindowsId(iana)));
    }
    for (const char* older : {"Asia/Calcutta", "Asia/Katmandu", "America/Godthab", "Asia/Rangoon",
                              "Europe/Kiev", "Etc/UTC", "Etc/GMT", "Etc/GMT+12", "Etc/GMT-14"}) {
        named.insert(QString::fromUtf8(QTimeZone::ianaIdToWindowsId(older)));
    }
    named.remove(QString());
    for (const QString& name : named) {
        QVERIFY2(names.contains(name), qPrintable(name));
    }
    QCOMPARE(QSet<QString>(names.begin(), names.end()), named);
    QCOMPARE(names.size(), 139);
}

void tst_TzZoneDatabase::EveryZoneCanBeRead() {
    const Machine machine("Etc/UTC", QDate(2026, 6, 15));
    for (const QString& name : Subkeys(machine.Zones)) {
        QVERIFY2(name.size() <= 31, qPrintable(name));
        const QByteArray iana = QTimeZone::windowsIdToDefaultIanaId(name.toUtf8());
        QVERIFY2(platform::TzZone(iana).isValid(), qPrintable(name));
        QCOMPARE(machine.Zones.IanaOf(name), iana);
        QCOMPARE(machine.Zones.TziValue(name).value_or(QByteArray()).size(), 44);
        QCOMPARE(machine.Zones.TextValue(name, u"Std"_s), name);
        QVERIFY(machine.Zones.TextValue(name, u"Display"_s)->startsWith(u"(GMT"_s));
    }
}

// A city that the tz database names must keep the time of the zone that it stands under.
void tst_TzZoneDatabase::EveryCityKeepsItsZonesTime() {
    QHash<QString, QByteArray> cities;
    for (const QByteArray& iana : KnownIdentifiers()) {
        const QString city = QString::fromUtf8(iana.mid(iana.lastIndexOf('/') + 1));
        cities.insert(QString(city).replace(u'_', u' '), iana);
    }
    int found = 0;
    for (const platform::TzWindowsZone& zone : platform::TzWindowsZones()) {
        const QTimeZone usual =
            platform::TzZone(QTimeZone::windowsIdToDefaultIanaId(zone.Name.toUtf8()));
        for (const QString& city : zone.Cities.split(u", "_s)) {
            if (!cities.contains(city)) {
                continue;
            }
            ++found;
            const QTimeZone own = platform::TzZone(cities[city]);
            for (QDateTime noon(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC);
                 noon.date().year() == 2026; noon = noon.addDays(1)) {
                QVERIFY2(own.offsetFromUtc(noon) == usual.offsetFromUtc(noon), qPrintable(city));
            }
        }
    }
    QVERIFY(found > 100);
}

void tst_TzZoneDatabase::TellsTexts_data() {
    QTest::addColumn<QString>("subkey");
    QTest::addColumn<QString>("daylightName");
    QTest::addColumn<QString>("display");
    QTest::newRow("west, in winter's offset")
        << u"Eastern Standard Time"_s << u"Eastern Daylight Time"_s
        << u"(GMT-05:00) New York, Toronto, Washington, Miami, Montréal"_s;
    QTest::newRow("east") << u"Nepal Standard Time"_s << u"Nepal Daylight Time"_s
                          << u"(GMT+05:45) Kathmandu, Pokhara"_s;
    QTest::newRow("half an hour west")
        << u"Newfoundland Standard Time"_s << u"Newfoundland Daylight Time"_s
        << u"(GMT-03:30) St. John’s"_s;
    QTest::newRow("zero, no such word")
        << u"UTC"_s << u"UTC"_s << u"(GMT+00:00) Coordinated Universal Time"_s;
    QTest::newRow("word in the middle")
        << u"Central Standard Time (Mexico)"_s << u"Central Daylight Time (Mexico)"_s
        << u"(GMT-06:00) Mexico City, Guadalajara, Monterrey"_s;
    QTest::newRow("negative daylight time")
        << u"Morocco Standard Time"_s << u"Morocco Daylight Time"_s
        << u"(GMT+00:00) Casablanca, Rabat, Marrakesh"_s;
}

void tst_TzZoneDatabase::TellsTexts() {
    QFETCH(QString, subkey);
    QFETCH(QString, daylightName);
    QFETCH(QString, display);
    const Machine machine("Etc/UTC", QDate(2026, 7, 1));
    QCOMPARE(machine.Zones.TextValue(subkey, u"Std"_s), subkey);
    QCOMPARE(machine.Zones.TextValue(subkey, u"Dlt"_s), daylightName);
    QCOMPARE(machine.Zones.TextValue(subkey, u"Display"_s), display);
}

void tst_TzZoneDatabase::RefusesOtherNames() {
    const Machine machine("Etc/UTC", QDate(2026, 6, 15));
    for (const QString& name : {QString(), u"Europe/London"_s, u"London"_s, u"utc"_s, u"/s"_s}) {
        QVERIFY(!machine.Zones.TextValue(name, u"Std"_s));
        QVERIFY(!machine.Zones.TziValue(name));
        QCOMPARE(machine.Zones.IanaOf(name), QByteArray());
    }
    QVERIFY(!machine.Zones.TextValue(u"UTC"_s, u"TZI"_s));
    QVERIFY(!machine.Zones.SubkeyName(-1));
    QVERIFY(!machine.Zones.SubkeyName(139));
    QCOMPARE(machine.Zones.Open(), platform::ZoneRoot::Opened);
    QVERIFY(machine.Zones.IsWindowsNT());
}

void tst_TzZoneDatabase::TellsRules_data() {
    QTest::addColumn<QString>("subkey");
    QTest::addColumn<int>("bias");
    QTest::addColumn<int>("daylightBias");
    QTest::addColumn<SYSTEMTIME>("standardDate");
    QTest::addColumn<SYSTEMTIME>("daylightDate");
    QTest::newRow("last Sundays are rules")
        << u"GMT Standard Time"_s << 0 << -60 << SYSTEMTIME{0, 10, 0, 5, 2, 0, 0, 0}
        << SYSTEMTIME{0, 3, 0, 5, 1, 0, 0, 0};
    QTest::newRow("other Sundays are dates")
        << u"Eastern Standard Time"_s << 300 << -60 << SYSTEMTIME{2026, 11, 0, 1, 2, 0, 0, 0}
        << SYSTEMTIME{2026, 3, 0, 8, 2, 0, 0, 0};
    QTest::newRow("south") << u"AUS Eastern Standard Time"_s << -600 << -60
                           << SYSTEMTIME{2026, 4, 0, 5, 3, 0, 0, 0}
                           << SYSTEMTIME{2026, 10, 0, 4, 2, 0, 0, 0};
    QTest::newRow("half an hour of daylight time")
        << u"Lord Howe Standard Time"_s << -630 << -30 << SYSTEMTIME{2026, 4, 0, 5, 2, 0, 0, 0}
        << SYSTEMTIME{2026, 10, 0, 4, 2, 0, 0, 0};
    QTest::newRow("24:00 on Thursday is Friday")
        << u"Egypt Standard Time"_s << -120 << -60 << SYSTEMTIME{0, 10, 5, 5, 0, 0, 0, 0}
        << SYSTEMTIME{0, 4, 5, 5, 0, 0, 0, 0};
    QTest::newRow("the evening before")
        << u"Greenland Standard Time"_s << 120 << -60 << SYSTEMTIME{0, 10, 0, 5, 0, 0, 0, 0}
        << SYSTEMTIME{0, 3, 6, 5, 23, 0, 0, 0};
    QTest::newRow("Friday before the last Sunday")
        << u"Israel Standard Time"_s << -120 << -60 << SYSTEMTIME{0, 10, 0, 5, 2, 0, 0, 0}
        << SYSTEMTIME{0, 3, 5, 5, 2, 0, 0, 0};
    QTest::newRow("no daylight time") << u"India Standard Time"_s << -330 << 0 << None << None;
    QTest::newRow("Date Line") << u"Dateline Standard Time"_s << 720 << 0 << None << None;
}

void tst_TzZoneDatabase::TellsRules() {
    QFETCH(QString, subkey);
    const Machine machine("Etc/UTC", QDate(2026, 6, 15));
    const Tzi tzi = TziOf(machine.Zones, subkey);
    QTEST(tzi.Bias, "bias");
    QCOMPARE(tzi.StandardBias, 0);
    QTEST(tzi.DaylightBias, "daylightBias");
    QTEST(tzi.StandardDate, "standardDate");
    QTEST(tzi.DaylightDate, "daylightDate");
}

void tst_TzZoneDatabase::FollowsTheYear() {
    Machine machine("Etc/UTC", QDate(2026, 12, 31));
    const QString eastern = u"Eastern Standard Time"_s;
    QCOMPARE(TziOf(machine.Zones, eastern).DaylightDate, (SYSTEMTIME{2026, 3, 0, 8, 2, 0, 0, 0}));
    machine.SetDate(QDate(2027, 1, 1));
    QCOMPARE(TziOf(machine.Zones, eastern).DaylightDate, (SYSTEMTIME{2027, 3, 0, 14, 2, 0, 0, 0}));
    // Before 2007 it was the first Sunday of April and the last of October.
    machine.SetDate(QDate(2006, 6, 1));
    QCOMPARE(TziOf(machine.Zones, eastern).DaylightDate, (SYSTEMTIME{2006, 4, 0, 2, 2, 0, 0, 0}));
    QCOMPARE(TziOf(machine.Zones, eastern).StandardDate, (SYSTEMTIME{0, 10, 0, 5, 2, 0, 0, 0}));
    machine.SetDate(QDate(2050, 6, 1));
    QCOMPARE(TziOf(machine.Zones, eastern).DaylightDate, (SYSTEMTIME{2050, 3, 0, 13, 2, 0, 0, 0}));
}

void tst_TzZoneDatabase::OneChange_data() {
    QTest::addColumn<QString>("subkey");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("bias");
    QTest::addColumn<int>("daylightBias");
    QTest::addColumn<SYSTEMTIME>("standardDate");
    QTest::addColumn<SYSTEMTIME>("daylightDate");
    // Argentina went back for good on 15 March 2009.
    for (const int month : {1, 6, 12}) {
        QTest::addRow("backward, month %d", month)
            << u"Argentina Standard Time"_s << QDate(2009, month, 10) << 180 << -60
            << SYSTEMTIME{2009, 3, 0, 15, 0, 0, 0, 0} << SYSTEMTIME{2008, 1, 2, 1, 0, 0, 0, 0};
    }
    // Russia went forward for good on 27 March 2011, and back on 26 October 2014.
    QTest::newRow("forward") << u"Russian Standard Time"_s << QDate(2011, 6, 10) << -180 << -60
                             << SYSTEMTIME{2012, 12, 1, 31, 0, 0, 0, 0}
                             << SYSTEMTIME{2011, 3, 0, 27, 2, 0, 0, 0};
    QTest::newRow("backward again")
        << u"Russian Standard Time"_s << QDate(2014, 6, 10) << -180 << -60
        << SYSTEMTIME{2014, 10, 0, 26, 2, 0, 0, 0} << SYSTEMTIME{2013, 1, 2, 1, 0, 0, 0, 0};
}

void tst_TzZoneDatabase::OneChange() {
    QFETCH(QString, subkey);
    QFETCH(QDate, date);
    const Machine machine("Etc/UTC", date);
    const Tzi tzi = TziOf(machine.Zones, subkey);
    QTEST(tzi.Bias, "bias");
    QTEST(tzi.DaylightBias, "daylightBias");
    QTEST(tzi.StandardDate, "standardDate");
    QTEST(tzi.DaylightDate, "daylightDate");
}

void tst_TzZoneDatabase::FourChanges_data() {
    QTest::addColumn<QDate>("date");
    QTest::addColumn<SYSTEMTIME>("standardDate");
    QTest::addColumn<SYSTEMTIME>("daylightDate");
    // Egypt in 2014: daylight time from 15 May, with a pause from 26 June to 31 July for Ramadan.
    const SYSTEMTIME may = {2014, 5, 5, 16, 0, 0, 0, 0};
    const SYSTEMTIME june = {2014, 6, 5, 27, 0, 0, 0, 0};
    const SYSTEMTIME august = {2014, 8, 5, 1, 0, 0, 0, 0};
    const SYSTEMTIME september = {2014, 9, 5, 26, 0, 0, 0, 0};
    QTest::newRow("spring") << QDate(2014, 2, 1) << june << may;
    QTest::newRow("first half") << QDate(2014, 6, 1) << june << may;
    QTest::newRow("the pause") << QDate(2014, 7, 15) << september << august;
    QTest::newRow("second half") << QDate(2014, 9, 1) << september << august;
    QTest::newRow("autumn") << QDate(2014, 11, 1) << september << august;
}

void tst_TzZoneDatabase::FourChanges() {
    QFETCH(QDate, date);
    const Machine machine("Etc/UTC", date);
    const Tzi tzi = TziOf(machine.Zones, u"Egypt Standard Time"_s);
    QCOMPARE(tzi.Bias, -120);
    QCOMPARE(tzi.DaylightBias, -60);
    QTEST(tzi.StandardDate, "standardDate");
    QTEST(tzi.DaylightDate, "daylightDate");
}

void tst_TzZoneDatabase::FindsNamesOfAliases_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QString>("name");
    QTest::newRow("renamed") << QByteArray("Asia/Kolkata") << u"India Standard Time"_s;
    QTest::newRow("as of old") << QByteArray("Asia/Calcutta") << u"India Standard Time"_s;
    QTest::newRow("Nepal") << QByteArray("Asia/Kathmandu") << u"Nepal Standard Time"_s;
    QTest::newRow("Greenland") << QByteArray("America/Nuuk") << u"Greenland Standard Time"_s;
    QTest::newRow("link") << QByteArray("US/Pacific") << u"Pacific Standard Time"_s;
    QTest::newRow("short") << QByteArray("UTC") << u"UTC"_s;
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("no name") << QByteArray("Antarctica/Troll") << QString();
}

void tst_TzZoneDatabase::FindsNamesOfAliases() {
    QFETCH(QByteArray, iana);
    QTEST(platform::TzWindowsName(iana), "name");
}

void tst_TzZoneDatabase::GoesBackToPresentNames() {
    QCOMPARE(platform::TzPresentId("Asia/Calcutta"), QByteArray("Asia/Kolkata"));
    QCOMPARE(platform::TzPresentId("Europe/London"), QByteArray());
    QCOMPARE(platform::TzDefaultIana(u"No Such Time"_s), QByteArray());
}

void tst_TzZoneDatabase::LocalZone_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("name");
    const QDate january(2026, 1, 15);
    const QDate july(2026, 7, 15);
    QTest::newRow("no daylight time")
        << QByteArray("Asia/Kolkata") << july << 0 << u"India Standard Time"_s;
    QTest::newRow("UTC") << QByteArray("Etc/UTC") << july << 0 << u"UTC"_s;
    QTest::newRow("northern winter")
        << QByteArray("America/New_York") << january << 1 << u"Eastern Standard Time"_s;
    QTest::newRow("northern summer")
        << QByteArray("America/New_York") << july << 2 << u"Eastern Standard Time"_s;
    QTest::newRow("southern summer")
        << QByteArray("Australia/Sydney") << january << 2 << u"AUS Eastern Standard Time"_s;
    QTest::newRow("southern winter")
        << QByteArray("Australia/Sydney") << july << 1 << u"AUS Eastern Standard Time"_s;
    QTest::newRow("negative daylight time in winter")
        << QByteArray("Europe/Dublin") << january << 1 << u"GMT Standard Time"_s;
    QTest::newRow("negative daylight time in summer")
        << QByteArray("Europe/Dublin") << july << 2 << u"GMT Standard Time"_s;
    QTest::newRow("Ramadan") << QByteArray("Africa/Casablanca") << QDate(2026, 3, 1) << 1
                             << u"Morocco Standard Time"_s;
    QTest::newRow("after one change")
        << QByteArray("Europe/Moscow") << QDate(2011, 7, 1) << 2 << u"Russian Standard Time"_s;
    QTest::newRow("before one change")
        << QByteArray("Europe/Moscow") << QDate(2011, 1, 7) << 1 << u"Russian Standard Time"_s;
    QTest::newRow("no such name") << QByteArray("Antarctica/Troll") << july << 2 << u"Troll"_s;
}

void tst_TzZoneDatabase::LocalZone() {
    QFETCH(QByteArray, iana);
    QFETCH(QDate, date);
    QFETCH(QString, name);
    const Machine machine(iana, date);
    const platform::TimeZoneInformation information = machine.Zones.GetTimeZoneInformation();
    QTEST(information.Result, "result");
    QCOMPARE(information.StandardName, name);
    QCOMPARE(machine.Zones.LocalStandardName(), name);
    QCOMPARE(machine.Zones.TextValue(name, u"Std"_s), name);
}

void tst_TzZoneDatabase::LocalBiases() {
    const Machine dublin("Europe/Dublin", QDate(2026, 7, 15));
    const platform::TimeZoneInformation information = dublin.Zones.GetTimeZoneInformation();
    QCOMPARE(information.Bias, 0);
    QCOMPARE(information.StandardBias, 0);
    QCOMPARE(information.DaylightBias, -60);
    QCOMPARE(information.DaylightName, u"GMT Daylight Time"_s);
    QCOMPARE(information.StandardDate, (SYSTEMTIME{0, 10, 0, 5, 2, 0, 0, 0}));
    QCOMPARE(information.DaylightDate, (SYSTEMTIME{0, 3, 0, 5, 1, 0, 0, 0}));

    const Machine troll("Antarctica/Troll", QDate(2026, 7, 15));
    QCOMPARE(troll.Zones.GetTimeZoneInformation().DaylightBias, -120);
}

void tst_TzZoneDatabase::LocalSubkey_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("subkeys");
    QTest::newRow("its zone's own city")
        << QByteArray("Europe/Berlin") << u"W. Europe Standard Time"_s << 139;
    QTest::newRow("the same time as its zone")
        << QByteArray("Europe/Rome") << u"W. Europe Standard Time"_s << 139;
    QTest::newRow("parted from its zone in 2026")
        << QByteArray("America/Vancouver") << u"Vancouver"_s << 140;
    QTest::newRow("another offset") << QByteArray("Asia/Bishkek") << u"Bishkek"_s << 140;
    QTest::newRow("no name") << QByteArray("Antarctica/Troll") << u"Troll"_s << 140;
    QTest::newRow("two words") << QByteArray("America/Ciudad_Juarez") << u"Ciudad Juarez"_s << 140;
    QTest::newRow("no city") << QByteArray("CET") << u"CET"_s << 140;
}

void tst_TzZoneDatabase::LocalSubkey() {
    QFETCH(QByteArray, iana);
    QFETCH(QString, name);
    const Machine machine(iana, QDate(2026, 6, 15));
    QCOMPARE(machine.Zones.LocalStandardName(), name);
    QTEST(static_cast<int>(Subkeys(machine.Zones).size()), "subkeys");
    QVERIFY(Subkeys(machine.Zones).contains(name));
}

void tst_TzZoneDatabase::ExtraSubkeyStandsLast() {
    const Machine machine("Asia/Bishkek", QDate(2026, 6, 15));
    QCOMPARE(machine.Zones.SubkeyName(139), u"Bishkek"_s);
    QVERIFY(!machine.Zones.SubkeyName(140));
    QCOMPARE(machine.Zones.IanaOf(u"Bishkek"_s), QByteArray("Asia/Bishkek"));
    QCOMPARE(machine.Zones.TextValue(u"Bishkek"_s, u"Dlt"_s), u"Bishkek"_s);
    QCOMPARE(machine.Zones.TextValue(u"Bishkek"_s, u"Display"_s), u"(GMT+06:00) Bishkek"_s);
    QCOMPARE(TziOf(machine.Zones, u"Bishkek"_s).Bias, -360);
    QCOMPARE(TziOf(machine.Zones, u"Central Asia Standard Time"_s).Bias, -300);
    QCOMPARE(machine.Zones.GetTimeZoneInformation().Result, 0);
}

// Until 2025 Vancouver kept the time of Los Angeles.
void tst_TzZoneDatabase::ExtraSubkeyGoesWithItsYear() {
    Machine machine("America/Vancouver", QDate(2025, 6, 15));
    QCOMPARE(machine.Zones.LocalStandardName(), u"Pacific Standard Time"_s);
    QVERIFY(!machine.Zones.TextValue(u"Vancouver"_s, u"Std"_s));
    machine.SetDate(QDate(2026, 6, 15));
    QCOMPARE(machine.Zones.LocalStandardName(), u"Vancouver"_s);
    QCOMPARE(machine.Zones.TextValue(u"Vancouver"_s, u"Std"_s), u"Vancouver"_s);
    machine.SetDate(QDate(2025, 6, 15));
    QVERIFY(!machine.Zones.SubkeyName(139));
}

void tst_TzZoneDatabase::UnusableLocalZoneIsUtc_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << QByteArray("Nowhere/Land") << u"UTC"_s;
    QTest::newRow("garbage") << QByteArray("\xff\x01/..") << u"UTC"_s;
    QTest::newRow("as the environment tells it")
        << QByteArray(":Europe/Paris") << u"Romance Standard Time"_s;
    QTest::newRow("full path") << QByteArray("/usr/share/zoneinfo/Europe/Paris")
                               << u"Romance Standard Time"_s;
}

void tst_TzZoneDatabase::UnusableLocalZoneIsUtc() {
    QFETCH(QByteArray, iana);
    const platform::SimulatedClock clock(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC),
                                         QTimeZone::utc());
    const TzZoneDatabase zones(clock, iana);
    QTEST(zones.LocalStandardName(), "name");
    const TzZoneDatabase machine(clock);
    QVERIFY(Subkeys(machine).contains(machine.LocalStandardName()));
}

void tst_TzZoneDatabase::NamelessLocalZone_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("bias");
    QTest::addColumn<QString>("display");
    QTest::newRow("copy of a zone's file")
        << ":/copy/of/zonefile"_ba << 3600 << -60 << u"(GMT+01:00) Local time"_s;
    QTest::newRow("unknown, west")
        << "Nowhere/Land"_ba << -12600 << 210 << u"(GMT-03:30) Local time"_s;
    QTest::newRow("garbage") << "\xff\x01/.."_ba << 20700 << -345 << u"(GMT+05:45) Local time"_s;
    QTest::newRow("farther than any zone")
        << "Nowhere/Land"_ba << 72000 << -1200 << u"(GMT+20:00) Local time"_s;
}

void tst_TzZoneDatabase::NamelessLocalZone() {
    QFETCH(QByteArray, iana);
    QFETCH(int, offset);
    const OffsetClock clock(offset);
    const TzZoneDatabase zones(clock, iana);
    const platform::TimeZoneInformation information = zones.GetTimeZoneInformation();
    QCOMPARE(information.Result, 1);
    QTEST(static_cast<int>(information.Bias), "bias");
    QCOMPARE(information.StandardBias, 0);
    QCOMPARE(information.StandardDate, None);
    QCOMPARE(information.StandardName, u"Local time"_s);
    QCOMPARE(zones.LocalStandardName(), u"Local time"_s);
    QCOMPARE(zones.SubkeyName(139), u"Local time"_s);
    QTEST(TziOf(zones, u"Local time"_s).Bias, "bias");
    QTEST(zones.TextValue(u"Local time"_s, u"Display"_s).value_or(QString()), "display");
    QCOMPARE(TziOf(zones, u"Tokyo Standard Time"_s).Bias, -540);
}

// Nothing but the clock knows when such a zone keeps daylight time.
void tst_TzZoneDatabase::NamelessZoneFollowsTheClock() {
    OffsetClock clock(0);
    const TzZoneDatabase zones(clock, "CET-1CEST");
    QCOMPARE(zones.LocalStandardName(), u"UTC"_s);
    QCOMPARE(zones.GetTimeZoneInformation().Result, 0);
    for (const int hours : {1, 2}) {
        clock.Offset = hours * 3600;
        QCOMPARE(zones.LocalStandardName(), u"Local time"_s);
        QCOMPARE(zones.GetTimeZoneInformation().Bias, -60 * hours);
    }
    clock.Offset = 0;
    QCOMPARE(zones.LocalStandardName(), u"UTC"_s);
    QVERIFY(!zones.SubkeyName(139));
}

// A copied zone file leaves the machine's zone under a name of another time, such as "UTC".
void tst_TzZoneDatabase::MachineUnderAWrongName() {
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "Asia/Tokyo");
    OffsetClock clock(32400);
    const TzZoneDatabase zones(clock);
    qputenv("TZ", before);
    if (before.isEmpty()) {
        qunsetenv("TZ");
    }
    QCOMPARE(zones.LocalStandardName(), u"Tokyo Standard Time"_s);
    clock.Offset = 3600;
    QCOMPARE(zones.LocalStandardName(), u"Local time"_s);
    QCOMPARE(zones.GetTimeZoneInformation().Bias, -60);
}

// A zone with daylight time has two offsets in a year, and no other.
void tst_TzZoneDatabase::MachineUnderAWrongNameWithDaylightTime() {
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "America/New_York");
    OffsetClock clock(-18000);
    const TzZoneDatabase zones(clock);
    before.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", before);
    QCOMPARE(zones.LocalStandardName(), u"Eastern Standard Time"_s);
    clock.Offset = -14400;
    QCOMPARE(zones.LocalStandardName(), u"Eastern Standard Time"_s);
    clock.Offset = -10800;
    QCOMPARE(zones.LocalStandardName(), u"Local time"_s);
}

QTEST_GUILESS_MAIN(tst_TzZoneDatabase)
#include "tst_TzZoneDatabase.moc"
