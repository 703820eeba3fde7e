#include <QTest>

#include "clock/RecordingParts.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockState;

class tst_ClockTick : public QObject {
    Q_OBJECT

    /// One clock at half past twelve, 5.5 hours ahead of the machine, which stands at 07:00:09.
    struct Clock {
        RecordingParts Parts;
        clockcore::ClockData Data;
        ModuleState Module;
        platform::SimulatedClock Machine{
            QDateTime(QDate(2008, 3, 25), QTime(7, 0, 9, 700), Qt::UTC), QTimeZone("UTC")};
        clockcore::ClockTick Tick{Data, Parts.All(), Module, Machine};

        explicit Clock(ClockState state, clockcore::ClockTag tag = {}) {
            Data.State = state;
            Data.Tag = tag;
            Data.Zone.HoursFromLocal = 5.5F;
            Data.StartTime = Machine.Now();
            Data.TimerFile = u"IndiaTimer.txt"_s;
        }
        void Put(const QString& name, const QString& value) {
            mduLib::PutProperty(name, value, Data.EditProperties());
        }
        QStringList Run() {
            Parts.Log.clear();
            Tick.Tick();
            return Parts.Log;
        }
    };

    static QStringList Lines(const char* text) { return QString::fromLatin1(text).split(u'|'); }

    /// The calls of a normal tick of a clock in the shell, with nothing out of the ordinary.
    static QStringList NormalTick() {
        return Lines(
            "CheckTimers 25/03/2008 12:30:09|CheckSpokenTime|DrawClockFace|RunMessage 3 240|"
            "CheckMusic");
    }

    /// Those of a clock without a shell, whose background changes in this second.
    static QStringList NormalTickOfAll() {
        return Lines(
            "CheckTimers 25/03/2008 12:30:09|CheckSpokenTime|DrawClockFace|PlayHourSound|"
            "PlaySecondSound|RunMessage 3 240|ShowAutoBackground|CheckMusic");
    }

private Q_SLOTS:
    void LoadingAndClosingDoNothing() {
        QCOMPARE(Clock(ClockState::Loading).Run(), QStringList());
        QCOMPARE(Clock(ClockState::Closing).Run(), QStringList());
    }

    void FirstTickInOrder() {
        Clock clock(ClockState::FirstTickDue);
        QCOMPARE(clock.Run(),
                 Lines("HideHandShapes|ApplyWindowState|LoadClockPicture|LayOutOverlays|"
                       "PrepareSpeaker|SetClockCaption|ApplyWindowRect|SetTemplate|"
                       "LoadTimers IndiaTimer.txt|FillVoiceMenu|RecordProgramFolder|"
                       "ApplyWindowBackground|ApplyTransparency|ReadDigitalFormat|"
                       "PrepareClockFace|LoadFlag|ApplyWindowBorder|ApplyTitleBar|SetWindowShape|"
                       "SetSunMoon|PlaceTimerMarks|ShowClockWindow|interval 10|FillMenuArrays|"
                       "ApplyClockSpecial|interval 1000"));
        QCOMPARE(clock.Data.State, ClockState::RedrawRequested);
    }

    void WrapperRepeatsItsFirstTick() {
        Clock clock(ClockState::FirstTickDue, {ClockKind::Analogue, true});
        const QStringList calls = Lines(
            "HideHandShapes|ApplyWindowState|LoadClockPicture|LayOutOverlays|PrepareSpeaker|"
            "ApplyWindowBackground|DrawDialNumbers");
        QCOMPARE(clock.Run(), calls);
        QCOMPARE(clock.Data.State, ClockState::FirstTickDue);
        QCOMPARE(clock.Run(), calls);
    }

    void DigitalWrapperHasNoNumbers() {
        QVERIFY(!Clock(ClockState::FirstTickDue, {ClockKind::Digital, true})
                     .Run()
                     .contains(u"DrawDialNumbers"_s));
    }

    void RedrawInOrder() {
        Clock clock(ClockState::RedrawRequested);
        QCOMPARE(clock.Run(),
                 Lines("Cls|lock|ApplyWindowBorder|ApplyWindowBorder|ApplyTitleBar|"
                       "DrawDialNumbers|ShowMinuteSpots 12|SetSpeakerPosition|"
                       "SetTransparentIconPosition|unlock|ApplySurface|DrawClockFace"));
        QCOMPARE(clock.Data.State, ClockState::Running);
    }

    void DigitalRedrawHasNoNumbers() {
        QVERIFY(!Clock(ClockState::RedrawRequested, {ClockKind::Digital, false})
                     .Run()
                     .contains(u"DrawDialNumbers"_s));
    }

    void NormalTickInOrder() {
        Clock clock(ClockState::Running);
        QCOMPARE(clock.Run(), NormalTick());
        QCOMPARE(clock.Data.State, ClockState::Running);
    }

    void ClockWithoutShellSounds() {
        Clock clock(ClockState::Running);
        clock.Parts.TheWindow.MDIChild = false;
        QCOMPARE(clock.Run(), Lines("CheckTimers 25/03/2008 12:30:09|CheckSpokenTime|DrawClockFace|"
                                    "PlayHourSound|PlaySecondSound|RunMessage 3 240|CheckMusic"));
    }

    void BusyHourSoundSilencesTheSecond() {
        Clock clock(ClockState::Running);
        clock.Parts.TheWindow.MDIChild = false;
        clock.Parts.TheSounds.Busy = true;
        const QStringList calls = clock.Run();
        QVERIFY(calls.contains(u"PlayHourSound"_s));
        QVERIFY(!calls.contains(u"PlaySecondSound"_s));
    }

    void NoSoundsAtTheFastRate() {
        Clock clock(ClockState::Running);
        clock.Parts.TheWindow.MDIChild = false;
        clock.Parts.TheWindow.Interval = 100;
        QVERIFY(!clock.Run().contains(u"PlayHourSound"_s));
    }

    void StayTime_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QString>("stayTime");
        QTest::addColumn<bool>("isWrapper");
        QTest::addColumn<int>("seconds");
        QTest::addColumn<bool>("closes");
        QTest::newRow("over") << u"India"_s << u"60"_s << false << 61 << true;
        QTest::newRow("exactly") << u"India"_s << u"60"_s << false << 60 << false;
        QTest::newRow("zero stays") << u"India"_s << u"0"_s << false << 100000 << false;
        QTest::newRow("no number stays") << u"India"_s << u"ever"_s << false << 100000 << false;
        QTest::newRow("no command line") << QString() << u"60"_s << false << 61 << false;
        QTest::newRow("wrapper") << u"India"_s << u"60"_s << true << 61 << false;
        QTest::newRow("raw value with choices")
            << u"India"_s << u"60,0,60"_s << false << 61 << true;
    }

    void StayTime() {
        QFETCH(QString, commandLine);
        QFETCH(QString, stayTime);
        QFETCH(bool, isWrapper);
        QFETCH(int, seconds);
        QFETCH(bool, closes);
        Clock clock(ClockState::Running, {ClockKind::Analogue, isWrapper});
        clock.Module.CommandLine = commandLine;
        mduLib::PutPropertyRaw(u"Stay Time"_s, stayTime, clock.Data.EditProperties());
        clock.Machine.SetNow(clock.Machine.Now().addSecs(seconds));
        const QStringList calls = clock.Run();
        QCOMPARE(calls.first() == u"CloseClock"_s, closes);
        if (closes) {
            QCOMPARE(calls.size(), 1);
        }
    }

    void FocusReturnsTheNormalRate() {
        Clock clock(ClockState::Running);
        clock.Parts.TheWindow.ActiveForm = false;
        clock.Parts.TheWindow.Interval = 100;
        QCOMPARE(clock.Run(), QStringList{u"interval 1000"_s} + NormalTick());
    }

    void ActiveEditingRedrawsTheNumbers() {
        Clock clock(ClockState::Running);
        clock.Data.ActiveEditFlag = true;
        clock.Parts.TheWindow.Interval = 100;
        QCOMPARE(clock.Run(), QStringList{u"DrawDialNumbers"_s} + NormalTick());
        QVERIFY(clock.Data.ActiveEditFlag);
        QCOMPARE(clock.Parts.TheWindow.Interval, 100);
    }

    void EditingElsewhereEndsTheFastRate() {
        Clock clock(ClockState::Running);
        clock.Data.ActiveEditFlag = true;
        clock.Parts.TheWindow.Enabled = false;
        clock.Parts.TheWindow.Interval = 100;
        QCOMPARE(clock.Run().first(), u"interval 1000"_s);
    }

    void StyleRotationSleepsUntilItIsSet() {
        Clock clock(ClockState::Running);
        clock.Machine.SetNow(QDateTime(QDate(2008, 3, 25), QTime(7, 0, 10), Qt::UTC));
        QVERIFY(!clock.Run().contains(u"ApplyNextStyle"_s));
        clock.Data.AutoStyleChange = true;
        clock.Machine.SetNow(QDateTime(QDate(2008, 3, 25), QTime(7, 0, 20), Qt::UTC));
        QVERIFY(clock.Run().contains(u"ApplyNextStyle"_s));
        clock.Machine.SetNow(QDateTime(QDate(2008, 3, 25), QTime(7, 0, 21), Qt::UTC));
        QVERIFY(!clock.Run().contains(u"ApplyNextStyle"_s));
    }

    void BackgroundRotation_data() {
        QTest::addColumn<QString>("period");
        QTest::addColumn<int>("second");
        QTest::addColumn<bool>("turns");
        QTest::newRow("off") << u"0"_s << 0 << false;
        QTest::newRow("a multiple") << u"15"_s << 45 << true;
        QTest::newRow("no multiple") << u"15"_s << 46 << false;
        QTest::newRow("longer than a minute: at its turn") << u"90"_s << 0 << true;
        QTest::newRow("negative") << u"-5"_s << 0 << false;
        QTest::newRow("no number") << u"often"_s << 0 << false;
    }

    void BackgroundRotation() {
        QFETCH(QString, period);
        QFETCH(int, second);
        QFETCH(bool, turns);
        Clock clock(ClockState::Running);
        clock.Put(u"Auto Background Display"_s, period);
        clock.Machine.SetNow(QDateTime(QDate(2008, 3, 25), QTime(7, 0, second), Qt::UTC));
        QCOMPARE(clock.Run().contains(u"ShowAutoBackground"_s), turns);
    }

    // At ten ticks a second, as while a message runs, a picture still stands for its whole turn.
    void RotatesOnceInASecond() {
        Clock clock(ClockState::Running);
        clock.Data.AutoStyleChange = true;
        clock.Put(u"Auto Background Display"_s, u"10"_s);
        int styles = 0;
        int pictures = 0;
        clock.Machine.SetNow(QDateTime(QDate(2008, 3, 25), QTime(7, 0, 9, 950), Qt::UTC));
        for (int tick = 0; tick < 120; ++tick) {
            const QStringList calls = clock.Run();
            styles += static_cast<int>(calls.count(u"ApplyNextStyle"_s));
            pictures += static_cast<int>(calls.count(u"ShowAutoBackground"_s));
            clock.Machine.SetNow(clock.Machine.Now().addMSecs(100));
        }
        QCOMPARE(styles, 2);
        QCOMPARE(pictures, 2);
    }

    void StopsBetweenTwoSteps_data() {
        QTest::addColumn<QString>("closedIn");
        for (const QString& call : NormalTickOfAll()) {
            QTest::newRow(qPrintable(call)) << call;
        }
    }

    // Whichever step it is closed in, no other follows.
    void StopsBetweenTwoSteps() {
        QFETCH(QString, closedIn);
        Clock clock(ClockState::Running);
        clock.Parts.TheWindow.MDIChild = false;
        clock.Put(u"Auto Background Display"_s, u"9"_s);
        clock.Parts.Made.OnCall = [&](const QString& call) {
            if (call == closedIn) {
                clock.Data.State = ClockState::Closing;
            }
        };
        const QStringList calls = clock.Run();
        // The two sounds are one step.
        QCOMPARE(calls.last(), closedIn == u"PlayHourSound"_s ? u"PlaySecondSound"_s : closedIn);
        QCOMPARE(clock.Run(), QStringList());
    }

    void RedrawRequestByMode_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<QString>("calls");
        QTest::newRow("analogue") << ClockKind::Analogue << u"SetSunMoon|PlaceTimerMarks"_s;
        QTest::newRow("digital") << ClockKind::Digital << u"SetDigitalLayout|PlaceTimerMarks"_s;
        QTest::newRow("calculator")
            << ClockKind::Calculator << u"SetCalculatorLayout|PlaceTimerMarks"_s;
        QTest::newRow("both") << ClockKind::AnalogueAndDigital
                              << u"SetSunMoon|SetDigitalLayout|PlaceTimerMarks"_s;
        QTest::newRow("input") << ClockKind::CalculatorInput
                               << u"SetCalculatorLayout|PlaceTimerMarks"_s;
        QTest::newRow("message") << ClockKind::CalculatorMessage
                                 << u"SetCalculatorLayout|PlaceTimerMarks"_s;
    }

    void RedrawRequestByMode() {
        QFETCH(ClockKind, kind);
        Clock clock(ClockState::Running, {kind, false});
        clock.Tick.RequestRedraw();
        QTEST(clock.Parts.Log.join(u'|'), "calls");
        QCOMPARE(clock.Data.State, ClockState::RedrawRequested);
    }

    void TimeText_data() {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("midnight") << QTime(0, 0, 0) << u"01/02/2024 0:00:00"_s;
        QTest::newRow("one digit of the hour") << QTime(9, 5, 7) << u"01/02/2024 9:05:07"_s;
        QTest::newRow("evening") << QTime(23, 59, 59) << u"01/02/2024 23:59:59"_s;
    }

    void TimeText() {
        QFETCH(QTime, time);
        QTEST(clockcore::ClockTimeText(QDateTime(QDate(2024, 2, 1), time, Qt::UTC)), "text");
    }
};

QTEST_APPLESS_MAIN(tst_ClockTick)
#include "tst_ClockTick.moc"
