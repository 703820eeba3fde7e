#include <QTest>
#include <QTimeZone>

#include "foundation/ClockProperty.h"
#include "platform/Services.h"
#include "platform/TzZoneDatabase.h"
#include "support/FakeServices.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;

namespace {

/// The wall clock of a machine in that zone at an instant. Unlike a reading, an instant is never
/// told twice.
class ClockIn final : public platform::WallClock {
public:
    explicit ClockIn(const QByteArray& iana) : zone_(iana) {}

    void SetInstant(const QDateTime& gmt) {
        instant_ = gmt;
        offset_ = zone_.offsetFromUtc(gmt);
    }
    QDateTime Now() const override { return instant_.addSecs(offset_); }
    int OffsetFromGmt() const override { return offset_; }
    std::unique_ptr<platform::Ticker> MakeTicker(std::function<void()>) override { return {}; }

private:
    QTimeZone zone_;
    QDateTime instant_ = QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);
    int offset_ = 0;
};

/// A machine in a zone of its own, with the real zone database.
struct MachineIn {
    explicit MachineIn(const QByteArray& iana) : Clock(iana), Zones(Clock, iana) {}

    FakeServices Fake;
    ClockIn Clock;
    platform::TzZoneDatabase Zones;
    platform::Services Services = Fake.Services.With(Clock, Zones);
};

struct NamedZone {
    QString Name;
    QTimeZone Zone;
};

std::vector<NamedZone> AllZones() {
    MachineIn machine("UTC");
    std::vector<NamedZone> zones;
    for (const TimeZoneRecord& record : ListWindowsTimeZones(machine.Services)) {
        if (!record.StandardName.isEmpty()) {
            const QByteArray name = record.StandardName.toUtf8();
            zones.push_back(
                {record.StandardName, QTimeZone(QTimeZone::windowsIdToDefaultIanaId(name))});
        }
    }
    return zones;
}

/// The instant at which that zone's own clock shows noon.
QDateTime NoonOf(const QTimeZone& zone, const QDate& date) {
    const QDateTime noon(date, QTime(12, 0), Qt::UTC);
    const QDateTime near = noon.addSecs(-zone.offsetFromUtc(noon));
    return noon.addSecs(-zone.offsetFromUtc(near));
}

/// Whether one of the zones changes its clock within two days of that noon.
bool IsNearChange(const QTimeZone& zone, const QDate& date) {
    const QDateTime noon(date, QTime(12, 0), Qt::UTC);
    return zone.offsetFromUtc(noon.addDays(-2)) != zone.offsetFromUtc(noon.addDays(2));
}

/// The days that are tried where not all are: those about each change of its clock or of the
/// machine's, the ends of the year, and every nineteenth.
bool IsTried(const QDate& date, const QTimeZone& zone, const QTimeZone& machine) {
    const int day = date.dayOfYear();
    return day % 19 == 0 || day < 3 || day > 363 || IsNearChange(zone, date) ||
           IsNearChange(machine, date);
}

/// What a clock of that name, opened now with an empty property file, shows.
QDateTime OpenedClock(const platform::Services& services, const QString& name) {
    const QDateTime now = services.Clock.Now();
    TimeZoneRecord record = FindTimeZone(services, PathTable(), name);
    ClockProperties properties;
    OverlayZoneKeys(record, properties, now);
    ApplyCurrentOffset(record, now, GetLocalZone(services).CurrentGMTHours);
    return GetClockTime(record, now);
}

}  // namespace

/// Every clock that is opened shows what the tz database says, wherever the machine stands.
class tst_ZoneClocks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // What holds for every edition is shown with the one that this machine has.
    void initTestCase() { qunsetenv("TZDIR"); }

    void AgreesAtNoon_data() {
        QTest::addColumn<QByteArray>("machine");
        QTest::addColumn<int>("year");
        QTest::addColumn<bool>("everyDay");
        const int present = QDate::currentDate().year();
        for (const char* machine : {"UTC", "America/New_York"}) {
            QTest::addRow("%s, the present year", machine)
                << QByteArray(machine) << present << true;
        }
        for (const char* machine :
             {"UTC", "America/New_York", "Europe/London", "Australia/Sydney", "Asia/Kolkata",
              "Pacific/Kiritimati", "Etc/GMT+12", "Africa/Casablanca", "Europe/Dublin",
              "America/Nuuk", "America/Vancouver", "Antarctica/Troll"}) {
            QTest::addRow("%s 2026", machine) << QByteArray(machine) << 2026 << false;
        }
        for (const char* machine : {"UTC", "America/New_York", "Australia/Sydney"}) {
            QTest::addRow("%s 2008", machine) << QByteArray(machine) << 2008 << false;
            QTest::addRow("%s 2030", machine) << QByteArray(machine) << 2030 << false;
        }
    }

    void AgreesAtNoon() {
        QFETCH(QByteArray, machine);
        QFETCH(int, year);
        QFETCH(bool, everyDay);
        MachineIn here(machine);
        const QTimeZone machineZone(machine);
        const std::vector<NamedZone> zones = AllZones();
        QVERIFY(zones.size() >= 139);
        for (const NamedZone& zone : zones) {
            for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1)) {
                if (!everyDay && !IsTried(date, zone.Zone, machineZone)) {
                    continue;
                }
                const QDateTime instant = NoonOf(zone.Zone, date);
                here.Clock.SetInstant(instant);
                const QDateTime expected = instant.addSecs(zone.Zone.offsetFromUtc(instant));
                const QDateTime shown = OpenedClock(here.Services, zone.Name);
                QVERIFY2(shown == expected,
                         qPrintable(zone.Name + u" at "_s + instant.toString(Qt::ISODate) +
                                    u" shows "_s + shown.toString(Qt::ISODate)));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_ZoneClocks)
#include "tst_ZoneClocks.moc"
