#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeTimerHost.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

struct FiringDesk : TimerDesk {
    FiringDesk() {
        Set(u"Speak Timer Message"_s, u"No"_s);
        Set(u"Speak Action Message"_s, u"No"_s);
        Timers.WatchFiring([this](int slot, const ClockTimer&) { Fired += slot; });
        Timers.HoldWhile([this](int slot) { return slot == Held; });
    }
    void Set(const QString& name, const QString& value) {
        mduLib::PutPropertyRaw(name, value, Host.Properties);
    }
    int Add(const QString& time, const QString& message, const QString& action = {},
            const QString& minutes = u"5"_s) {
        const int slot = Timers.GetFreeTimerSlot();
        Timers.ChangeTimer(slot, {time, {}, true, minutes, message, 255, {}, action, u"0"_s});
        return slot;
    }
    /// One tick at that time of 15 June 2026.
    void Tick(const QString& time) {
        SetNow(u"2026-06-15T"_s + time);
        Timers.CheckTimers(u"15/06/2026 "_s + time);
        Messages.RunMessage(0, 400);
    }
    QList<int> Fired;
    int Held = 0;
};

QString Padded(int minuteOfDay) {
    return u"%1:%2"_s.arg(minuteOfDay / 60, 2, 10, QChar(u'0'))
        .arg(minuteOfDay % 60, 2, 10, QChar(u'0'));
}

}  // namespace

class tst_TimerFiring : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void IsDue_data();
    void IsDue();
    void IsDueByItsText();
    void NeedsADateAndTime();
    void SavesBeforeItFires();
    void SavesAFewTimesWhereManyAreDue_data();
    void SavesAFewTimesWhereManyAreDue();
    void FiresInThisOrder();
    void SpeaksTheActionOfASilentTimer();
    void ClearsTheSlot();
    void KeepsAPermanentSlotReserved();
    void LetsTheLastMessageWin();
    void FiresNoneActionsATickApart();
    void PassesOverDuringACountdown();
    void WaitsWhileItIsHeld();
    void WaitsAlone();
    void ForgetsThatItWaited();
    void WaitsThroughNoCountdown();
    void CountsDownAnAction();
    void RunsAnActionWithoutMinutesOnce();
    void FiresNotAgainAcrossTwelve();
    void FiresAgainInTheOtherHalf();
    void TellsOfAMissingSound();
    void PlaysASoundBelowTheProgram();
    void SetsTheMusicVolume();
    void KeepsTheOldFileWhenItCannotSave();
    void FiresATimerThatTheUserRemoves();
    void StopsBetweenTwoTimers();
    void StopsBetweenTwoSteps();
};

void tst_TimerFiring::IsDue_data() {
    QTest::addColumn<QString>("timer");
    QTest::addColumn<QString>("now");
    QTest::addColumn<bool>("due");

    QTest::newRow("first second") << u"03:05"_s << u"3:05:00"_s << true;
    QTest::newRow("last second") << u"03:05"_s << u"3:05:59"_s << true;
    QTest::newRow("afternoon") << u"03:05"_s << u"15:05:30"_s << true;
    QTest::newRow("minute before") << u"03:05"_s << u"3:04:59"_s << false;
    QTest::newRow("minute behind") << u"03:05"_s << u"3:06:00"_s << false;
    QTest::newRow("midnight") << u"00:00"_s << u"0:00:00"_s << true;
    QTest::newRow("midnight at noon") << u"00:00"_s << u"12:00:00"_s << true;
    QTest::newRow("noon at midnight") << u"12:00"_s << u"0:00:00"_s << true;
    QTest::newRow("hour of the afternoon") << u"15:05"_s << u"3:05:00"_s << true;
    QTest::newRow("not padded") << u"3:05"_s << u"3:05:00"_s << false;
    QTest::newRow("not padded minute") << u"03:5"_s << u"3:05:00"_s << false;
    QTest::newRow("blank") << u" 03:05"_s << u"3:05:00"_s << false;
    QTest::newRow("empty") << QString() << u"0:00:00"_s << false;
    QTest::newRow("no time") << u"24:05"_s << u"0:05:00"_s << false;
}

void tst_TimerFiring::IsDue() {
    QFETCH(QString, timer);
    QFETCH(QString, now);
    QFETCH(bool, due);
    FiringDesk desk;
    desk.Add(timer, u"x"_s);
    desk.Timers.CheckTimers(u"15/06/2026 "_s + now);
    QCOMPARE(desk.Fired, due ? QList<int>{1} : QList<int>());
    FiringDesk hidden;
    hidden.Timers.ChangeTimer(1, {timer, u"P"_s, false, {}, {}, 0, {}, {}, {}});
    hidden.Timers.CheckTimers(u"15/06/2026 "_s + now);
    QVERIFY(hidden.Fired.isEmpty());
}

// Every minute of the day against a timer for every minute, compared as texts.
void tst_TimerFiring::IsDueByItsText() {
    FiringDesk desk;
    QStringList times;
    for (int minute = 0; minute < 1440; ++minute) {
        times += Padded(minute);
        desk.Add(times.last(), {});
    }
    for (int minute = 0; minute < 1440; ++minute) {
        desk.Fired.clear();
        desk.Timers.CheckTimers(u"15/06/2026 "_s + times[minute] + u":30"_s);
        QList<int> expected;
        for (int slot = 1; slot <= 1440; ++slot) {
            const bool equal =
                times[slot - 1] == times[minute] || times[slot - 1] == times[(minute + 720) % 1440];
            expected += equal ? QList<int>{slot} : QList<int>();
        }
        QCOMPARE(desk.Fired, expected);
        for (const int slot : expected) {
            desk.Timers.ChangeTimer(slot, {times[slot - 1], {}, true, {}, {}, 0, {}, {}, {}});
        }
    }
}

void tst_TimerFiring::NeedsADateAndTime() {
    FiringDesk desk;
    desk.Add(u"00:00"_s, u"x"_s);
    for (const QString& text : {QString(), u"noon"_s, u"15/06/2026"_s, u"0:00"_s, u"24:00"_s}) {
        desk.Timers.CheckTimers(text);
    }
    QVERIFY(desk.Fired.isEmpty());
}

void tst_TimerFiring::SavesBeforeItFires() {
    FiringDesk desk;
    desk.SetNow(u"2026-06-15T15:05:00"_s);
    const QString path = desk.Machine.AppFolder() + u"/Timer.txt"_s;
    desk.Timers.LoadTimers(path);
    desk.Add(u"03:05"_s, u"Call home"_s);
    desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s),
             QByteArray("5,Red,,,0#16/06/2026 15:5=Call home\r\n"));
    QVERIFY(desk.Timers.Timer(1).IsFree());
    QCOMPARE(desk.Timers.TimerLines(), QStringList());
}

void tst_TimerFiring::SavesAFewTimesWhereManyAreDue_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("lastAction");
    QTest::addColumn<int>("saves");

    QTest::newRow("three") << 3 << QString() << 3;
    QTest::newRow("twenty") << 20 << QString() << 20;
    QTest::newRow("many") << 500 << QString() << 21;
    QTest::newRow("an action ends it") << 500 << u"None"_s << 21;
}

// The file is left as if each of them had been saved: with the last one still in it.
void tst_TimerFiring::SavesAFewTimesWhereManyAreDue() {
    QFETCH(int, count);
    QFETCH(QString, lastAction);
    FiringDesk desk;
    desk.SetNow(u"2026-06-15T15:05:00"_s);
    const QString path = desk.Machine.AppFolder() + u"/Timer.txt"_s;
    desk.Timers.LoadTimers(path);
    for (int number = 1; number < count; ++number) {
        desk.Add(u"03:05"_s, u"Call home"_s);
    }
    desk.Add(u"03:05"_s, u"The last"_s, lastAction);
    desk.Add(u"03:06"_s, u"Later"_s);
    desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
    QCOMPARE(desk.Fired.size(), count);
    QTEST(static_cast<int>(desk.Machine.Files.Writes.size()), "saves");
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s), "5,Red,," + lastAction.toUtf8() +
                                                        ",0#16/06/2026 15:5=The last\r\n"
                                                        "5,Red,,,0#16/06/2026 15:6=Later\r\n");
}

void tst_TimerFiring::FiresInThisOrder() {
    FiringDesk desk;
    desk.Set(u"Speak Timer Message"_s, u"Yes,Yes,No"_s);
    desk.Set(u"Speak Action Message"_s, u"Yes,Yes,No"_s);
    const QString sound = desk.Machine.WriteFile(u"bell.wav"_s, "RIFF");
    desk.Timers.ChangeTimer(
        1, {u"03:05"_s, {}, true, u"5"_s, u"Call\r\nhome "_s, 0xFF00, sound, u"Reboot"_s, {}});
    desk.Timers.CheckTimers(u"15/06/2026 15:05:10"_s);
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"status:Call home"_s, u"purge"_s,
                                                  u"speak:Call\r\nhome "_s, u"sound:"_s + sound}));
    QVERIFY(desk.Host.Forced);
    QCOMPARE(desk.Messages.PendingMessage(), u"Call home"_s);
    QCOMPARE(desk.Messages.MessageExpiry(), u"15:10"_s);
    QCOMPARE(desk.Messages.PendingAction(), u"Reboot"_s);
    QCOMPARE(desk.Messages.ActionDeadline(), u"15/06/2026 15:10:10"_s);
    QCOMPARE(desk.Controls.lblMsg(1).ForeColor, 0xFF00);
    QVERIFY(desk.Controls.lblMsg(1).Visible);
    QVERIFY(desk.Controls.lblActionMsg(1).Visible);
    QVERIFY(desk.Controls.imgAction(1).Visible);
    QVERIFY(desk.Timers.Timer(1).OnDial);
}

void tst_TimerFiring::SpeaksTheActionOfASilentTimer() {
    FiringDesk desk;
    desk.Set(u"Speak Timer Message"_s, u"Yes"_s);
    desk.Set(u"Speak Action Message"_s, u"Yes"_s);
    desk.Add(u"03:05"_s, u" "_s, u"Log Off"_s);
    desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"purge"_s, u"speak: "_s, u"purge"_s, u"speak:Log Off"_s}));
    FiringDesk none;
    none.Set(u"Speak Timer Message"_s, u"Yes"_s);
    none.Set(u"Speak Action Message"_s, u"Yes"_s);
    none.Add(u"03:05"_s, {}, u"None"_s);
    none.Tick(u"15:05:00"_s);
    QCOMPARE(none.Host.TakeEvents(), QStringList({u"purge"_s, u"speak:"_s}));
    QVERIFY(!none.Controls.lblMsg(1).Visible);
}

void tst_TimerFiring::ClearsTheSlot() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"Call home"_s);
    desk.Tick(u"15:05:00"_s);
    QVERIFY(desk.Timers.Timer(1).IsFree());
    QVERIFY(!desk.Controls.imgTimer(1).Visible);
    desk.Tick(u"15:05:01"_s);
    QCOMPARE(desk.Fired, QList<int>({1}));
}

void tst_TimerFiring::KeepsAPermanentSlotReserved() {
    FiringDesk desk;
    desk.SetNow(u"2026-06-15T15:05:00"_s);
    const QString path = desk.Machine.WriteFile(u"Timer.txt"_s, "5,Red,,None,0#15:5@Call\r\n");
    desk.Timers.LoadTimers(path);
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s), QByteArray("5,Red,,None,0#15:5@Call\r\n"));
    QVERIFY(!desk.Timers.Timer(1).IsFree());
    QVERIFY(!desk.Timers.Timer(1).OnDial);
    desk.Timers.SaveTimer(path);
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s), QByteArray(",Red,,,0#@\r\n"));
}

void tst_TimerFiring::LetsTheLastMessageWin() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s);
    desk.Add(u"15:05"_s, u"second"_s);
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Fired, QList<int>({1, 2}));
    QCOMPARE(desk.Messages.PendingMessage(), u"second"_s);
}

void tst_TimerFiring::FiresNoneActionsATickApart() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s, u"None"_s);
    desk.Add(u"03:05"_s, u"second"_s, u"None"_s);
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Fired, QList<int>({1}));
    QCOMPARE(desk.Messages.PendingMessage(), u"first"_s);
    desk.Tick(u"15:05:01"_s);
    QCOMPARE(desk.Fired, QList<int>({1, 2}));
    QCOMPARE(desk.Messages.PendingMessage(), u"second"_s);
}

void tst_TimerFiring::PassesOverDuringACountdown() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s, u"Reboot"_s, u"3"_s);
    desk.Add(u"03:06"_s, u"second"_s);
    for (const QString& time : {u"15:05:00"_s, u"15:06:00"_s, u"15:06:59"_s, u"15:08:00"_s}) {
        desk.Tick(time);
    }
    QCOMPARE(desk.Fired, QList<int>({1}));
    QVERIFY(desk.Timers.Timer(2).OnDial);
    desk.Tick(u"03:06:00"_s);
    QCOMPARE(desk.Fired, QList<int>({1, 2}));
}

// Its minute may have gone meanwhile.
void tst_TimerFiring::WaitsWhileItIsHeld() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s);
    desk.Held = 1;
    desk.Tick(u"15:05:00"_s);
    desk.Tick(u"15:05:01"_s);
    desk.Tick(u"15:09:00"_s);
    QCOMPARE(desk.Fired, QList<int>());
    desk.Held = 0;
    desk.Tick(u"15:09:01"_s);
    QCOMPARE(desk.Fired, QList<int>({1}));
    QVERIFY(desk.Timers.Timer(1).IsFree());
    desk.Add(u"03:05"_s, u"second"_s);
    desk.Tick(u"15:09:02"_s);
    QCOMPARE(desk.Fired, QList<int>({1}));
}

void tst_TimerFiring::WaitsAlone() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s);
    desk.Add(u"03:05"_s, u"second"_s);
    desk.Add(u"03:06"_s, u"third"_s);
    desk.Held = 1;
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Fired, QList<int>({2}));
    desk.Held = 3;
    desk.Tick(u"15:06:00"_s);
    QCOMPARE(desk.Fired, QList<int>({2, 1}));
    desk.Held = 0;
    desk.Tick(u"15:06:01"_s);
    QCOMPARE(desk.Fired, QList<int>({2, 1, 3}));
}

// Another time, or another timer in the slot, is due at its own time.
void tst_TimerFiring::ForgetsThatItWaited() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s);
    desk.Held = 1;
    desk.Tick(u"15:05:00"_s);
    desk.Timers.PlaceTimerMark(1, u"03:20"_s);
    desk.Held = 0;
    desk.Tick(u"15:05:01"_s);
    QCOMPARE(desk.Fired, QList<int>());
}

// What comes due while an action counts down is passed over, held or not.
void tst_TimerFiring::WaitsThroughNoCountdown() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"first"_s, u"Reboot"_s, u"3"_s);
    desk.Add(u"03:06"_s, u"second"_s);
    desk.Tick(u"15:05:00"_s);
    desk.Held = 2;
    desk.Tick(u"15:06:00"_s);
    desk.Held = 0;
    desk.Tick(u"15:08:00"_s);
    desk.Tick(u"15:08:01"_s);
    QCOMPARE(desk.Messages.PendingAction(), QString());
    QCOMPARE(desk.Fired, QList<int>({1}));
}

void tst_TimerFiring::CountsDownAnAction() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"Bye"_s, u"Reboot"_s, u"1"_s);
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"status:Bye"_s, u"stop-music"_s, u"speak: 60"_s}));
    desk.Tick(u"15:05:59"_s);
    QCOMPARE(desk.Controls.lblActionMsg(1).Caption, u"Reboot 1"_s);
    desk.Host.TakeEvents();
    desk.Tick(u"15:06:00"_s);
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"stop-music"_s, u"speak: 0"_s, u"run:Reboot"_s}));
    QVERIFY(desk.Timers.Timer(1).OnDial);
    QCOMPARE(desk.Messages.PendingAction(), QString());
}

// The mark stays on the dial, and the minute is not over yet.
void tst_TimerFiring::RunsAnActionWithoutMinutesOnce() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"Bye"_s, u"Reboot"_s, u"0"_s);
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"status:Bye"_s, u"stop-music"_s, u"speak: 0"_s, u"run:Reboot"_s}));
    for (const QString& time : {u"15:05:01"_s, u"15:05:59"_s, u"15:06:00"_s, u"15:05:58"_s}) {
        desk.Tick(time);
    }
    QCOMPARE(desk.Fired, QList<int>({1}));
    QVERIFY(desk.Timers.Timer(1).OnDial);
    QCOMPARE(desk.Messages.MessageExpiry(), u"0"_s);
}

// The clock is set back a little, from the first minute of the dial to the last.
void tst_TimerFiring::FiresNotAgainAcrossTwelve() {
    FiringDesk desk;
    desk.Add(u"11:59"_s, u"Bye"_s, u"Reboot"_s, u"0"_s);
    for (const QString& time : {u"11:59:58"_s, u"11:59:59"_s, u"12:00:00"_s, u"11:59:59"_s}) {
        desk.Tick(time);
    }
    QCOMPARE(desk.Fired, QList<int>({1}));
    QVERIFY(desk.Timers.Timer(1).OnDial);
}

void tst_TimerFiring::FiresAgainInTheOtherHalf() {
    FiringDesk desk;
    desk.Add(u"03:05"_s, u"Bye"_s, u"Reboot"_s, u"0"_s);
    for (const QString& time : {u"03:05:00"_s, u"03:07:00"_s, u"15:05:00"_s, u"15:05:30"_s}) {
        desk.Tick(time);
    }
    QCOMPARE(desk.Fired, QList<int>({1, 1}));
}

void tst_TimerFiring::TellsOfAMissingSound() {
    FiringDesk desk;
    for (const QString& file : {u".\\Sounds\\gone.wav"_s, u"None"_s, u"0"_s}) {
        desk.Timers.ChangeTimer(1, {u"03:05"_s, {}, true, {}, u"Call"_s, 0, file, {}, {}});
        desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
    }
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"status:Call"_s, u"status:.\\Sounds\\gone.wav does not exist"_s,
                          u"status:Call"_s, u"status:Call"_s}));
    QVERIFY(desk.Timers.Timer(1).IsFree());
}

void tst_TimerFiring::PlaysASoundBelowTheProgram() {
    FiringDesk desk;
    const QString sound = desk.Machine.WriteFile(u"Sounds/bell.wav"_s, "RIFF");
    desk.Timers.ChangeTimer(1, {u"03:05"_s, {}, true, {}, {}, 0, u".\\Sounds\\bell.wav"_s, {}, {}});
    desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
    QCOMPARE(desk.Host.TakeEvents(), QStringList{u"sound:"_s + sound});
}

void tst_TimerFiring::SetsTheMusicVolume() {
    FiringDesk desk;
    desk.Set(u"Music Volume"_s, u"0,0,10,20"_s);
    for (const QString& volume : {u"0"_s, QString(), u"-5"_s, u"loud"_s}) {
        desk.Timers.ChangeTimer(1, {u"03:05"_s, {}, true, {}, {}, 0, {}, {}, volume});
        desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
        QCOMPARE(mduLib::GetPropertyRaw(u"Music Volume"_s, desk.Host.Properties), u"0,0,10,20"_s);
    }
    desk.Timers.ChangeTimer(1, {u"03:05"_s, {}, true, {}, {}, 0, {}, {}, u"20"_s});
    desk.Timers.CheckTimers(u"15/06/2026 15:05:00"_s);
    QCOMPARE(mduLib::GetPropertyRaw(u"Music Volume"_s, desk.Host.Properties), u"20,0,10,20"_s);
}

void tst_TimerFiring::KeepsTheOldFileWhenItCannotSave() {
    FiringDesk desk;
    desk.SetNow(u"2026-06-15T15:05:00"_s);
    const QString path = desk.Machine.WriteFile(u"Timer.txt"_s, "3:5@Call\r\n");
    desk.Timers.LoadTimers(path);
    desk.Machine.Files.Unwritable = {path};
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Fired, QList<int>({1}));
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s), QByteArray("3:5@Call\r\n"));
    QCOMPARE(desk.Host.TakeEvents(),
             QStringList({u"status:"_s + path + u" can't be written"_s, u"status:Call"_s}));
}

void tst_TimerFiring::FiresATimerThatTheUserRemoves() {
    FiringDesk desk;
    desk.Set(u"Speak Timer Message"_s, u"Yes"_s);
    desk.Add(u"03:05"_s, u"Call"_s);
    desk.Host.WhileSpeaking = [&desk] { desk.Timers.ClearTimerSlot(1); };
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Messages.PendingMessage(), u"Call"_s);
    QVERIFY(desk.Timers.Timer(1).IsFree());
}

// The clock is closed while it speaks the first one's message: the second does not fire.
void tst_TimerFiring::StopsBetweenTwoTimers() {
    FiringDesk desk;
    desk.Set(u"Speak Timer Message"_s, u"Yes"_s);
    desk.Add(u"03:05"_s, u"Call"_s);
    desk.Add(u"03:05"_s, u"Tea"_s);
    desk.Host.WhileSpeaking = [&desk] { desk.Host.Closing = true; };
    desk.Tick(u"15:05:00"_s);
    QCOMPARE(desk.Fired, QList<int>({1}));
    QCOMPARE(desk.Host.TakeEvents(), QStringList({u"status:Call"_s, u"purge"_s, u"speak:Call"_s}));
}

// An action of no minutes that is still ahead of the step at which the clock closes never runs.
void tst_TimerFiring::StopsBetweenTwoSteps() {
    FiringDesk desk;
    desk.Set(u"Speak Timer Message"_s, u"Yes"_s);
    desk.Add(u"03:05"_s, u"Call"_s, u"Normal Shutdown"_s, u"0"_s);
    desk.Host.WhileSpeaking = [&desk] { desk.Host.Closing = true; };
    desk.Tick(u"15:05:00"_s);
    desk.Tick(u"15:05:01"_s);
    QVERIFY(!desk.Host.Events.contains(u"run:Normal Shutdown"_s));
    QCOMPARE(desk.Messages.PendingAction(), QString());
    QVERIFY(!desk.Controls.lblActionMsg(1).Visible);
}

QTEST_GUILESS_MAIN(tst_TimerFiring)
#include "tst_TimerFiring.moc"
