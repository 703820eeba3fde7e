#include <QTest>
#include <QTimer>

#include "devices/Flite.h"
#include "devices/SoundServer.h"
#include "devices/Speaking.h"
#include "platform/devices/PlayerProcess.h"
#include "platform/devices/QtPlayers.h"
#include "platform/devices/QtVoices.h"

using namespace Qt::StringLiterals;
using platform::PlayerProcess;
using platform::QtSoundDevices;
using platform::QtVoices;

namespace {
const QString Program = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-player");
const QString VoiceProgram = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-voice");
const QString LongText = u"The quick brown fox jumps over the lazy dog. "_s.repeated(20);
}  // namespace

/// Needs the program pulseaudio, and in the folder TEMPOLARK_SOUNDS a tone of half a minute as
/// long.wav and one of a second as tone.wav.
class tst_RealSoundLoss : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void deathMidPieceIsTold();
    void playsAgainWithTheNextServer();
    void freezeIsBounded();
    void deathMidSpeechIsTold();
    void countsTheDevicesThereAre();

private:
    static QString Sound(const QString& name) {
        return qEnvironmentVariable("TEMPOLARK_SOUNDS") + u'/' + name;
    }
    void StartLongPiece();

    std::unique_ptr<SoundServer> server_;
    std::unique_ptr<PlayerProcess> player_;
};

void tst_RealSoundLoss::init() {
    server_ = std::make_unique<SoundServer>();
    QVERIFY(server_->Start());
    player_ = std::make_unique<PlayerProcess>(
        Program, platform::PlayerBounds{.Start = 10'000, .Progress = 2'000});
}

void tst_RealSoundLoss::cleanup() {
    player_.reset();
    server_.reset();
}

/// So long that it can't have come to its end.
void tst_RealSoundLoss::StartLongPiece() {
    player_->SetUrl(Sound(u"long.wav"_s));
    QTRY_VERIFY_WITH_TIMEOUT(player_->IsHeard(), 30'000);
    QCOMPARE(player_->PlayState(), 3);
}

void tst_RealSoundLoss::deathMidPieceIsTold() {
    StartLongPiece();
    int ticks = 0;
    QTimer other;
    QObject::connect(&other, &QTimer::timeout, &other, [&] { ++ticks; });
    other.start(1);
    server_->End();
    QTRY_VERIFY_WITH_TIMEOUT(player_->PlayState() != 3, 60'000);
    QCOMPARE(player_->LastError(), u"The sound has come to a standstill"_s);
    QVERIFY(ticks >= 3);
    player_->SetUrl(Sound(u"long.wav"_s));
    QTRY_VERIFY_WITH_TIMEOUT(player_->PlayState() != 3, 60'000);
    QCOMPARE(player_->LastError(), u"There is no sound device"_s);
}

void tst_RealSoundLoss::playsAgainWithTheNextServer() {
    StartLongPiece();
    server_->End();
    QTRY_VERIFY_WITH_TIMEOUT(player_->PlayState() != 3, 60'000);
    QVERIFY(server_->Start());
    player_->SetUrl(Sound(u"tone.wav"_s));
    QTRY_VERIFY_WITH_TIMEOUT(player_->IsHeard(), 30'000);
    QTRY_VERIFY_WITH_TIMEOUT(player_->PlayState() != 3, 60'000);
    QCOMPARE(player_->LastError(), QString());
}

void tst_RealSoundLoss::freezeIsBounded() {
    player_->SetUrl(Sound(u"tone.wav"_s));
    QTRY_VERIFY_WITH_TIMEOUT(player_->IsHeard(), 30'000);
    server_->Freeze();
    // What has been handed over may well be taken for played.
    QTRY_VERIFY_WITH_TIMEOUT(player_->PlayState() != 3, 60'000);
    qInfo("the piece: \"%s\"", qPrintable(player_->LastError()));
    player_->SetUrl(Sound(u"tone.wav"_s));
    QTRY_VERIFY_WITH_TIMEOUT(player_->PlayState() != 3, 60'000);
    QVERIFY(!player_->LastError().isEmpty());
    qInfo("the next one: \"%s\"", qPrintable(player_->LastError()));
}

void tst_RealSoundLoss::deathMidSpeechIsTold() {
    if (!HasFlite()) {
        QSKIP("there is no speech engine flite");
    }
    QtVoices voices(VoiceProgram, u"flite"_s,
                    {.Start = 30'000, .Base = 3'000, .Letter = 100, .Whole = 60'000});
    const auto voice = voices.MakeVoice();
    QVERIFY(!VoicesOf(*voice).isEmpty());
    QTimer::singleShot(1000, this, [this] { server_->End(); });
    QVERIFY(!SpeakWhole(*voice, LongText));
    qInfo("%s", qPrintable(voice->LastError()));
    QVERIFY(!voice->LastError().isEmpty());
    QVERIFY(server_->Start());
    QVERIFY2(SpeakWhole(*voice, u"Noon"_s), qPrintable(voice->LastError()));
}

void tst_RealSoundLoss::countsTheDevicesThereAre() {
    QCOMPARE(CountOf(Program), 1);
    server_->End();
    QCOMPARE(CountOf(Program), 0);
    QVERIFY(server_->Start());
    QCOMPARE(CountOf(Program), 1);
    server_->Freeze();
    QCOMPARE(CountOf(Program), 0);
}

QTEST_GUILESS_MAIN(tst_RealSoundLoss)
#include "tst_RealSoundLoss.moc"
