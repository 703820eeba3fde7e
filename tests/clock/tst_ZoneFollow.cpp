#include <QTest>

#include "clock/FakeScreen.h"
#include "clock/ZoneFollow.h"
#include "support/ExactMachine.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace {

struct Follower {
    explicit Follower(const QByteArray& gmt, const QString& id = u"America/New_York"_s)
        : Machine(gmt) {
        Data.Zone = Machine.Record(id);
        Controls.lblLocation(1).Caption = Data.Zone.CurrentName;
    }
    Q_DISABLE_COPY_MOVE(Follower)

    QTime ClockTime() const {
        return mduTimeZones::GetClockTime(Data.Zone, Machine.Services.Clock.Now()).time();
    }

    ExactMachine Machine;
    clockcore::ClockData Data;
    mduUILib::ClockControls Controls;
    FakeScreen Screen;
    clockcore::ZoneFollow Zone{Data, Controls, Screen, Machine.Services};
};

}  // namespace

class tst_ZoneFollow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FollowsTheZoneInTheVerySecond();
    void FollowsTheZoneIntoSummer();
    void FollowsTheMachineWithoutAWord();
    void FollowsAMachineThatIsSetBack();
    void DoesNothingInBetween();
    void LeavesAZoneWithItsOwnRules();
    void LeavesTheNameThatIsTyped();
};

void tst_ZoneFollow::FollowsTheZoneInTheVerySecond() {
    Follower follower("2026-11-01T05:59:59");
    QVERIFY(!follower.Zone.Follow());
    QCOMPARE(follower.ClockTime(), QTime(1, 59, 59));
    follower.Machine.MoveTo("2026-11-01T06:00:00");
    QVERIFY(follower.Zone.Follow());
    QCOMPARE(follower.ClockTime(), QTime(1, 0));
    QCOMPARE(follower.Controls.lblLocation(1).Caption, u"Standard"_s);
    QCOMPARE(follower.Screen.Status,
             QStringList{u"New York has changed to standard time, UTC-05:00"_s});
    QVERIFY(!follower.Zone.Follow());
}

void tst_ZoneFollow::FollowsTheZoneIntoSummer() {
    Follower follower("2026-03-08T06:59:59");
    follower.Machine.MoveTo("2026-03-08T07:00:00");
    QVERIFY(follower.Zone.Follow());
    QCOMPARE(follower.ClockTime(), QTime(3, 0));
    QCOMPARE(follower.Screen.Status,
             QStringList{u"New York has changed to daylight time, UTC-04:00"_s});
}

// Its clock shows nothing new; only the way there from the local clock is another.
void tst_ZoneFollow::FollowsTheMachineWithoutAWord() {
    Follower follower("2026-10-25T00:59:59");
    QCOMPARE(follower.ClockTime(), QTime(20, 59, 59));
    follower.Machine.MoveTo("2026-10-25T01:00:00");
    QVERIFY(!follower.Zone.Follow());
    QCOMPARE(follower.ClockTime(), QTime(21, 0));
    QCOMPARE(follower.Data.Zone.HoursFromLocal, -4.0F);
    QCOMPARE(follower.Screen.Status, QStringList());
}

void tst_ZoneFollow::FollowsAMachineThatIsSetBack() {
    Follower follower("2026-11-01T06:00:00");
    follower.Machine.MoveTo("2026-10-31T12:00:00");
    QVERIFY(follower.Zone.Follow());
    QCOMPARE(follower.ClockTime(), QTime(8, 0));
}

void tst_ZoneFollow::DoesNothingInBetween() {
    Follower follower("2026-11-01T06:00:00");
    follower.Data.Zone.HoursFromLocal = 7;
    follower.Machine.MoveTo("2027-03-14T06:59:59");
    QVERIFY(!follower.Zone.Follow());
    QCOMPARE(follower.Data.Zone.HoursFromLocal, 7.0F);
}

void tst_ZoneFollow::LeavesAZoneWithItsOwnRules() {
    Follower follower("2026-11-01T05:59:59");
    follower.Data.Zone.ExactId.clear();
    follower.Machine.MoveTo("2026-11-01T06:00:00");
    QVERIFY(!follower.Zone.Follow());
    QCOMPARE(follower.ClockTime(), QTime(2, 0));
}

void tst_ZoneFollow::LeavesTheNameThatIsTyped() {
    Follower follower("2026-11-01T05:59:59");
    follower.Data.Tag = {clockcore::ClockKind::CalculatorInput, false};
    follower.Controls.lblLocation(1).Caption = u"Typed"_s;
    follower.Machine.MoveTo("2026-11-01T06:00:00");
    QVERIFY(follower.Zone.Follow());
    QCOMPARE(follower.Controls.lblLocation(1).Caption, u"Typed"_s);
}

QTEST_MAIN(tst_ZoneFollow)
#include "tst_ZoneFollow.moc"
