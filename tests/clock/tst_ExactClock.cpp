#include <QTest>

#include "ClockDesk.h"

namespace {

/// A shell on a machine in GMT, at an instant.
struct ExactDesk : Desk {
    explicit ExactDesk(const QDateTime& gmt) { Machine.Clock.SetInstant(gmt); }

    static QDateTime Gmt(int month, int day, int hour, int minute, int second) {
        return {QDate(2026, month, day), QTime(hour, minute, second), Qt::UTC};
    }
    QTime TimeOf(const frmTempolark& clock) const {
        return mduTimeZones::GetClockTime(clock.Data().Zone, Machine.Clock.Now()).time();
    }
    QStringList Changes() const { return Shell.Messages.filter(u" has changed to "_s); }
};

}  // namespace

class tst_ExactClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ANewClockIsExact();
    void FollowsAChangeInTheVerySecond();
    void AllClocksFollow();
    void GoesOnAsStoredWhereItsFileSaysSo();
    void FiresTheTimerOfTheSecondOfTheChange();
    void KeepsItsIdentifierUnderAStyle();
};

void tst_ExactClock::ANewClockIsExact() {
    ExactDesk desk(ExactDesk::Gmt(3, 15, 12, 0, 0));
    const frmTempolark* clock = desk.Running(u"Eastern Standard Time"_s);
    QCOMPARE(clock->Data().Zone.ExactId, u"America/New_York"_s);
    QCOMPARE(desk.Key(u"Eastern Standard Time"_s, u"Time Zone Rules"_s), u"Exact"_s);
    QCOMPARE(desk.Key(u"Eastern Standard Time"_s, u"Time Zone Id"_s), u"America/New_York"_s);
    QCOMPARE(desk.TimeOf(*clock), QTime(8, 0));
}

void tst_ExactClock::FollowsAChangeInTheVerySecond() {
    ExactDesk desk(ExactDesk::Gmt(11, 1, 5, 59, 57));
    frmTempolark* clock = desk.Running(u"Eastern Standard Time"_s);
    desk.Machine.Clock.Advance(2000);
    QCOMPARE(desk.TimeOf(*clock), QTime(1, 59, 59));
    QCOMPARE(desk.Changes(), QStringList());
    desk.Machine.Clock.Advance(1000);
    QCOMPARE(desk.TimeOf(*clock), QTime(1, 0));
    QCOMPARE(desk.Changes(), QStringList{u"New York has changed to standard time, UTC-05:00"_s});
    QCOMPARE(clock->Controls().lblLocation(1).Caption, u"Eastern Standard Time"_s);
    desk.Machine.Clock.Advance(1000);  // all of it is drawn anew
    QCOMPARE(clock->Data().State, clockcore::ClockState::Running);
    QCOMPARE(desk.Changes().size(), 1);
}

void tst_ExactClock::AllClocksFollow() {
    ExactDesk desk(ExactDesk::Gmt(3, 29, 0, 59, 58));
    const frmTempolark* london = desk.Running(u"GMT Standard Time"_s);
    const frmTempolark* paris = desk.Running(u"Romance Standard Time"_s);
    const frmTempolark* tokyo = desk.Running(u"Tokyo Standard Time"_s);
    desk.Machine.Clock.Advance(2000);
    QCOMPARE(desk.TimeOf(*london), QTime(2, 0));
    QCOMPARE(desk.TimeOf(*paris), QTime(3, 0));
    QCOMPARE(desk.TimeOf(*tokyo), QTime(10, 0));
    QCOMPARE(desk.Changes(), (QStringList{u"London has changed to daylight time, UTC+01:00"_s,
                                          u"Paris has changed to daylight time, UTC+02:00"_s}));
}

void tst_ExactClock::GoesOnAsStoredWhereItsFileSaysSo() {
    ExactDesk desk(ExactDesk::Gmt(11, 1, 5, 59, 57));
    desk.Machine.WriteFile(u"tester/TimeZones/Eastern Standard Time.ini"_s,
                           desk.Machine.ReadFile(u"ini/Tempolark.ini"_s)
                               .replace("Time Zone Rules=Exact", "Time Zone Rules=As Stored"));
    const frmTempolark* clock = desk.Running(u"Eastern Standard Time"_s);
    QCOMPARE(clock->Data().Zone.ExactId, QString());
    desk.Machine.Clock.Advance(3000);
    QCOMPARE(desk.TimeOf(*clock), QTime(2, 0));
    QCOMPARE(desk.Changes(), QStringList());
}

void tst_ExactClock::FiresTheTimerOfTheSecondOfTheChange() {
    ExactDesk desk(ExactDesk::Gmt(3, 8, 6, 59, 55));
    desk.Machine.WriteFile(u"tester/Timers/Eastern Standard TimeTimer.txt"_s,
                           "1,red,,,0#3:0=Tea\r\n");
    frmTempolark* clock = desk.Running(u"Eastern Standard Time"_s);
    QStringList fired;
    clock->Watch({.Firing = [&](int, const timers::ClockTimer& timer) { fired += timer.Message; }});
    desk.Machine.Clock.Advance(5000);
    QCOMPARE(desk.TimeOf(*clock), QTime(3, 0));
    QCOMPARE(fired, QStringList{u"Tea"_s});
}

void tst_ExactClock::KeepsItsIdentifierUnderAStyle() {
    ExactDesk desk(ExactDesk::Gmt(3, 15, 12, 0, 0));
    frmTempolark* clock = desk.Running(u"Eastern Standard Time"_s);
    const QString style = desk.Machine.WriteFile(u"Styles/Plain.ini"_s,
                                                 desk.Machine.ReadFile(u"ini/Tempolark.ini"_s));
    clock->SetClockStyle(style);
    desk.Machine.Clock.Advance(2000);
    QCOMPARE(clock->Data().Zone.ExactId, u"America/New_York"_s);
    QCOMPARE(clock->Data().Zone.CurrentGMTHours, 4.0F);
}

QTEST_MAIN(tst_ExactClock)
#include "tst_ExactClock.moc"
