#include "MenuClicks.h"
#include "support/FakeDialogs.h"

namespace {

const QString Zone = u"UTC"_s;
constexpr int Second = 1000;
constexpr int Minute = 60 * Second;

QString TimerPath(const QString& zone) {
    return u"tester/Timers/"_s + zone + u"Timer.txt"_s;
}

/// A clock with these timers, at noon of 15 June 2026 in GMT.
struct TroubledDesk : ClickedDesk {
    frmTempolark* Launch(const QByteArray& timers) {
        Base.Machine.WriteFile(TimerPath(Zone), timers);
        return Running(Zone);
    }
    void Pass(int milliseconds) { Base.Machine.Clock.Advance(milliseconds); }
};

int MarksOn(const frmTempolark& clock) {
    int marks = 0;
    for (const mduUILib::Control& mark : clock.Controls().imgTimer.Members) {
        marks += mark.Visible ? 1 : 0;
    }
    return marks;
}

}  // namespace

/// Clocks with odd timer files, on machines where something fails: they go on, and tell why.
class tst_TroubledTimers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TakesTheGoodLinesOnly();
    void HasFiveThousandTimers();
    void RunsAVeryLongMessage();
    void PlaysSoundsOfOddNames();
    void TellsThatASoundCannotPlay();
    void TellsThatASoundIsMissing();
    void TellsThatTheVoiceFails();
    void TellsThatThereIsNoVoice();
    void TellsThatAnActionIsRefused();
    void GoesOnWhileItSpeaks();
    void MayBeClosedWhileItSpeaks();
    void StopsWhereItIsClosed();
    void TwoMayBeClosedWhileTheySpeak();
    void SurvivesASetClock_data();
    void SurvivesASetClock();
    void AsksBeforeItLosesTimers_data();
    void AsksBeforeItLosesTimers();
    void SetsTimersInTheirHalf();
};

void tst_TroubledTimers::TakesTheGoodLinesOnly() {
    TroubledDesk desk;
    const frmTempolark* clock = desk.Launch(
        "5,red,,None,0#15:30@First\r\n"
        "\r\n"
        "remember the milk\r\n"
        "@\r\n=\r\n@=@=\r\n###\r\n,,,,#@\r\n"
        "5,red,,None,0#24:30@half past twenty-four\r\n"
        "5,red,,None,0#99:99=never\r\n"
        "5,red,,None,0#-1:30@x\r\n"
        "5,red,,None,0#15:@x\r\n"
        "5,red,,None,0#:30@x\r\n"
        "5,red,,None,0#15.30@x\r\n"
        "5,red,,None,0#noon@x\r\n"
        "5,red,,None,0#31/2/2027 15:30=x\r\n"
        "5,red,,None,0#15/6/2026=\r"
        "5,red,a#b.wav,None,0#15:30@x\r\n"
        "5,red,a@b.wav,None,0#15:30@x\r\n"
        "5,red,a=b.wav,None,0#15:30@x\r\n"
        "15:30#15:30#15:30\r\n"
        "\xff\xfe\xfd@\x80\r\n"
        "5,red,,None,0#16:0@Last");
    QCOMPARE(MarksOn(*clock), 2);
    QCOMPARE(clock->Controls().txtMsg(1).Caption, u"First"_s);
    QCOMPARE(clock->Controls().txtMsg(2).Caption, u"Last"_s);
}

// All of them are due at 12:01 and fire in one pass, the last one's message on top.
void tst_TroubledTimers::HasFiveThousandTimers() {
    QByteArray lines;
    for (int number = 1; number <= 5000; ++number) {
        lines += "0,red,,,0#12:1@Note " + QByteArray::number(number) + "\r\n";
    }
    TroubledDesk desk;
    desk.Devices.Voices.Names.clear();
    frmTempolark* clock = desk.Launch(lines);
    QCOMPARE(MarksOn(*clock), 5000);
    desk.Pass(5 * Second);
    QCOMPARE(MarksOn(*clock), 5000);
    desk.Pass(Minute);
    QCOMPARE(MarksOn(*clock), 0);
    QCOMPARE(clock->PendingMessage(), u"Note 5000"_s);
}

// A character a step, eaten at the left end.
void tst_TroubledTimers::RunsAVeryLongMessage() {
    TroubledDesk desk;
    desk.Devices.Voices.Names.clear();
    frmTempolark* clock = desk.Launch("0,red,,None,0#12:1@" + QByteArray(99'999, 'x') + "y\r\n");
    desk.Pass(2 * Minute);
    QCOMPARE(clock->PendingMessage().size(), 100'000);
    const mduUILib::Control& label = clock->Controls().lblMsg(1);
    QVERIFY(label.Visible);
    QVERIFY(label.Caption.size() >= 2);
    QVERIFY(label.Caption.size() < 300);  // of 600 typed
    QCOMPARE(desk.Base.Shell.Messages.first().size(), 100'000);
}

// Signs that break a line of the timer file are no trouble in the names of other files.
void tst_TroubledTimers::PlaysSoundsOfOddNames() {
    TroubledDesk desk;
    desk.Base.Machine.WriteFile(u"SoundFiles/a & b;$(c).wav"_s, "sound");
    desk.Launch("1,red,.\\SoundFiles\\a & b;$(c).wav,None,0#12:1@Odd\r\n");
    desk.Pass(Minute);
    QVERIFY(desk.Devices.Players.Log.contains(u"url "_s + desk.Base.Machine.AppFolder() +
                                              u"/SoundFiles/a & b;$(c).wav"_s));
}

void tst_TroubledTimers::TellsThatASoundCannotPlay() {
    TroubledDesk desk;
    desk.Base.Machine.WriteFile(u"SoundFiles/Text.wav"_s, "This is no sound.\r\n");
    desk.Devices.Players.Failure = u"Could not determine type of stream"_s;
    const frmTempolark* clock = desk.Launch("1,red,.\\SoundFiles\\Text.wav,None,0#12:1@Tea\r\n");
    desk.Pass(Minute + Second);
    QVERIFY(desk.Base.Shell.Messages.contains(
        u"The clock can't play Text.wav: Could not determine type of stream"_s));
    QCOMPARE(clock->PendingMessage(), u"Tea"_s);
}

void tst_TroubledTimers::TellsThatASoundIsMissing() {
    TroubledDesk desk;
    desk.Launch("1,red,.\\SoundFiles\\Gone.wav,None,0#12:1@Tea\r\n");
    desk.Pass(Minute);
    QVERIFY(desk.Base.Shell.Messages.contains(u".\\SoundFiles\\Gone.wav does not exist"_s));
}

// The message is given up, and the next one tries again.
void tst_TroubledTimers::TellsThatTheVoiceFails() {
    TroubledDesk desk;
    desk.Devices.Voices.Failure = u"the voice does not answer"_s;
    const frmTempolark* clock = desk.Launch(
        "1,red,,None,0#12:1@Tea\r\n"
        "1,red,,None,0#12:3@Coffee\r\n");
    desk.Pass(Minute);
    QVERIFY(
        desk.Base.Shell.Messages.contains(u"The clock can't speak: the voice does not answer"_s));
    QCOMPARE(clock->PendingMessage(), u"Tea"_s);
    desk.Devices.Voices.Failure.clear();
    desk.Devices.Voices.Log.clear();
    desk.Pass(2 * Minute);
    QCOMPARE(desk.Devices.Voices.Log, (QStringList{u"2 ."_s, u"2 Coffee"_s}));
}

void tst_TroubledTimers::TellsThatThereIsNoVoice() {
    TroubledDesk desk;
    desk.Devices.Voices.Present = false;
    const frmTempolark* clock = desk.Launch("1,red,,None,0#12:1@Tea\r\n");
    QVERIFY(!clock->Controls().imgSpeaker(1).Visible);
    desk.Pass(Minute);
    QVERIFY(
        desk.Base.Shell.Messages.contains(u"The clock can't speak: this machine has no voice"_s));
    QCOMPARE(clock->PendingMessage(), u"Tea"_s);
}

// No box, neither of the shell nor of the machine.
void tst_TroubledTimers::TellsThatAnActionIsRefused() {
    TroubledDesk desk;
    desk.Devices.Actions.Refusal = u"There is no system bus"_s;
    const frmTempolark* clock = desk.Launch("0,red,,Reboot,0#12:1@\r\n");
    QTest::ignoreMessage(QtWarningMsg, "Reboot was refused: There is no system bus");
    desk.Pass(Minute + Second);
    QVERIFY(desk.Base.Shell.Messages.contains(u"Reboot was refused: There is no system bus"_s));
    QCOMPARE(desk.Base.Shell.Boxes, QStringList());
    QVERIFY(!clock->Controls().lblActionMsg(1).Visible);
}

// While a clock speaks its face goes on, and so do its timers and the other clock.
void tst_TroubledTimers::GoesOnWhileItSpeaks() {
    TroubledDesk desk;
    desk.Devices.Voices.Lasting = true;
    const frmTempolark* speaking =
        desk.Launch("1,red,,None,0#12:1@Tea\r\n1,red,,Lock Workstation,0#12:3@\r\n");
    const frmTempolark* other = desk.Running(u"India Standard Time"_s);
    desk.Pass(Minute + 30 * Second);
    QCOMPARE(speaking->Controls().lblClock(1).Caption, u"12:01:30"_s);
    QCOMPARE(other->Controls().lblClock(1).Caption, u"17:31:30"_s);
    desk.Pass(4 * Minute);
    QCOMPARE(desk.Devices.Voices.Log.filter(u"Tea"_s), QStringList{u"2 Tea"_s});
    QCOMPARE(desk.Devices.Actions.Log, QStringList{u"lock"_s});
}

// Its window goes at once, its text is cut off, and the shutdown that was to follow never comes.
void tst_TroubledTimers::MayBeClosedWhileItSpeaks() {
    TroubledDesk desk;
    desk.Devices.Voices.Lasting = true;
    const QPointer<frmTempolark> speaking =
        desk.Launch("1,red,,None,0#12:1@Tea\r\n0,red,,Normal Shutdown,0#12:1@\r\n");
    QString pending;
    desk.Devices.Voices.WhileSpeaking = [&] { pending = speaking->PendingMessage(); };
    desk.Pass(Minute);
    QCOMPARE(pending, u"Tea"_s);
    desk.Devices.Voices.WhileSpeaking = nullptr;
    speaking->Unload();
    QCOMPARE(desk.Devices.Voices.Log.last(), u"2 ."_s);
    QTRY_VERIFY(speaking.isNull());
    desk.Devices.Voices.EndText();
    desk.Pass(2 * Minute);
    QCOMPARE(desk.Devices.Actions.Log, QStringList());
}

// Closed from within the very call that speaks.
void tst_TroubledTimers::StopsWhereItIsClosed() {
    TroubledDesk desk;
    const QPointer<frmTempolark> clock =
        desk.Launch("1,red,,,0#12:1@Tea\r\n0,red,,Normal Shutdown,0#12:1@\r\n");
    desk.Devices.Voices.WhileSpeaking = [&] {
        if (clock) {
            clock->Unload();
        }
    };
    desk.Pass(2 * Minute);
    QTRY_VERIFY(clock.isNull());
    QCOMPARE(desk.Devices.Actions.Log, QStringList());
    QCOMPARE(desk.Devices.Voices.Log.filter(u"Tea"_s), QStringList());
}

void tst_TroubledTimers::TwoMayBeClosedWhileTheySpeak() {
    TroubledDesk desk;
    desk.Devices.Voices.Lasting = true;
    const QPointer<frmTempolark> first = desk.Launch("1,red,,None,0#12:1@Tea\r\n");
    desk.Base.Machine.WriteFile(TimerPath(u"India Standard Time"_s),
                                "1,red,,None,0#17:31@Coffee\r\n");
    const QPointer<frmTempolark> second = desk.Running(u"India Standard Time"_s);
    desk.Pass(Minute + Second);
    QVERIFY(desk.Devices.Voices.Log.contains(u"2 Tea"_s));
    QVERIFY(desk.Devices.Voices.Log.contains(u"2 Coffee"_s));
    second->Unload();
    first->Unload();
    QTRY_VERIFY(first.isNull() && second.isNull());
    desk.Devices.Voices.EndText();
}

void tst_TroubledTimers::SurvivesASetClock_data() {
    QTest::addColumn<int>("seconds");
    for (const int hours : {1, 12, 24, 24 * 365, 24 * 365 * 50}) {
        QTest::addRow("%d hours forward", hours) << hours * 3600;
        QTest::addRow("%d hours back", hours) << -hours * 3600;
    }
}

// Set while a message runs and an action counts down. The timer that has just fired does not fire
// again in its minute.
void tst_TroubledTimers::SurvivesASetClock() {
    QFETCH(int, seconds);
    TroubledDesk desk;
    desk.Devices.Voices.Names.clear();
    frmTempolark* clock = desk.Launch("5,red,,Lock Workstation,0#12:1@Go\r\n");
    int fired = 0;
    clock->Watch({.Firing = [&](int, const timers::ClockTimer&) { ++fired; }});
    desk.Pass(Minute + 20 * Second);
    QCOMPARE(fired, 1);
    platform::SimulatedClock& now = desk.Base.Machine.Clock;
    now.SetNow(now.Now().addSecs(seconds));
    for (int tick = 0; tick < 30; ++tick) {
        clock->Tick();
        now.SetNow(now.Now().addSecs(1));
    }
    QCOMPARE(fired, 1);
    // Set forward beyond the deadline the action has run; set back, it counts down on.
    QCOMPARE(desk.Devices.Actions.Log, seconds > 0 ? QStringList{u"lock"_s} : QStringList{});
    QCOMPARE(clock->Controls().lblActionMsg(1).Visible, seconds < 0);
}

void tst_TroubledTimers::AsksBeforeItLosesTimers_data() {
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<bool>("asks");

    QTest::newRow("kept") << QByteArray("Timer:Late Timers=Show,Show,Ask,Skip\r\n") << true;
    QTest::newRow("by the rules") << QByteArray() << false;
}

// The disk is full from then on.
void tst_TroubledTimers::AsksBeforeItLosesTimers() {
    QFETCH(QByteArray, keys);
    QFETCH(bool, asks);
    TroubledDesk desk;
    desk.Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, keys);
    frmTempolark* clock = desk.Launch("1,red,,,0#12:1@Tea\r\n1,red,,,0#15:1@Cake\r\n");
    const QString path = desk.Base.Machine.AppFolder() + u'/' + TimerPath(Zone);
    desk.Base.Machine.Files.Unwritable += path;
    desk.Pass(2 * Minute);
    if (asks) {
        desk.Base.Machine.Dialogs.BoxAnswers = {7};
        clock->Unload();
        QVERIFY(clock->isVisible());
        QCOMPARE(MarksOn(*clock), 1);
        QCOMPARE(desk.Base.Machine.Dialogs.Boxes.back().Text,
                 path + u" can't be written.\n\nClose the clock and lose its timers?"_s);
        desk.Pass(Minute);
        desk.Base.Machine.Dialogs.BoxAnswers = {6};
    }
    clock->Unload();
    QVERIFY(!clock->isVisible());
    QCOMPARE(desk.Base.Machine.Dialogs.Boxes.size(), asks ? 2U : 0U);
}

void tst_TroubledTimers::SetsTimersInTheirHalf() {
    TroubledDesk desk;
    desk.Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, "Timer:Timer Clock=24,24,12\r\n");
    frmTempolark* clock = desk.Launch("1,red,,,0#15:1@Cake\r\n");
    QVERIFY(desk.Base.Machine.ReadFile(TimerPath(Zone)).contains("15:01,2026-06-15T15:01:00Z"));
    desk.Pass(3 * 60 * Minute);
    QVERIFY(clock->PendingMessage().isEmpty());
    desk.Pass(Minute);
    QCOMPARE(clock->PendingMessage(), u"Cake"_s);
}

QTEST_MAIN(tst_TroubledTimers)
#include "tst_TroubledTimers.moc"
