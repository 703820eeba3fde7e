#include <QTest>
#include <QTimer>

#include "devices/Flite.h"
#include "devices/Speaking.h"
#include "platform/devices/QtPlayers.h"
#include "platform/devices/QtVoices.h"

using namespace Qt::StringLiterals;
using platform::QtVoices;

namespace {
const QString Program = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-voice");
const QString PlayerProgram = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-player");
}  // namespace

/// Runs where no sound server is to be found.
class tst_RealSilence : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasNoDevice();
    void voiceTellsWhy();
    void playerTellsWhy();
    void missingProgramTellsWhy();
    void crashCostsOneMessage();
    void hangCostsOneMessage();
};

void tst_RealSilence::hasNoDevice() {
    QCOMPARE(CountOf(PlayerProgram), 0);
}

void tst_RealSilence::voiceTellsWhy() {
    if (!HasFlite()) {
        QSKIP("there is no speech engine flite");
    }
    QtVoices voices(Program, u"flite"_s);
    const auto voice = voices.MakeVoice();
    QVERIFY(!VoicesOf(*voice).isEmpty());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!SpeakWhole(*voice, u"It is noon"_s));
        QCOMPARE(voice->LastError(), u"No audio device available"_s);
    }
}

void tst_RealSilence::playerTellsWhy() {
    const auto player = platform::QtPlayers(PlayerProgram).MakePlayer();
    QCOMPARE(player->LastError(), QString());
    for (int i = 0; i < 2; ++i) {
        player->SetUrl(qEnvironmentVariable("TEMPOLARK_SOUNDS") + u"/tone.wav"_s);
        QTRY_COMPARE_WITH_TIMEOUT(player->LastError(), u"There is no sound device"_s, 30'000);
        QCOMPARE(player->PlayState(), 1);
        player->Play();
        QCOMPARE(player->PlayState(), 1);
    }
}

void tst_RealSilence::missingProgramTellsWhy() {
    QtVoices voices(u"/nonexistent/voice"_s);
    const auto voice = voices.MakeVoice();
    QCOMPARE(VoicesOf(*voice), QStringList());
    QVERIFY(!SpeakWhole(*voice, u"It is noon"_s));
    QVERIFY2(voice->LastError().startsWith(u"The speech engine can't be started. "_s),
             qPrintable(voice->LastError()));
}

// A stand-in for the engine's process that dies at the first text, and would at each.
void tst_RealSilence::crashCostsOneMessage() {
    QtVoices voices(QStringLiteral(TEMPOLARK_SOURCE_DIR "/tests/devices/crashing-voice.sh"));
    const auto voice = voices.MakeVoice();
    QCOMPARE(VoicesOf(*voice), QStringList(u"Ann"_s));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!SpeakWhole(*voice, u"It is noon"_s));
        QCOMPARE(voice->LastError(), u"The speech engine has ended"_s);
    }
}

// One that says it speaks and never ends; the event loop goes on.
void tst_RealSilence::hangCostsOneMessage() {
    QtVoices voices(QStringLiteral(TEMPOLARK_SOURCE_DIR "/tests/devices/hanging-voice.sh"), {},
                    {.Base = 500, .Letter = 0});
    const auto voice = voices.MakeVoice();
    int ticks = 0;
    QTimer other;
    QObject::connect(&other, &QTimer::timeout, &other, [&] { ++ticks; });
    other.start(1);
    QVERIFY(!SpeakWhole(*voice, u"It is noon"_s));
    QCOMPARE(voice->LastError(), u"The speech engine does not come to an end"_s);
    QVERIFY(ticks >= 3);
}

QTEST_GUILESS_MAIN(tst_RealSilence)
#include "tst_RealSilence.moc"
