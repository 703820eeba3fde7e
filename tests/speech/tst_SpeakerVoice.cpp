#include "speech/SpeakerVoice.h"

#include <QTest>

#include "support/FakeSpeechHost.h"

using namespace Qt::StringLiterals;
using namespace speech;

namespace {

struct VoiceDesk : SpeechDesk {
    SpeakerVoice Voice{Context()};

    VoiceDesk() { Controls.imgSpeaker(1).Tag = u"8"_s; }
    mduUILib::Control& Mark() { return Controls.imgSpeaker(1); }
    QStringList& Said() { return Devices.Voices.Log; }
};

/// Speaks as the clock does when its mark is clicked.
struct Patterns final : SpokenTime {
    explicit Patterns(ClockVoice& voice) : Voice(voice) {}
    ClockVoice& Voice;
    void SpeakTimeNow() override { Voice.SpeakMessage(u"noon"_s, 2, Urgency::Urgent); }
};

QStringList Captions(const SpeakerVoice& voice) {
    QStringList captions;
    for (const VoiceEntry& entry : voice.VoiceMenu()) {
        captions +=
            u"%1 %2"_s.arg(entry.Index).arg(entry.Caption) + (entry.Checked ? u" *"_s : QString());
    }
    return captions;
}

}  // namespace

class tst_SpeakerVoice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PreparesTheMark_data();
    void PreparesTheMark();
    void HidesTheMarkWithoutVoices_data();
    void HidesTheMarkWithoutVoices();
    void MakesOneVoice();
    void SpeaksStepByStep();
    void SpeaksInTheActiveClockOnly();
    void SpeaksAboveLevelZero_data();
    void SpeaksAboveLevelZero();
    void PassesFlags_data();
    void PassesFlags();
    void SpeaksNoEmptyText();
    void Purges();
    void TellsOnceWhyItCannotSpeak();
    void RestsAfterAFailure();
    void RestsForAMinute();
    void AClickWakesARestingVoice();
    void SpeaksOnByItself();
    void HoldsTextsForItsMouth();
    void HoldsTwentyTextsAtMost();
    void TellsOfAFailureThatShowsLater();
    void FallsSilent();
    void AClickCutsIn();
    void HearsOfItsVoicesLater();
    void HearsThatThereIsNoVoice();
    void TellsOfEachTimer();
    void TellsAgainAfterSpeaking();
    void TellsOfPatternsOnce();
    void TellsOfATimerAmongPatterns();
    void KeepsQuietAboutAPurge();
    void TellsWithoutAReason();
    void TellsOfAMachineWithoutVoices();
    void KeepsQuietWhereTheUserChoseSilence();
    void FillsTheMenu_data();
    void FillsTheMenu();
    void TakesTheVoiceByItsPlace_data();
    void TakesTheVoiceByItsPlace();
    void FillsTheMenuOnce();
    void KeepsAnEmptyMenu();
    void TakesAVoiceFromTheMenu();
    void TakesNoVoiceBesideTheMenu();
    void SetsTheVolume_data();
    void SetsTheVolume();
    void SetsTheRate_data();
    void SetsTheRate();
    void LeavesTheVoiceAsItIsOnLoading();
    void SpeaksOnAClick();
    void RestsAfterAClickWithoutAPattern();
    void StaysMutedOnAClick();
    void TellsSettings();
};

void tst_SpeakerVoice::PreparesTheMark_data() {
    QTest::addColumn<QString>("speaker");
    QTest::addColumn<QString>("volume");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<QString>("level");
    QTest::addColumn<QStringList>("log");
    const QStringList idle = {u"picture 3"_s};
    const QStringList muted = {u"picture 4"_s};
    QTest::newRow("idle") << u"Yes,Yes,No"_s << u"8,0,8,10"_s << true << u"8"_s << idle;
    QTest::newRow("muted") << u"Yes"_s << u"0"_s << true << u"0"_s << muted;
    QTest::newRow("below zero") << u"Yes"_s << u"-1"_s << true << u"-1"_s << muted;
    QTest::newRow("a fraction") << u"Yes"_s << u"0.5"_s << true << u"0.5"_s << idle;
    QTest::newRow("a word") << u"Yes"_s << u"loud"_s << true << u"loud"_s << muted;
    QTest::newRow("hidden") << u"No,Yes,No"_s << u"5"_s << false << u"5"_s << QStringList{};
}

void tst_SpeakerVoice::PreparesTheMark() {
    QFETCH(QString, speaker);
    QFETCH(QString, volume);
    VoiceDesk desk;
    desk.Set(u"Speaker"_s, speaker);
    desk.Set(u"Speaker Volume"_s, volume);
    desk.Voice.PrepareSpeaker();
    QTEST(desk.Mark().Visible, "visible");
    QTEST(desk.Mark().Tag, "level");
    QTEST(desk.Host.Log, "log");
}

void tst_SpeakerVoice::HidesTheMarkWithoutVoices_data() {
    QTest::addColumn<bool>("present");
    QTest::newRow("no speech") << false;
    QTest::newRow("no voices") << true;
}

void tst_SpeakerVoice::HidesTheMarkWithoutVoices() {
    QFETCH(bool, present);
    VoiceDesk desk;
    desk.Set(u"Speaker"_s, u"Yes"_s);
    desk.Set(u"Speaker Volume"_s, u"8"_s);
    desk.Devices.Voices.Present = present;
    desk.Devices.Voices.Names.clear();
    desk.Mark().Visible = true;
    desk.Voice.PrepareSpeaker();
    QVERIFY(!desk.Mark().Visible);
    QCOMPARE(desk.Mark().Tag, u"0"_s);
    QCOMPARE(desk.Host.Log, QStringList());
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_SpeakerVoice::MakesOneVoice() {
    VoiceDesk desk;
    QCOMPARE(desk.Devices.Voices.Made, 0);
    desk.Voice.PrepareSpeaker();
    desk.Voice.FillVoiceMenu();
    desk.Voice.PrepareSpeaker();
    QCOMPARE(desk.Devices.Voices.Made, 1);
}

void tst_SpeakerVoice::SpeaksStepByStep() {
    VoiceDesk desk;
    desk.Devices.Voices.WhileSpeaking = [&] { desk.Host.Log += u"speaking"_s; };
    desk.Voice.SpeakMessage(u"Tea"_s, 2, Urgency::Routine);
    QCOMPARE(desk.Host.Log,
             QStringList({u"picture 5"_s, u"show"_s, u"speaking"_s, u"picture 3"_s}));
    QCOMPARE(desk.Said(), QStringList{u"2 Tea"_s});
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_SpeakerVoice::SpeaksInTheActiveClockOnly() {
    VoiceDesk desk;
    desk.Host.Active = false;
    desk.Voice.SpeakMessage(u"pattern"_s, 0, Urgency::Routine);
    QCOMPARE(desk.Said(), QStringList());
    QCOMPARE(desk.Host.Log, QStringList());
    desk.Voice.SpeakMessage(u"timer"_s, 0, Urgency::Urgent);
    QCOMPARE(desk.Said(), QStringList{u"2 timer"_s});
}

void tst_SpeakerVoice::SpeaksAboveLevelZero_data() {
    QTest::addColumn<QString>("level");
    QTest::addColumn<QStringList>("said");
    const QStringList tea = {u"2 Tea"_s};
    QTest::newRow("10") << u"10"_s << tea;
    QTest::newRow("a little") << u"0.1"_s << tea;
    QTest::newRow("0") << u"0"_s << QStringList{};
    QTest::newRow("below") << u"-3"_s << QStringList{};
    QTest::newRow("nothing") << QString() << QStringList{};
}

void tst_SpeakerVoice::SpeaksAboveLevelZero() {
    QFETCH(QString, level);
    VoiceDesk desk;
    desk.Mark().Tag = level;
    desk.Voice.SpeakMessage(u"Tea"_s, 2, Urgency::Urgent);
    QTEST(desk.Said(), "said");
}

void tst_SpeakerVoice::PassesFlags_data() {
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("default") << 0 << QStringList{u"2 Tea"_s};
    QTest::newRow("below") << -1 << QStringList{u"2 Tea"_s};
    QTest::newRow("asynchronous") << 1 << QStringList{u"1 Tea"_s};
    QTest::newRow("purge") << 2 << QStringList{u"2 Tea"_s};
    QTest::newRow("both") << 3 << QStringList{u"3 Tea"_s};
}

void tst_SpeakerVoice::PassesFlags() {
    QFETCH(int, flags);
    VoiceDesk desk;
    desk.Voice.SpeakMessage(u"Tea"_s, flags, Urgency::Urgent);
    QTEST(desk.Said(), "said");
}

void tst_SpeakerVoice::SpeaksNoEmptyText() {
    VoiceDesk desk;
    desk.Voice.SpeakMessage(QString(), 2, Urgency::Urgent);
    QCOMPARE(desk.Said(), QStringList());
    QCOMPARE(desk.Host.Log, QStringList());
}

void tst_SpeakerVoice::Purges() {
    VoiceDesk desk;
    desk.Voice.PurgeSpeech(Urgency::Urgent);
    QCOMPARE(desk.Said(), QStringList{u"2 ."_s});
    QCOMPARE(desk.Host.Log, QStringList{u"show"_s});

    desk.Host.Active = false;
    desk.Voice.PurgeSpeech(Urgency::Routine);
    desk.Mark().Tag = u"0"_s;
    desk.Voice.PurgeSpeech(Urgency::Urgent);
    QCOMPARE(desk.Said(), QStringList{u"2 ."_s});
}

// Each minute another try.
void tst_SpeakerVoice::TellsOnceWhyItCannotSpeak() {
    VoiceDesk desk;
    const auto sayAt = [&](int minute, const QString& failure) {
        desk.SetTime(15, 12, minute, 0);
        desk.Devices.Voices.Failure = failure;
        desk.Voice.SpeakMessage(QString::number(minute), 2, Urgency::Urgent);
    };
    sayAt(0, u"no sound server"_s);
    sayAt(1, u"no sound server"_s);
    sayAt(2, u"the engine hangs"_s);
    sayAt(3, u"no sound server"_s);
    QCOMPARE(desk.Said(), QStringList({u"2 0"_s, u"2 1"_s, u"2 2"_s, u"2 3"_s}));
    QCOMPARE(desk.Host.Log.last(), u"picture 3"_s);
    QCOMPARE(desk.Host.Status, QStringList({u"The clock can't speak: no sound server"_s,
                                            u"The clock can't speak: the engine hangs"_s}));
}

// A countdown of twenty minutes: a try a minute, and one message.
void tst_SpeakerVoice::RestsAfterAFailure() {
    VoiceDesk desk;
    desk.Devices.Voices.Failure = u"no sound server"_s;
    for (int second = 0; second < 20 * 60; ++second) {
        desk.SetTime(15, 12, second / 60, second % 60);
        desk.Voice.PurgeSpeech(Urgency::Urgent);
        desk.Voice.SpeakMessage(u"n"_s, 0, Urgency::Urgent);
    }
    QCOMPARE(desk.Said().count(u"2 n"_s), 20);
    QCOMPARE(desk.Said().count(u"2 ."_s), 20);
    QCOMPARE(desk.Host.Log.count(u"picture 5"_s), 20);
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't speak: no sound server"_s});
}

void tst_SpeakerVoice::RestsForAMinute() {
    VoiceDesk desk;
    desk.Devices.Voices.Failure = u"busy"_s;
    desk.SetTime(15, 12, 0, 0);
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    desk.Devices.Voices.Failure.clear();
    desk.SetTime(15, 12, 0, 59);
    desk.Voice.SpeakMessage(u"two"_s, 2, Urgency::Urgent);
    desk.SetTime(15, 12, 1, 0);
    desk.Voice.SpeakMessage(u"three"_s, 2, Urgency::Urgent);
    desk.Voice.SpeakMessage(u"four"_s, 2, Urgency::Urgent);
    QCOMPARE(desk.Said(), QStringList({u"2 one"_s, u"2 three"_s, u"2 four"_s}));
}

void tst_SpeakerVoice::AClickWakesARestingVoice() {
    VoiceDesk desk;
    desk.Devices.Voices.Failure = u"busy"_s;
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    desk.Voice.SpeakNow(u"two"_s);
    Patterns patterns(desk.Voice);
    desk.Voice.ClickSpeaker(patterns);
    QCOMPARE(desk.Said(), QStringList({u"2 one"_s, u"2 two"_s, u"2 ."_s, u"2 noon"_s}));
}

// Nobody waits: the call comes back while the text is being spoken.
void tst_SpeakerVoice::SpeaksOnByItself() {
    VoiceDesk desk;
    desk.Devices.Voices.Lasting = true;
    desk.Voice.SpeakMessage(u"Tea"_s, 0, Urgency::Urgent);
    QVERIFY(desk.Voice.IsSpeaking());
    QCOMPARE(desk.Host.Log, QStringList({u"picture 5"_s, u"show"_s}));
    desk.Devices.Voices.EndText();
    QVERIFY(!desk.Voice.IsSpeaking());
    QCOMPARE(desk.Host.Log, QStringList({u"picture 5"_s, u"show"_s, u"picture 3"_s, u"show"_s}));
}

// Each text is heard whole, one behind the other; the purges in between find nothing to cut off.
void tst_SpeakerVoice::HoldsTextsForItsMouth() {
    VoiceDesk desk;
    desk.Devices.Voices.Lasting = true;
    for (const QString& text : {u"Tea"_s, u"Eggs"_s, u"Toast"_s}) {
        desk.Voice.PurgeSpeech(Urgency::Urgent);
        desk.Voice.SpeakMessage(text, 0, Urgency::Urgent);
    }
    QCOMPARE(desk.Said(), QStringList({u"2 ."_s, u"2 Tea"_s}));
    desk.Devices.Voices.EndText();
    QCOMPARE(desk.Said().mid(2), QStringList{u"2 Eggs"_s});
    QVERIFY(desk.Voice.IsSpeaking());
    desk.Devices.Voices.EndText();
    desk.Devices.Voices.EndText();
    QCOMPARE(desk.Said().mid(2), QStringList({u"2 Eggs"_s, u"2 Toast"_s}));
    QVERIFY(!desk.Voice.IsSpeaking());
}

void tst_SpeakerVoice::HoldsTwentyTextsAtMost() {
    VoiceDesk desk;
    desk.Devices.Voices.Lasting = true;
    for (int text = 0; text < 100; ++text) {
        desk.Voice.SpeakMessage(QString::number(text), 0, Urgency::Urgent);
    }
    for (int end = 0; end < 100; ++end) {
        desk.Devices.Voices.EndText();
    }
    QCOMPARE(desk.Said().size(), 21);
    QCOMPARE(desk.Said().last(), u"2 20"_s);
}

void tst_SpeakerVoice::TellsOfAFailureThatShowsLater() {
    VoiceDesk desk;
    desk.Devices.Voices.Lasting = true;
    desk.Voice.SpeakMessage(u"Tea"_s, 0, Urgency::Urgent);
    desk.Voice.SpeakMessage(u"Eggs"_s, 0, Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList());
    desk.Devices.Voices.Failure = u"no sound server"_s;
    desk.Devices.Voices.EndText();
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't speak: no sound server"_s});
    QVERIFY(!desk.Voice.IsSpeaking());
    QCOMPARE(desk.Said(), QStringList{u"2 Tea"_s});
}

// The clock closes: what it says ends, and what it was still to say is forgotten.
void tst_SpeakerVoice::FallsSilent() {
    VoiceDesk desk;
    desk.Devices.Voices.Lasting = true;
    desk.Voice.SpeakMessage(u"Tea"_s, 0, Urgency::Urgent);
    desk.Voice.SpeakMessage(u"Eggs"_s, 0, Urgency::Urgent);
    desk.Voice.FallSilent();
    QVERIFY(!desk.Voice.IsSpeaking());
    QCOMPARE(desk.Host.Log.last(), u"picture 3"_s);
    desk.Devices.Voices.EndText();
    QCOMPARE(desk.Said(), QStringList({u"2 Tea"_s, u"2 ."_s}));
    QCOMPARE(desk.Host.Status, QStringList());
    desk.Voice.FallSilent();
    QCOMPARE(desk.Said().size(), 2);
}

void tst_SpeakerVoice::AClickCutsIn() {
    VoiceDesk desk;
    desk.Devices.Voices.Lasting = true;
    desk.Voice.SpeakMessage(u"Tea"_s, 0, Urgency::Urgent);
    desk.Voice.SpeakMessage(u"Eggs"_s, 0, Urgency::Urgent);
    desk.Voice.SpeakNow(u"now"_s);
    QCOMPARE(desk.Said(), QStringList({u"2 Tea"_s, u"2 ."_s, u"2 now"_s}));
    Patterns patterns(desk.Voice);
    desk.Voice.ClickSpeaker(patterns);
    QCOMPARE(desk.Said().mid(3), QStringList({u"2 ."_s, u"2 ."_s, u"2 noon"_s}));
    QCOMPARE(desk.Host.Log.last(), u"show"_s);  // it goes on talking
    desk.Devices.Voices.EndText();
    QCOMPARE(desk.Said().last(), u"2 noon"_s);
}

// A machine that has not told its voices yet counts as one that has some.
void tst_SpeakerVoice::HearsOfItsVoicesLater() {
    VoiceDesk desk;
    desk.Set(u"Speaker"_s, u"Yes"_s);
    desk.Set(u"Speaker Volume"_s, u"8"_s);
    desk.Set(u"Speaker Voice"_s, u"Bob"_s);
    desk.Devices.Voices.Asking = true;
    desk.Voice.PrepareSpeaker();
    desk.Voice.FillVoiceMenu();
    QVERIFY(desk.Mark().Visible);
    QCOMPARE(desk.Mark().Tag, u"8"_s);
    QCOMPARE(Captions(desk.Voice), QStringList{u"-1 "_s});
    desk.Devices.Voices.TellVoices({u"Ann"_s, u"Bob"_s});
    QVERIFY(desk.Mark().Visible);
    QCOMPARE(Captions(desk.Voice), QStringList({u"0 Ann"_s, u"1 Bob *"_s}));
    QCOMPARE(desk.Said(), QStringList{u"voice 1"_s});
    QCOMPARE(desk.Host.Log, QStringList({u"picture 3"_s, u"picture 3"_s, u"show"_s}));
}

void tst_SpeakerVoice::HearsThatThereIsNoVoice() {
    VoiceDesk desk;
    desk.Set(u"Speaker"_s, u"Yes"_s);
    desk.Set(u"Speaker Volume"_s, u"8"_s);
    desk.Devices.Voices.Asking = true;
    desk.Voice.PrepareSpeaker();
    desk.Devices.Voices.TellVoices({});
    QVERIFY(!desk.Mark().Visible);
    QCOMPARE(desk.Mark().Tag, u"0"_s);
    QCOMPARE(desk.Host.Log.last(), u"show"_s);
}

// A timer in the morning and one in the evening; patterns in between tell nothing new.
void tst_SpeakerVoice::TellsOfEachTimer() {
    VoiceDesk desk;
    const QString told = u"The clock can't speak: no engine"_s;
    desk.Set(u"Speaker Volume"_s, u"8"_s);
    desk.Devices.Voices.Names.clear();
    desk.Devices.Voices.Failure = u"no engine"_s;
    desk.Voice.PrepareSpeaker();
    desk.SetTime(15, 8, 0, 0);
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    desk.SetTime(15, 8, 0, 59);
    desk.Voice.SpeakMessage(u"two"_s, 2, Urgency::Urgent);
    desk.SetTime(15, 12, 0, 0);
    desk.Voice.SpeakMessage(u"noon"_s, 2, Urgency::Routine);
    QCOMPARE(desk.Host.Status, QStringList{told});
    desk.SetTime(15, 20, 0, 0);
    desk.Voice.SpeakMessage(u"three"_s, 2, Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList({told, told}));
}

void tst_SpeakerVoice::TellsAgainAfterSpeaking() {
    VoiceDesk desk;
    const QString told = u"The clock can't speak: busy"_s;
    int minute = 0;
    const auto say = [&](const QString& failure) {
        desk.SetTime(15, 12, minute++, 0);
        desk.Devices.Voices.Failure = failure;
        desk.Voice.SpeakMessage(u"Tea"_s, 2, Urgency::Urgent);
    };
    say(u"busy"_s);
    desk.Devices.Voices.Failure.clear();
    desk.Voice.PurgeSpeech(Urgency::Urgent);
    say(u"busy"_s);
    QCOMPARE(desk.Host.Status, QStringList{told});
    say({});
    say(u"busy"_s);
    QCOMPARE(desk.Host.Status, QStringList({told, told}));
}

void tst_SpeakerVoice::TellsOfPatternsOnce() {
    VoiceDesk desk;
    desk.Devices.Voices.Failure = u"first"_s;
    desk.Voice.SpeakMessage(u"one"_s, 0, Urgency::Routine);
    desk.Devices.Voices.Failure = u"second"_s;
    desk.SetTime(15, 12, 1, 0);
    desk.Voice.SpeakMessage(u"two"_s, 0, Urgency::Routine);
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't speak: first"_s});
    desk.SetTime(15, 12, 2, 0);
    desk.Voice.SpeakMessage(u"three"_s, 0, Urgency::Urgent);
    QCOMPARE(desk.Host.Status.last(), u"The clock can't speak: second"_s);
}

// A pattern fails each minute for hours; the timer in between is told of all the same.
void tst_SpeakerVoice::TellsOfATimerAmongPatterns() {
    VoiceDesk desk;
    desk.Devices.Voices.Failure = u"no engine"_s;
    for (int minute = 0; minute < 30; ++minute) {
        desk.SetTime(15, 12, minute, 0);
        desk.Voice.SpeakMessage(u"pattern"_s, 0, minute == 28 ? Urgency::Urgent : Urgency::Routine);
    }
    QCOMPARE(desk.Host.Status.size(), 2);
}

void tst_SpeakerVoice::KeepsQuietAboutAPurge() {
    VoiceDesk desk;
    desk.Devices.Voices.Failure = u"busy"_s;
    desk.Voice.PurgeSpeech(Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_SpeakerVoice::TellsWithoutAReason() {
    VoiceDesk desk;
    desk.Devices.Voices.Silent = true;
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't speak: the voice failed"_s});

    VoiceDesk mute;
    mute.Devices.Voices.Present = false;
    mute.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    QCOMPARE(mute.Host.Status, QStringList{u"The clock can't speak: this machine has no voice"_s});
    QCOMPARE(mute.Host.Log.last(), u"picture 3"_s);
}

// The level is 0 there, but not by the user's choice.
void tst_SpeakerVoice::TellsOfAMachineWithoutVoices() {
    VoiceDesk desk;
    desk.Set(u"Speaker Volume"_s, u"8"_s);
    desk.Devices.Voices.Names.clear();
    desk.Devices.Voices.Failure = u"no engine"_s;
    desk.Voice.PrepareSpeaker();
    desk.Voice.PurgeSpeech(Urgency::Urgent);
    desk.Voice.SpeakMessage(QString(), 2, Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList());
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    desk.Voice.SpeakMessage(u"two"_s, 2, Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't speak: no engine"_s});
    QCOMPARE(desk.Said(), QStringList());
    QCOMPARE(desk.Host.Log, QStringList());
}

void tst_SpeakerVoice::KeepsQuietWhereTheUserChoseSilence() {
    VoiceDesk desk;
    desk.Set(u"Speaker Volume"_s, u"0"_s);
    desk.Voice.PrepareSpeaker();
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    desk.Devices.Voices.Names.clear();
    desk.Voice.PrepareSpeaker();
    desk.Voice.SpeakMessage(u"one"_s, 2, Urgency::Urgent);
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_SpeakerVoice::FillsTheMenu_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QStringList>("menu");
    QTest::addColumn<QString>("after");
    const QString sample = u"Sample TTS Voice"_s;
    QTest::newRow("two") << QStringList{u"Ann"_s, u"Bob"_s} << u"Bob"_s
                         << QStringList{u"0 Ann"_s, u"1 Bob *"_s} << u"Bob,Ann,Bob,"_s;
    QTest::newRow("none chosen") << QStringList{u"Ann"_s, u"Bob"_s} << QString()
                                 << QStringList{u"0 Ann"_s, u"1 Bob"_s} << u",Ann,Bob,"_s;
    QTest::newRow("unknown") << QStringList{u"Ann"_s} << u"Cid,Cid,Dan"_s << QStringList{u"0 Ann"_s}
                             << u"Cid,Ann,"_s;
    QTest::newRow("sample first") << QStringList{sample, u"Ann"_s, u"Bob"_s} << u"Ann"_s
                                  << QStringList{u"1 Ann *"_s, u"2 Bob"_s} << u"Ann,Ann,Bob,"_s;
    QTest::newRow("sample only") << QStringList{sample} << u"Ann"_s << QStringList{u"-1 "_s}
                                 << u"Ann"_s;
    QTest::newRow("without a name")
        << QStringList{QString(), u"Ann"_s} << QString() << QStringList{u"1 Ann"_s} << u",Ann,"_s;
    QTest::newRow("alike") << QStringList{u"Ann"_s, u"Ann"_s} << u"Ann"_s
                           << QStringList{u"0 Ann *"_s, u"1 Ann *"_s} << u"Ann,Ann,Ann,"_s;
    QTest::newRow("letter case") << QStringList{u"Ann"_s} << u"ann"_s << QStringList{u"0 Ann"_s}
                                 << u"ann,Ann,"_s;
}

void tst_SpeakerVoice::FillsTheMenu() {
    QFETCH(QStringList, names);
    QFETCH(QString, before);
    VoiceDesk desk;
    desk.Devices.Voices.Names = names;
    desk.Set(u"Speaker Voice"_s, before);
    desk.Voice.FillVoiceMenu();
    QTEST(Captions(desk.Voice), "menu");
    QTEST(desk.Raw(u"Speaker Voice"_s), "after");
}

void tst_SpeakerVoice::TakesTheVoiceByItsPlace_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("said");
    const QStringList plain = {u"Ann"_s, u"Bob"_s, u"Cid"_s};
    const QStringList sample = {u"Sample TTS Voice"_s, u"Ann"_s, u"Bob"_s};
    QTest::newRow("first") << plain << u"Ann"_s << QStringList{u"voice 0"_s};
    QTest::newRow("last") << plain << u"Cid"_s << QStringList{u"voice 2"_s};
    QTest::newRow("behind one left out") << sample << u"Bob"_s << QStringList{u"voice 1"_s};
    QTest::newRow("the one left out") << sample << u"Sample TTS Voice"_s << QStringList{};
    QTest::newRow("unknown") << plain << u"Dan"_s << QStringList{};
    QTest::newRow("none") << plain << QString() << QStringList{};
}

void tst_SpeakerVoice::TakesTheVoiceByItsPlace() {
    QFETCH(QStringList, names);
    QFETCH(QString, chosen);
    VoiceDesk desk;
    desk.Devices.Voices.Names = names;
    desk.Set(u"Speaker Voice"_s, chosen);
    desk.Voice.FillVoiceMenu();
    QTEST(desk.Said(), "said");
}

void tst_SpeakerVoice::FillsTheMenuOnce() {
    VoiceDesk desk;
    desk.Voice.FillVoiceMenu();
    desk.Devices.Voices.Names += u"Cid"_s;
    desk.Voice.FillVoiceMenu();
    QCOMPARE(Captions(desk.Voice), QStringList({u"0 Ann"_s, u"1 Bob"_s}));
}

void tst_SpeakerVoice::KeepsAnEmptyMenu() {
    VoiceDesk desk;
    desk.Devices.Voices.Present = false;
    desk.Set(u"Speaker Voice"_s, QString());
    desk.Voice.FillVoiceMenu();
    QCOMPARE(Captions(desk.Voice), QStringList{u"-1 "_s});
    QCOMPARE(desk.Said(), QStringList());
}

void tst_SpeakerVoice::TakesAVoiceFromTheMenu() {
    VoiceDesk desk;
    desk.Devices.Voices.Names = {u"Sample TTS Voice"_s, u"Ann"_s, u"Bob"_s};
    desk.Set(u"Speaker Voice"_s, QString());
    desk.Voice.FillVoiceMenu();
    desk.Voice.SetVoiceByMenu(2);
    QCOMPARE(desk.Said(), QStringList{u"voice 2"_s});
    QCOMPARE(Captions(desk.Voice), QStringList({u"1 Ann"_s, u"2 Bob *"_s}));
    QCOMPARE(desk.Raw(u"Speaker Voice"_s), u"Bob,Ann,Bob,"_s);
    desk.Voice.SetVoiceByMenu(1);
    QCOMPARE(desk.Said().last(), u"voice 1"_s);
    QCOMPARE(desk.Raw(u"Speaker Voice"_s), u"Ann,Ann,Bob,"_s);
}

void tst_SpeakerVoice::TakesNoVoiceBesideTheMenu() {
    VoiceDesk desk;
    desk.Voice.SetVoiceByMenu(1);
    desk.Voice.FillVoiceMenu();
    desk.Voice.SetVoiceByMenu(0);
    desk.Voice.SetVoiceByMenu(3);
    QCOMPARE(desk.Said(), QStringList());
}

void tst_SpeakerVoice::SetsTheVolume_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QStringList>("said");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("level");
    QTest::addColumn<QStringList>("log");
    const QStringList idle = {u"picture 3"_s};
    const QStringList muted = {u"picture 4"_s};
    QTest::newRow("7") << u"7"_s << QStringList{u"volume 70"_s} << u"7,0,8"_s << u"7"_s << idle;
    QTest::newRow("10") << u"10"_s << QStringList{u"volume 100"_s} << u"10,0,8"_s << u"10"_s
                        << idle;
    QTest::newRow("12") << u"12"_s << QStringList{u"volume 100"_s} << u"12,0,8"_s << u"12"_s
                        << idle;
    QTest::newRow("0") << u"0"_s << QStringList{u"volume 0"_s} << u"0,0,8"_s << u"0"_s << muted;
    QTest::newRow("-2") << u"-2"_s << QStringList{u"volume 0"_s} << u"-2,0,8"_s << u"-2"_s << muted;
    QTest::newRow("word") << u"loud"_s << QStringList{u"volume 0"_s} << u"0,0,8"_s << u"0"_s
                          << muted;
}

void tst_SpeakerVoice::SetsTheVolume() {
    QFETCH(QString, caption);
    VoiceDesk desk;
    desk.Set(u"Speaker"_s, u"Yes"_s);
    desk.Set(u"Speaker Volume"_s, u"8,0,8"_s);
    desk.Voice.SetVolumeByMenu(caption);
    QTEST(desk.Said(), "said");
    QTEST(desk.Raw(u"Speaker Volume"_s), "raw");
    QTEST(desk.Mark().Tag, "level");
    QTEST(desk.Host.Log, "log");
}

void tst_SpeakerVoice::SetsTheRate_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QStringList>("said");
    QTest::addColumn<QString>("raw");
    QTest::newRow("fast") << u"8"_s << QStringList{u"rate 8"_s} << u"8,-10,10"_s;
    QTest::newRow("slow") << u"-10"_s << QStringList{u"rate -10"_s} << u"-10,-10,10"_s;
    QTest::newRow("fraction") << u"2.5"_s << QStringList{u"rate 2"_s} << u"2,-10,10"_s;
    QTest::newRow("word") << u"x"_s << QStringList{u"rate 0"_s} << u"0,-10,10"_s;
}

void tst_SpeakerVoice::SetsTheRate() {
    QFETCH(QString, caption);
    VoiceDesk desk;
    desk.Set(u"Speak Rate"_s, u"4,-10,10"_s);
    desk.Voice.SetRateByMenu(caption);
    QTEST(desk.Said(), "said");
    QTEST(desk.Raw(u"Speak Rate"_s), "raw");
}

void tst_SpeakerVoice::LeavesTheVoiceAsItIsOnLoading() {
    VoiceDesk desk;
    desk.Set(u"Speaker Volume"_s, u"3"_s);
    desk.Set(u"Speak Rate"_s, u"6"_s);
    desk.Voice.PrepareSpeaker();
    desk.Voice.FillVoiceMenu();
    QCOMPARE(desk.Said(), QStringList());
}

void tst_SpeakerVoice::SpeaksOnAClick() {
    VoiceDesk desk;
    desk.Host.Active = false;
    Patterns patterns(desk.Voice);
    desk.Voice.ClickSpeaker(patterns);
    QCOMPARE(desk.Said(), QStringList({u"2 ."_s, u"2 noon"_s}));
    QCOMPARE(desk.Host.Log, QStringList({u"picture 5"_s, u"show"_s, u"picture 5"_s, u"show"_s,
                                         u"picture 3"_s, u"picture 3"_s}));
}

void tst_SpeakerVoice::RestsAfterAClickWithoutAPattern() {
    VoiceDesk desk;
    SpokenTime silent;
    desk.Voice.ClickSpeaker(silent);
    QCOMPARE(desk.Said(), QStringList{u"2 ."_s});
    QCOMPARE(desk.Host.Log, QStringList({u"picture 5"_s, u"show"_s, u"picture 3"_s}));
}

void tst_SpeakerVoice::StaysMutedOnAClick() {
    VoiceDesk desk;
    desk.Mark().Tag = u"0"_s;
    Patterns patterns(desk.Voice);
    desk.Voice.ClickSpeaker(patterns);
    QCOMPARE(desk.Said(), QStringList());
    QCOMPARE(desk.Host.Log, QStringList({u"picture 5"_s, u"picture 4"_s}));
}

void tst_SpeakerVoice::TellsSettings() {
    VoiceDesk desk;
    desk.Set(u"Speech Day Pattern"_s, u"None,None,Today is <LongDate>"_s);
    desk.Set(u"Speech Hour Pattern"_s, u"It is <Past/To>,None"_s);
    desk.Set(u"Speech Minute Pattern"_s, u"<Minute>"_s);
    desk.Set(u"Speech Second Pattern"_s, QString());
    desk.Set(u"Speaker Volume"_s, u"8,0,8,10"_s);
    desk.Set(u"Speak Timer Message"_s, u"Yes,Yes,No"_s);
    desk.Set(u"Speak Action Message"_s, u"No,Yes,No"_s);
    QCOMPARE(desk.Voice.HintText(),
             u"Speech Day Pattern:None\r\nSpeech Hour Pattern: It is <Past/To>\r\n"
             "Speech Minute Pattern: <Minute>\r\nSpeech Second Pattern: \r\n"
             "Speaker Volume: 8\r\nSpeak Timer Message: Yes\r\nSpeak Action Message: No\r\n"_s);
}

QTEST_GUILESS_MAIN(tst_SpeakerVoice)
#include "tst_SpeakerVoice.moc"
