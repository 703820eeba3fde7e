#include <QTest>

#include "foundation/PropertyLookup.h"
#include "platform/TzFolder.h"
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
    platform::Services Services = Zones.Services.With(Database);
    TimeZoneRecord Zone;
    TimerContext Context{Host.Properties, Zone, Controls, Services, Zones.Module, Host};
    ClockMessages Messages{Context, [this](const QString&) { Runs += 1; }};
    ClockTimers Timers{Context, Messages};
    int Runs = 0;
    QStringList Fired;  ///< the clock's time and the timer's

    explicit Day(const QDateTime& start) {
        SetNow(start);
        Zones.Machine.Clock.SetZone(platform::TzZone("Europe/London"));
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
    /// A timer on every minute of the dial instead.
    void SetEachMinute() {
        for (int minute = 0; minute < 720; ++minute) {
            const QString time = u"%1:%2"_s.arg(minute / 60, 2, 10, QChar(u'0'))
                                     .arg(minute % 60, 2, 10, QChar(u'0'));
            if (minute >= Timers.SlotCount()) {
                QCOMPARE(Timers.GetFreeTimerSlot(), minute + 1);
            }
            Timers.ChangeTimer(minute + 1, {time, {}, true, u"0"_s, {}, 0, {}, u"Chime"_s, {}});
        }
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

/// What a timer on each minute gives from one hour of the day up to, but without, another.
QStringList EachMinute(int fromHour, int toHour) {
    QStringList fired;
    for (int hour = fromHour; hour < toHour; ++hour) {
        for (int minute = 0; minute < 60; ++minute) {
            fired += u"%1:%3 %2:%3"_s.arg(hour)
                         .arg(hour < 12 ? hour : hour - 12, 2, 10, QChar(u'0'))
                         .arg(minute, 2, 10, QChar(u'0'));
        }
    }
    return fired;
}

}  // namespace

/// Days in seconds: what fires, minute for minute, is compared with lists worked out by hand.
class tst_TimeTravel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FiresThroughALeapDay();
    void FiresOneShotsOnce();
    void FiresThroughTheSpringChange();
    void FiresThroughTheAutumnChange();
    void FiresEachMinuteOfALeapDay();
    void FiresEachMinuteThroughTheSpringChange();
    void FiresEachMinuteThroughTheAutumnChange();
    void FollowsARefreshedOffset();
    void SurvivesASetClock_data();
    void SurvivesASetClock();
    void FiresNothingTwiceInAMinute_data();
    void FiresNothingTwiceInAMinute();
    void SurvivesAClockThatJumps();
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

void tst_TimeTravel::FiresEachMinuteOfALeapDay() {
    Day day(Moment(2028, 2, 29));
    day.SetEachMinute();
    day.RunUntil(Moment(2028, 3, 1));
    QCOMPARE(day.Fired.size(), 1440);
    QCOMPARE(day.Fired, EachMinute(0, 24));
    QCOMPARE(day.Fired[0], u"0:00 00:00"_s);
    QCOMPARE(day.Fired[754], u"12:34 00:34"_s);
    QCOMPARE(day.Fired[1439], u"23:59 11:59"_s);
}

// The hour from 1:00 to 1:59 is missing.
void tst_TimeTravel::FiresEachMinuteThroughTheSpringChange() {
    Day day(Moment(2026, 3, 29));
    day.SetEachMinute();
    day.RunUntil(Moment(2026, 3, 29, 1));
    day.SetNow(Moment(2026, 3, 29, 2));
    day.RunUntil(Moment(2026, 3, 30));
    QCOMPARE(day.Fired.size(), 1380);
    QCOMPARE(day.Fired, EachMinute(0, 1) + EachMinute(2, 24));
}

// It comes twice.
void tst_TimeTravel::FiresEachMinuteThroughTheAutumnChange() {
    Day day(Moment(2026, 10, 25));
    day.SetEachMinute();
    day.RunUntil(Moment(2026, 10, 25, 2));
    day.SetNow(Moment(2026, 10, 25, 1));
    day.RunUntil(Moment(2026, 10, 26));
    QCOMPARE(day.Fired.size(), 1500);
    QCOMPARE(day.Fired, EachMinute(0, 2) + EachMinute(1, 24));
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

void tst_TimeTravel::FiresNothingTwiceInAMinute_data() {
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QStringList>("fired");

    // Set at 15:00:40, when the timer of 15:00 has fired; what comes in the minute behind that.
    const QString first = u"15:00 03:00"_s;
    QTest::newRow("second back") << -1 << QStringList{first, u"15:01 03:01"_s};
    QTest::newRow("half a minute back") << -30 << QStringList{first};
    QTest::newRow("minute back") << -60 << QStringList{first, u"14:59 02:59"_s};
    QTest::newRow("minute forward") << 60 << QStringList{first, u"15:01 03:01"_s, u"15:02 03:02"_s};
    QTest::newRow("hour back") << -3600 << QStringList{first, u"14:00 02:00"_s, u"14:01 02:01"_s};
    QTest::newRow("hour forward") << 3600 << QStringList{first, u"16:00 04:00"_s, u"16:01 04:01"_s};
    QTest::newRow("half a day back") << -43200 << QStringList{first, u"3:01 03:01"_s};
    QTest::newRow("day back") << -86400 << QStringList{first, u"15:01 03:01"_s};
    QTest::newRow("day forward") << 86400 << QStringList{first, u"15:01 03:01"_s};
}

void tst_TimeTravel::FiresNothingTwiceInAMinute() {
    QFETCH(int, seconds);
    Day day(Moment(2026, 6, 15, 15));
    day.SetEachMinute();
    day.RunUntil(Moment(2026, 6, 15, 15).addSecs(40));
    const QDateTime set = Moment(2026, 6, 15, 15).addSecs(40 + seconds);
    day.SetNow(set);
    day.RunUntil(set.addSecs(50));
    QTEST(day.Fired, "fired");
}

// Set at each tick anew, across years: each jump leads to another minute, whose timer fires.
void tst_TimeTravel::SurvivesAClockThatJumps() {
    Day day(Moment(2026, 6, 15, 15));
    day.SetEachMinute();
    const qint64 jumps[] = {3600,    -3600,      86400,        -86400, 43200 + 7200,
                            -604800, 31'536'000, -315'360'000, 59,     -61};
    QDateTime now = Moment(2026, 6, 15, 15);
    int ticks = 0;
    for (int round = 0; round < 100; ++round) {
        for (const qint64 jump : jumps) {
            now = now.addSecs(jump + 120);
            day.SetNow(now);
            day.Tick();
            day.Tick();
            ++ticks;
        }
    }
    QVERIFY(day.Fired.size() <= ticks);  // never twice in one minute
    QCOMPARE(day.Runs, static_cast<int>(day.Fired.size()));
}

QTEST_GUILESS_MAIN(tst_TimeTravel)
#include "tst_TimeTravel.moc"
