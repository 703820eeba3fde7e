#include "timers/ClockMessages.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeTimerHost.h"

using namespace Qt::StringLiterals;

namespace {

/// Steps of 5 pixels on a face of 400 by 300.
struct MessageDesk : TimerDesk {
    MessageDesk() { Set(u"Message Display Speed"_s, u"75,15,75"_s); }
    void Set(const QString& name, const QString& value) {
        mduLib::PutPropertyRaw(name, value, Host.Properties);
    }
    void Run(int ticks = 1) {
        for (int tick = 0; tick < ticks; ++tick) {
            Messages.RunMessage(0, 400);
        }
    }
    void Count(const QString& action, int minutes) {
        Messages.SetPendingAction(action);
        Messages.StartCountdown(Machine.Clock.Now(), minutes);
    }
    /// Puts what shows, and when, among the host's events.
    void Watch() {
        Messages.Watch([this](timers::MessageEvent event, const QString& text) {
            static const QStringList names{u"shows:"_s, u"hides:"_s, u"caption:"_s, u"runs:"_s};
            Host.Events += names[static_cast<int>(event)] + text;
        });
    }
    mduUILib::Control& Label() { return Controls.lblMsg(1); }
    mduUILib::Control& ActionLabel() { return Controls.lblActionMsg(1); }
};

}  // namespace

class tst_ClockMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsEmpty();
    void ShowsAMessage();
    void TakesAFontOfTheFace();
    void EntersAtTheRight();
    void TypesAndMoves();
    void IsEatenAtTheLeft();
    void StartsAnew();
    void StepsByTheSpeed_data();
    void StepsByTheSpeed();
    void KeepsWholeCharacters();
    void ReplacesARunningMessage();
    void SetsTheInterval();
    void Expires_data();
    void Expires();
    void IsHiddenByHand();
    void HidesAnEmptyMessage();
    void StartsACountdown_data();
    void StartsACountdown();
    void ColoursTheAction_data();
    void ColoursTheAction();
    void KeepsTheActionsColour_data();
    void KeepsTheActionsColour();
    void ColoursNothingWithoutACountdown();
    void CountsDown();
    void CountsNoFurtherThanANumberHolds();
    void RunsALateAction();
    void ForgetsNone();
    void ForgetsAnActionWithoutADeadline();
    void Cancels();
    void Postpones();
    void PlacesTheMark();
    void TellsWhatShows();
    void TellsOfAnActionAtOnce();
    void CountsOnWhileItSpeaks();
    void ActsWhileItSpeaks();
    void DoesNothingMoreWhenItCloses();
    void NotesAnActionBeforeItRuns();
    void RunsFastInSightOnly();
    void LeavesAnotherPaceAlone();
};

void tst_ClockMessages::BeginsEmpty() {
    MessageDesk desk;
    desk.Run();
    QCOMPARE(desk.Messages.PendingMessage(), QString());
    QCOMPARE(desk.Messages.MessageExpiry(), u"0"_s);
    QCOMPARE(desk.Messages.PendingAction(), QString());
    QVERIFY(!desk.Label().Visible);
    QVERIFY(desk.Host.Events.isEmpty());
    QCOMPARE(desk.Host.Interval, 1000);
}

void tst_ClockMessages::ShowsAMessage() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u" Call\r\nhome\r\n"_s);
    QCOMPARE(desk.Messages.PendingMessage(), u"Call home"_s);
    QVERIFY(desk.Label().Visible);
    QCOMPARE(desk.Label().Caption, QString());
    QCOMPARE(desk.Host.Events, QStringList{u"status:Call home"_s});
}

void tst_ClockMessages::TakesAFontOfTheFace() {
    MessageDesk desk;
    desk.Host.Height = 400;
    desk.Messages.ShowMessage(u"x"_s);
    QCOMPARE(desk.Label().Font.family(), u"Arial"_s);
    QCOMPARE(desk.Label().Font.pointSizeF(), 14.0);
    QCOMPARE(desk.Label().Top, 16.0F);
    desk.Host.Ratio = 2;
    desk.Messages.ShowMessage(u"x"_s);
    QCOMPARE(desk.Label().Font.pointSizeF(), 8.0);
}

void tst_ClockMessages::EntersAtTheRight() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run();
    QCOMPARE(desk.Label().Left, 398.0F);
    QCOMPARE(desk.Label().Caption, u"  "_s);
    QCOMPARE(desk.Messages.MessageCursor(), 0);
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Host.Ratio = 2;
    desk.Messages.RunMessage(10, 400);
    QCOMPARE(desk.Label().Left, 406.0F);
}

void tst_ClockMessages::TypesAndMoves() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run(2);
    QCOMPARE(desk.Label().Caption, u"  C"_s);
    QCOMPARE(desk.Label().Left, 393.0F);
    QCOMPARE(desk.Label().Width, 30.0F);
    QCOMPARE(desk.Messages.MessageCursor(), 1);
    desk.Run(4);
    QCOMPARE(desk.Label().Caption, u"  Call"_s);
    QCOMPARE(desk.Label().Left, 373.0F);
    QCOMPARE(desk.Messages.MessageCursor(), 4);
}

// 398 takes 80 steps of 5 to -2, where it is eaten: 15 twips to the right and a character off.
void tst_ClockMessages::IsEatenAtTheLeft() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run(81);
    QCOMPARE(desk.Label().Left, -2.0F);
    QCOMPARE(desk.Label().Caption, u"  Call"_s);
    desk.Run();
    QCOMPARE(desk.Label().Left, -1.0F);
    QCOMPARE(desk.Label().Caption, u" Call"_s);
    desk.Run();
    QCOMPARE(desk.Label().Left, 0.0F);
    QCOMPARE(desk.Label().Caption, u"Call"_s);
    desk.Run();
    QCOMPARE(desk.Label().Left, 1.0F);
    QCOMPARE(desk.Label().Caption, u"all"_s);
    desk.Run();
    QCOMPARE(desk.Label().Left, -4.0F);
    QCOMPARE(desk.Label().Caption, u"all"_s);
}

// 5 more ticks bring -4 to 1 with "all" gone after three of them.
void tst_ClockMessages::StartsAnew() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run(87);
    QCOMPARE(desk.Label().Caption, u"l"_s);
    QCOMPARE(desk.Messages.MessageCursor(), 4);
    desk.Run();
    QCOMPARE(desk.Label().Caption, u"  "_s);
    QCOMPARE(desk.Label().Left, 398.0F);
    QCOMPARE(desk.Messages.MessageCursor(), 0);
    desk.Run();
    QCOMPARE(desk.Label().Caption, u"  C"_s);
}

void tst_ClockMessages::StepsByTheSpeed_data() {
    QTest::addColumn<QString>("speed");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<float>("left");

    QTest::newRow("one pixel") << u"15,15,30"_s << 1.0 << 397.0F;
    QTest::newRow("twenty") << u"300"_s << 1.0 << 378.0F;
    QTest::newRow("finer screen") << u"75"_s << 2.0 << 386.0F;
    QTest::newRow("least") << u"0"_s << 1.0 << 398.0F - 1.0F / 15.0F;
    QTest::newRow("backwards") << u"-75"_s << 1.0 << 398.0F - 1.0F / 15.0F;
}

void tst_ClockMessages::StepsByTheSpeed() {
    QFETCH(QString, speed);
    QFETCH(double, ratio);
    MessageDesk desk;
    desk.Set(u"Message Display Speed"_s, speed);
    desk.Host.Ratio = ratio;
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run(2);
    QTEST(desk.Label().Left, "left");
}

void tst_ClockMessages::KeepsWholeCharacters() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"\U0001F514!"_s);
    desk.Run(2);
    QCOMPARE(desk.Label().Caption, u"  \U0001F514"_s);
    QCOMPARE(desk.Messages.MessageCursor(), 2);
    desk.Run();
    QCOMPARE(desk.Label().Caption, u"  \U0001F514!"_s);
    desk.Label().Left = 0;
    desk.Label().Caption = u"\U0001F514!"_s;
    desk.Run();
    QCOMPARE(desk.Label().Caption, u"!"_s);
}

void tst_ClockMessages::ReplacesARunningMessage() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"A long message"_s);
    desk.Run(10);
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run(2);
    QCOMPARE(desk.Label().Caption, u"  C"_s);
    QCOMPARE(desk.Label().Left, 393.0F);
}

void tst_ClockMessages::SetsTheInterval() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Call"_s);
    QCOMPARE(desk.Host.Interval, 1000);
    desk.Run();
    QCOMPARE(desk.Host.Interval, 100);
    desk.Messages.HideMessage();
    QCOMPARE(desk.Host.Interval, 1000);
    desk.Host.Interval = 50;
    desk.Run();
    QCOMPARE(desk.Host.Interval, 50);
}

void tst_ClockMessages::Expires_data() {
    QTest::addColumn<QString>("fired");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("expiry");
    QTest::addColumn<QString>("now");
    QTest::addColumn<bool>("gone");

    QTest::newRow("on time") << u"15:05:30"_s << 5 << u"15:10"_s << u"15:10:00"_s << true;
    QTest::newRow("before") << u"15:05:30"_s << 5 << u"15:10"_s << u"15:09:59"_s << false;
    QTest::newRow("behind") << u"15:05:30"_s << 5 << u"15:10"_s << u"15:11:00"_s << false;
    QTest::newRow("other half") << u"15:05:30"_s << 5 << u"15:10"_s << u"03:10:00"_s << true;
    QTest::newRow("never") << u"15:05:30"_s << 0 << u"0"_s << u"15:05:30"_s << false;
    QTest::newRow("negative") << u"15:05:30"_s << -5 << u"0"_s << u"15:00:30"_s << false;
    QTest::newRow("midnight") << u"23:59:00"_s << 1 << u"00:00"_s << u"00:00:00"_s << false;
    QTest::newRow("00:20") << u"23:59:00"_s << 21 << u"00:20"_s << u"00:20:00"_s << false;
    QTest::newRow("noon") << u"11:59:00"_s << 1 << u"12:00"_s << u"12:00:00"_s << true;
    QTest::newRow("one o'clock") << u"00:59:00"_s << 1 << u"01:00"_s << u"01:00:00"_s << true;
    QTest::newRow("half a day") << u"15:05:30"_s << 720 << u"03:05"_s << u"15:05:31"_s << true;
}

void tst_ClockMessages::Expires() {
    QFETCH(QString, fired);
    QFETCH(int, minutes);
    QFETCH(QString, now);
    QFETCH(bool, gone);
    MessageDesk desk;
    desk.SetNow(u"2026-06-15T"_s + fired);
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Messages.SetMessageExpiry(desk.Machine.Clock.Now(), minutes);
    QTEST(desk.Messages.MessageExpiry(), "expiry");
    desk.SetNow(u"2026-06-16T"_s + now);
    desk.Run();
    QCOMPARE(desk.Messages.PendingMessage(), gone ? QString() : u"Call"_s);
    QCOMPARE(desk.Label().Visible, !gone);
    QCOMPARE(desk.Label().Caption, gone ? QString() : u"  "_s);
}

void tst_ClockMessages::IsHiddenByHand() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Call"_s);
    desk.Run(5);
    desk.Messages.HideMessage();
    QVERIFY(!desk.Label().Visible);
    QCOMPARE(desk.Messages.PendingMessage(), QString());
    desk.Run();
    QVERIFY(!desk.Label().Visible);
}

void tst_ClockMessages::HidesAnEmptyMessage() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u" \r\n "_s);
    QVERIFY(desk.Label().Visible);
    QVERIFY(desk.Host.Events.isEmpty());
    desk.Run();
    QVERIFY(!desk.Label().Visible);
    QCOMPARE(desk.Host.Interval, 1000);
}

void tst_ClockMessages::StartsACountdown_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("started");
    QTest::addColumn<QString>("caption");

    QTest::newRow("empty") << QString() << false << QString();
    QTest::newRow("none") << u"None"_s << false << QString();
    QTest::newRow("action") << u"Log Off"_s << true << u"Log Off"_s;
    QTest::newRow("stored path") << u"C:\\Tools\\a b.exe"_s << true << u"a b.exe"_s;
    QTest::newRow("native path") << u"/usr/bin/xterm"_s << true << u"xterm"_s;
}

void tst_ClockMessages::StartsACountdown() {
    QFETCH(QString, action);
    QFETCH(bool, started);
    MessageDesk desk;
    desk.Messages.SetPendingAction(action);
    QCOMPARE(desk.Messages.StartCountdown(desk.Machine.Clock.Now(), 2), started);
    QTEST(desk.ActionLabel().Caption, "caption");
    QCOMPARE(desk.ActionLabel().Visible, started);
    QCOMPARE(desk.Controls.imgAction(1).Visible, started);
    QCOMPARE(desk.Messages.ActionDeadline(), started ? u"15/06/2026 12:02:00"_s : QString());
    QVERIFY(!desk.Messages.StartCountdown(desk.Machine.Clock.Now(), 3));
}

void tst_ClockMessages::ColoursTheAction_data() {
    QTest::addColumn<QString>("colours");
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("colour");

    const QString list = u"Log Off:Magenta,Reboot:Green,Lock Workstation:Blue"_s;
    QTest::newRow("first") << list << u"Log Off"_s << 0xFF00FF;
    QTest::newRow("second") << list << u"Reboot"_s << 0x00FF00;
    QTest::newRow("last") << list << u"Lock Workstation"_s << 0xFF0000;
    QTest::newRow("missing") << list << u"Normal Shutdown"_s << 0x0000FF;
    QTest::newRow("unset") << QString() << u"Reboot"_s << 0x0000FF;
    QTest::newRow("no colour") << u"Reboot,Log Off:Blue"_s << u"Reboot"_s << 0x0000FF;
    QTest::newRow("path") << u"C:\\a.exe:Blue"_s << u"C:\\a.exe"_s << 0xFF0000;
    QTest::newRow("background") << u"Reboot:Cyan"_s << u"Reboot"_s << 0xFFFFFF;
}

void tst_ClockMessages::ColoursTheAction() {
    QFETCH(QString, colours);
    QFETCH(QString, action);
    MessageDesk desk;
    desk.Host.Colour = 0xFFFF00;
    desk.Set(u"Message Action Colour"_s, colours);
    desk.Count(action, 1);
    QTEST(desk.ActionLabel().ForeColor, "colour");
}

void tst_ClockMessages::KeepsTheActionsColour_data() {
    QTest::addColumn<QString>("colours");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("kept");

    const QString list = u"Log Off:Magenta,Reboot:Green"_s;
    QTest::newRow("first") << list << u"Log Off"_s << u"Log Off:Yellow,Reboot:Green"_s;
    QTest::newRow("last") << list << u"Reboot"_s << u"Log Off:Magenta,Reboot:Yellow"_s;
    QTest::newRow("new") << list << u"/bin/x"_s << u"Log Off:Magenta,Reboot:Green,/bin/x:Yellow"_s;
    QTest::newRow("unset") << QString() << u"Reboot"_s << u"Reboot:Yellow"_s;
    QTest::newRow("path with a colon")
        << u"C:\\a.exe:Blue"_s << u"C:\\a.exe"_s << u"C:\\a.exe:Yellow"_s;
    QTest::newRow("part of another")
        << list << u"Off"_s << u"Off:Yellow,Log Off:Magenta,Reboot:Green"_s;
}

void tst_ClockMessages::KeepsTheActionsColour() {
    QFETCH(QString, colours);
    QFETCH(QString, action);
    MessageDesk desk;
    desk.Set(u"Message Action Colour"_s, colours);
    desk.Count(action, 5);
    desk.Messages.SetActionColour(u"Yellow"_s);
    QTEST(mduLib::GetPropertyRaw(u"Message Action Colour"_s, desk.Host.Properties), "kept");
    QCOMPARE(desk.Controls.lblActionMsg(1).ForeColor, 0x00FFFF);
    desk.Messages.CancelAction();
    desk.Controls.lblActionMsg(1).ForeColor = 0;
    desk.Count(action, 5);
    QCOMPARE(desk.Controls.lblActionMsg(1).ForeColor, 0x00FFFF);
}

void tst_ClockMessages::ColoursNothingWithoutACountdown() {
    MessageDesk desk;
    desk.Set(u"Message Action Colour"_s, u"Reboot:Green"_s);
    desk.Messages.SetActionColour(u"Yellow"_s);
    QCOMPARE(mduLib::GetPropertyRaw(u"Message Action Colour"_s, desk.Host.Properties),
             u"Reboot:Green"_s);
}

void tst_ClockMessages::CountsDown() {
    MessageDesk desk;
    desk.Count(u"C:\\Tools\\a.exe"_s, 1);
    desk.Run();
    QCOMPARE(desk.ActionLabel().Caption, u"C:\\Tools\\a.exe 60"_s);
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"speak: 60"_s}));
    desk.Machine.Clock.Advance(59000);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"speak: 1"_s}));
    desk.Machine.Clock.Advance(1000);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"stop-music"_s, u"speak: 0"_s, u"run:C:\\Tools\\a.exe"_s}));
    QVERIFY(!desk.ActionLabel().Visible);
    QVERIFY(!desk.Controls.imgAction(1).Visible);
    desk.Run();
    QVERIFY(desk.Host.Events.isEmpty());
    QVERIFY(desk.Host.Forced);
}

// Ten hours are more seconds than a 16-bit number holds; they may not read as over.
void tst_ClockMessages::CountsNoFurtherThanANumberHolds() {
    MessageDesk desk;
    desk.Count(u"Reboot"_s, 600);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"speak: 32767"_s}));
    desk.Machine.Clock.Advance(3600 * 1000);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"speak: 32400"_s}));
}

void tst_ClockMessages::RunsALateAction() {
    MessageDesk desk;
    desk.Count(u"Reboot"_s, 1);
    desk.Machine.Clock.Advance(61000);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"stop-music"_s, u"speak:-1"_s, u"run:Reboot"_s}));
}

void tst_ClockMessages::ForgetsNone() {
    MessageDesk desk;
    desk.Messages.SetPendingAction(u"None"_s);
    desk.Run();
    QCOMPARE(desk.Messages.PendingAction(), QString());
    QVERIFY(desk.Host.Events.isEmpty());
}

void tst_ClockMessages::ForgetsAnActionWithoutADeadline() {
    MessageDesk desk;
    desk.Messages.SetPendingAction(u"Reboot"_s);
    desk.Run();
    QCOMPARE(desk.Messages.PendingAction(), QString());
    MessageDesk farOff;
    farOff.Count(u"Reboot"_s, 2000000000);
    farOff.Run();
    QVERIFY(!farOff.Host.Events.contains(u"run:Reboot"_s));
}

void tst_ClockMessages::Cancels() {
    MessageDesk desk;
    desk.Count(u"Reboot"_s, 1);
    desk.Messages.CancelAction();
    QCOMPARE(desk.Messages.PendingAction(), QString());
    QVERIFY(!desk.ActionLabel().Visible);
    QVERIFY(!desk.Controls.imgAction(1).Visible);
    desk.Machine.Clock.Advance(60000);
    desk.Run();
    QVERIFY(desk.Host.Events.isEmpty());
}

void tst_ClockMessages::Postpones() {
    MessageDesk desk;
    desk.Messages.PostponeAction(3);
    QCOMPARE(desk.Messages.ActionDeadline(), QString());
    desk.Count(u"Reboot"_s, 1);
    desk.Machine.Clock.Advance(30000);
    desk.Messages.PostponeAction(3);
    QCOMPARE(desk.Messages.ActionDeadline(), u"15/06/2026 12:03:30"_s);
    desk.Messages.PostponeAction(-1);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents().last(), u"run:Reboot"_s);
}

// A mark 16 wide, a gap of 4 and "Reboot 60" with 90 stand in the middle of 400.
void tst_ClockMessages::PlacesTheMark() {
    MessageDesk desk;
    desk.Controls.imgAction(1).Width = 16;
    desk.Controls.imgAction(1).Height = 16;
    desk.Count(u"Reboot"_s, 1);
    desk.Run();
    QCOMPARE(desk.Controls.imgAction(1).Left, 145.0F);
    QCOMPARE(desk.Controls.imgAction(1).Top, 38.0F);
    QCOMPARE(desk.ActionLabel().Left, 165.0F);
    QCOMPARE(desk.ActionLabel().Top, 36.0F);
}

// The message is told where it shows, before anything else is done for it.
void tst_ClockMessages::TellsWhatShows() {
    MessageDesk desk;
    desk.Watch();
    desk.Messages.ShowMessage(u" Tea\r\ntime "_s);
    desk.Messages.ShowMessage(u"Tea time"_s);
    desk.Run(3);
    desk.Messages.HideMessage();
    desk.Run();
    desk.Messages.ShowMessage(QString());
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"shows:Tea time"_s, u"status:Tea time"_s, u"shows:Tea time"_s,
                          u"status:Tea time"_s, u"hides:"_s}));
}

// Each caption is told once, the first one without a number, and before the number is spoken.
void tst_ClockMessages::TellsOfAnActionAtOnce() {
    MessageDesk desk;
    desk.Watch();
    desk.Count(u".\\run.exe"_s, 0);
    QCOMPARE(desk.Host.TakeEvents(), QStringList{u"caption:run.exe"_s});
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"stop-music"_s, u"caption:.\\run.exe 0"_s, u"speak: 0"_s,
                          u"runs:.\\run.exe"_s, u"run:.\\run.exe"_s}));
    desk.Count(u"Reboot"_s, 1);
    desk.Messages.CancelAction();
    desk.Count(u"Reboot"_s, 1);
    desk.Run(2);
    QCOMPARE(desk.Host.TakeEvents().filter(u"caption"_s),
             QStringList({u"caption:Reboot"_s, u"caption:Reboot"_s, u"caption:Reboot 60"_s}));
}

// A number that can't be spoken at its second is passed over; the caption goes on.
void tst_ClockMessages::CountsOnWhileItSpeaks() {
    MessageDesk desk;
    desk.Count(u"Reboot"_s, 1);
    desk.Host.Speaking = true;
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList{u"stop-music"_s});
    QCOMPARE(desk.ActionLabel().Caption, u"Reboot 60"_s);
    desk.Host.Speaking = false;
    desk.Machine.Clock.Advance(2000);
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"speak: 58"_s}));
}

void tst_ClockMessages::ActsWhileItSpeaks() {
    MessageDesk desk;
    desk.Count(u"Reboot"_s, 0);
    desk.Host.Speaking = true;
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"run:Reboot"_s}));
}

// Closed at its very last second.
void tst_ClockMessages::DoesNothingMoreWhenItCloses() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Tea"_s);
    desk.Count(u"Reboot"_s, 0);
    desk.Host.TakeEvents();
    desk.Host.WhileSpeaking = [&desk] { desk.Host.Closing = true; };
    desk.Run();
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"stop-music"_s, u"speak: 0"_s}));
    QCOMPARE(desk.Host.Interval, 1000);
    QCOMPARE(desk.Messages.MessageCursor(), 0);
}

// By the time the action runs nothing is left that could run it once more.
void tst_ClockMessages::NotesAnActionBeforeItRuns() {
    MessageDesk desk;
    QStringList pending;
    desk.Messages.Watch([&](timers::MessageEvent event, const QString& text) {
        if (event == timers::MessageEvent::ActionRuns) {
            pending += text + u'|' + desk.Messages.PendingAction() + u'|' +
                       desk.Messages.ActionDeadline() + u'|' +
                       (desk.ActionLabel().Visible ? u"shows"_s : u"hidden"_s);
        }
    });
    desk.Count(u"Reboot"_s, 0);
    desk.Run();
    QCOMPARE(pending, QStringList{u"Reboot|||hidden"_s});
}

// Ten ticks a second are for the eye. The first step of a message takes it to the right end.
void tst_ClockMessages::RunsFastInSightOnly() {
    MessageDesk desk;
    desk.Messages.ShowMessage(u"Tea is ready"_s);
    desk.Host.InSight = false;
    desk.Run(2);
    QCOMPARE(desk.Host.Interval, 1000);
    QCOMPARE(desk.Messages.MessageCursor(), 1);
    desk.Host.InSight = true;
    desk.Run();
    QCOMPARE(desk.Host.Interval, 100);
    QCOMPARE(desk.Messages.MessageCursor(), 2);
    desk.Host.InSight = false;
    desk.Run();
    QCOMPARE(desk.Host.Interval, 1000);
    QCOMPARE(desk.Messages.MessageCursor(), 3);
}

void tst_ClockMessages::LeavesAnotherPaceAlone() {
    MessageDesk desk;
    desk.Host.InSight = false;
    desk.Host.Interval = 10;
    desk.Messages.ShowMessage(u"Tea"_s);
    desk.Run();
    desk.Messages.HideMessage();
    QCOMPARE(desk.Host.Interval, 10);
}

QTEST_MAIN(tst_ClockMessages)
#include "tst_ClockMessages.moc"
