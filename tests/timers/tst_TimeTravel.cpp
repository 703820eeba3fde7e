#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeTimerHost.h"
#include "support/MachineWithZones.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

/// A clock of "GMT Standard Time" on a machine in London, with a timer on each hour of the dial.
/// Their action runs at once, so that the marks stay and fire again in each half of the day.
struct Day {
    MachineWithZones Zones;
    FakeTimerHost Host;
    mduUILib::ClockControls Controls;
    platform::TzZoneDatabase Database{Zones.Machine.Clock, "Europe/London"};
    platform::Services Services{Zones.Machine.Clock,    Database,
                                Zones.Machine.Files,    Zones.Machine.User,
                                Zones.Machine.Settings, Zones.Machine.Actions,
                                Zones.Machine.Voices,   Zones.Machine.Players,
                                Zones.Machine.Sound,    Zones.Machine.Dialogs,
                                Zones.Machine.Tray,     Zones.Machine.Help,
                                Zones.Machine.Random};
    TimeZoneRecord Zone;
    TimerContext Context{Host.Properties, Zone, Controls, Services, Zones.Module, Host};
    ClockMessages Messages{Context, [this](const QString&) { Runs += 1; }};
    ClockTimers Timers{Context, Messages};
    int Runs = 0;
    QStringList Fired;  ///< the clock's time and the timer's

    explicit Day(const QDateTime& start) {
        SetNow(start);
        Zones.Machine.Clock.SetZone(QTimeZone("Europe/London"));
        Zone = mduTimeZones::FindTimeZone(Services, Zones.Module.Paths, u"GMT Standard Time"_s);
        Refresh();
        mduLib::PutProperty(u"Speak Timer Message"_s, u"No"_s, Host.Properties);
        for (int hour = 0; hour < 12; ++hour) {
            const QString time = u"%1:00"_s.arg(hour, 2, 10, QChar(u'0'));
            Timers.ChangeTimer(hour + 1, {time, {}, true, u"0"_s, {}, 0, {}, u"Chime"_s, {}});
        }
        Timers.WatchFiring([this](int, const ClockTimer& timer) {
            const QDateTime now = mduTimeZones::GetClockTime(Zone, Services.Clock.Now());
            Fired += now.toString(u"H:mm "_s) + timer.TimerTime;
        });
    }
    void SetNow(const QDateTime& now) { Zones.Machine.Clock.SetNow(now); }
    void Refresh() {
        mduTimeZones::ApplyCurrentOffset(Zone, Services.Clock.Now(),
                                         mduTimeZones::GetLocalZone(Services).CurrentGMTHours);
    }
    void Tick() {
        const QDateTime now = mduTimeZones::GetClockTime(Zone, Services.Clock.Now());
        Timers.CheckTimers(now.toString(u"dd/MM/yyyy H:mm:ss"_s));
        Messages.RunMessage(0, 400);
    }
    /// Ticks three times in each minute, up to but without the end.
    void RunUntil(const QDateTime& end) {
        while (Services.Clock.Now() < end) {
            Tick();
            Zones.Machine.Clock.Advance(20000);
        }
    }
};

QDateTime Moment(int year, int month, int day, int hour = 0, int minute = 0) {
    return {QDate(year, month, day), QTime(hour, minute), Qt::UTC};
}

const QStringList WholeDay = {
    u"0:00 00:00"_s,  u"1:00 01:00"_s,  u"2:00 02:00"_s,  u"3:00 03:00"_s,  u"4:00 04:00"_s,
    u"5:00 05:00"_s,  u"6:00 06:00"_s,  u"7:00 07:00"_s,  u"8:00 08:00"_s,  u"9:00 09:00"_s,
    u"10:00 10:00"_s, u"11:00 11:00"_s, u"12:00 00:00"_s, u"13:00 01:00"_s, u"14:00 02:00"_s,
    u"15:00 03:00"_s, u"16:00 04:00"_s, u"17:00 05:00"_s, u"18:00 06:00"_s, u"19:00 07:00"_s,
    u"20:00 08:00"_s, u"21:00 09:00"_s, u"22:00 10:00"_s, u"23:00 11:00"_s};

}  // namespace

/// Days in seconds: what fires, minute for minute, is compared with lists worked out by hand.
class tst_TimeTravel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FiresThroughALeapDay();
    void FiresOneShotsOnce();
    void FiresThroughTheSpringChange();
    void FiresThroughTheAutumnChange();
    void FollowsARefreshedOffset();
    void SurvivesASetClock_data();
    void SurvivesASetClock();
};

void tst_TimeTravel::FiresThroughALeapDay() {
    Day day(Moment(2028, 2, 29));
    QCOMPARE(day.Zone.HoursFromLocal, 0.0F);
    day.RunUntil(Moment(2028, 3, 1));
    QCOMPARE(day.Fired, WholeDay);
    QCOMPARE(day.Runs, 24);
}

void tst_TimeTravel::FiresOneShotsOnce() {
    Day day(Moment(2028, 2, 29));
    for (int slot = 1; slot <= 12; ++slot) {
        ClockTimer timer = day.Timers.Timer(slot);
        timer.TimerAction.clear();
        day.Timers.ChangeTimer(slot, timer);
    }
    day.RunUntil(Moment(2028, 3, 1));
    QCOMPARE(day.Fired, WholeDay.mid(0, 12));
    QCOMPARE(day.Runs, 0);
}

// On 29 March 2026 the machine's clock goes from 0:59 to 2:00.
void tst_TimeTravel::FiresThroughTheSpringChange() {
    Day day(Moment(2026, 3, 29));
    day.RunUntil(Moment(2026, 3, 29, 1));
    day.SetNow(Moment(2026, 3, 29, 2));
    day.RunUntil(Moment(2026, 3, 30));
    QStringList expected = WholeDay;
    expected.removeAt(1);
    QCOMPARE(day.Fired, expected);
    QCOMPARE(day.Runs, 23);
}

// On 25 October 2026 it goes from 1:59 back to 1:00, so that 1 o'clock comes twice.
void tst_TimeTravel::FiresThroughTheAutumnChange() {
    Day day(Moment(2026, 10, 25));
    day.RunUntil(Moment(2026, 10, 25, 2));
    day.SetNow(Moment(2026, 10, 25, 1));
    day.RunUntil(Moment(2026, 10, 26));
    QStringList expected = WholeDay;
    expected.insert(2, u"1:00 01:00"_s);
    QCOMPARE(day.Fired, expected);
    QCOMPARE(day.Runs, 25);
}

// A machine that stays in GMT and works its clock's offset out each minute: the change comes in the
// second behind 1:00, so that the clock shows 1:00 for a moment and then 2:00.
void tst_TimeTravel::FollowsARefreshedOffset() {
    Day day(Moment(2026, 3, 29));
    day.Zone.HoursFromLocal = 0;
    for (QDateTime now = Moment(2026, 3, 29); now < Moment(2026, 3, 29, 3); now = now.addSecs(20)) {
        day.SetNow(now);
        mduTimeZones::ApplyCurrentOffset(day.Zone, now, 0);
        day.Tick();
    }
    QCOMPARE(day.Fired,
             QStringList({u"0:00 00:00"_s, u"1:00 01:00"_s, u"2:00 02:00"_s, u"3:00 03:00"_s}));
}

void tst_TimeTravel::SurvivesASetClock_data() {
    QTest::addColumn<int>("hours");
    QTest::addColumn<QStringList>("fired");

    // Set at 15:00:40, when the timer of 3 o'clock has fired.
    QTest::newRow("hour back") << -1
                               << QStringList{u"15:00 03:00"_s, u"14:00 02:00"_s, u"15:00 03:00"_s};
    QTest::newRow("hour forward") << 1
                                  << QStringList{u"15:00 03:00"_s, u"16:00 04:00"_s,
                                                 u"17:00 05:00"_s};
    QTest::newRow("half a day back") << -12 << QStringList{u"15:00 03:00"_s, u"4:00 04:00"_s};
    QTest::newRow("day back") << -24 << QStringList{u"15:00 03:00"_s, u"16:00 04:00"_s};
    QTest::newRow("day forward") << 24 << QStringList{u"15:00 03:00"_s, u"16:00 04:00"_s};
    QTest::newRow("year back") << -8760 << QStringList{u"15:00 03:00"_s, u"16:00 04:00"_s};
}

void tst_TimeTravel::SurvivesASetClock() {
    QFETCH(int, hours);
    Day day(Moment(2026, 6, 15, 15));
    day.RunUntil(Moment(2026, 6, 15, 15).addSecs(40));
    const QDateTime set = Moment(2026, 6, 15, 15).addSecs(40 + 3600LL * hours);
    day.SetNow(set);
    day.RunUntil(set.addSecs(3600));
    QTEST(day.Fired, "fired");
}

QTEST_GUILESS_MAIN(tst_TimeTravel)
#include "tst_TimeTravel.moc"
