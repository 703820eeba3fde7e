#include <QTest>
#include <QTimer>

#include "devices/Flite.h"
#include "devices/Recorder.h"
#include "devices/Speaking.h"
#include "platform/devices/QtPlayers.h"
#include "platform/devices/QtVoices.h"

using namespace Qt::StringLiterals;
using platform::QtVoices;

namespace {
const QString Program = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-voice");
const QString PlayerProgram = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-player");
}  // namespace

/// Needs the flite engine and a sound server with a sink "null".
class tst_RealVoices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listsVoices();
    void isHeard();
    void volumeIsHeard();
    void takesTurns();
    void isCutOff();
    void speaksOnAfterEveryPurge();
    void saysTheSoundlessAtOnce();

private:
    /// As an end user has it, but for a machine that is busy with building.
    platform::SpeechBounds bounds_{.Start = 30'000, .Base = 30'000};
};

void tst_RealVoices::initTestCase() {
    if (!HasFlite()) {
        QSKIP("there is no speech engine flite");
    }
    QCOMPARE(CountOf(PlayerProgram), 1);
}

void tst_RealVoices::listsVoices() {
    QtVoices voices(Program, u"flite"_s);
    const QStringList names = VoicesOf(*voices.MakeVoice());
    QVERIFY(!names.isEmpty());
    QVERIFY(!names.contains(QString()));
    QCOMPARE(VoicesOf(*voices.MakeVoice()), names);
    // Left to itself, the machine finds an engine that works.
    QVERIFY(!VoicesOf(*QtVoices(Program).MakeVoice()).isEmpty());
    QCOMPARE(VoicesOf(*QtVoices(Program, u"no such engine"_s).MakeVoice()), QStringList());
}

void tst_RealVoices::isHeard() {
    Recorder recorder;
    QVERIFY(recorder.Gather(1.0));
    const qsizetype before = recorder.Samples();
    const double silence = recorder.Rms(0, before);

    QtVoices voices(Program, u"flite"_s, bounds_);
    const auto voice = voices.MakeVoice();
    QVERIFY2(SpeakWhole(*voice, u"It is a quarter past ten in the morning"_s),
             qPrintable(voice->LastError()));
    QCOMPARE(voice->LastError(), QString());
    QVERIFY(recorder.Gather(0.5));
    const qsizetype after = recorder.Samples();
    const double loudness = recorder.Rms(before, after);
    const double seconds = recorder.LoudSeconds(before, after);
    recorder.Keep(u"spoken-time"_s);

    qInfo("RMS before %.1f, while speaking %.1f; heard for %.2f s", silence, loudness, seconds);
    QVERIFY2(silence < 10, qPrintable(QString::number(silence)));
    QVERIFY2(loudness > 500, qPrintable(QString::number(loudness)));
    QVERIFY2(seconds > 1.0, qPrintable(QString::number(seconds)));  // nine words
}

void tst_RealVoices::volumeIsHeard() {
    QtVoices voices(Program, u"flite"_s, bounds_);
    const auto voice = voices.MakeVoice();
    double loudness[2] = {0, 0};
    for (const int i : {0, 1}) {
        Recorder recorder;
        QVERIFY(recorder.Gather(0.1));
        voice->SetVolume(i == 0 ? 100 : 20);
        QVERIFY(SpeakWhole(*voice, u"Good morning"_s));
        QVERIFY(recorder.Gather(0.3));
        loudness[i] = recorder.Rms(0, recorder.Samples());
    }
    qInfo("RMS at volume 100: %.1f, at 20: %.1f", loudness[0], loudness[1]);
    QVERIFY(loudness[1] > 0);
    QVERIFY(loudness[0] > 2 * loudness[1]);
}

// Heard one after the other they take twice the time of one; both at once they would not.
void tst_RealVoices::takesTurns() {
    const QString text = u"The quick brown fox jumps over the lazy dog"_s;
    QtVoices voices(Program, u"flite"_s, bounds_);
    const auto first = voices.MakeVoice();
    const auto second = voices.MakeVoice();
    double seconds[2] = {0, 0};
    for (const int both : {0, 1}) {
        Recorder recorder;
        QVERIFY(recorder.Gather(0.1));
        bool spoken = both == 0;
        if (both == 1) {
            QTimer::singleShot(100, this, [&] { spoken = second->Speak(text, 2); });
        }
        QVERIFY2(SpeakWhole(*first, text), qPrintable(first->LastError()));
        QTRY_VERIFY_WITH_TIMEOUT(!second->IsSpeaking(), 60'000);
        QVERIFY2(spoken && second->LastError().isEmpty(), qPrintable(second->LastError()));
        QVERIFY(recorder.Gather(0.5));
        seconds[both] = recorder.LoudSeconds(0, recorder.Samples());
    }
    qInfo("One voice is heard for %.2f s, two for %.2f s", seconds[0], seconds[1]);
    QVERIFY(seconds[0] > 1.0);
    QVERIFY(seconds[1] > 1.7 * seconds[0]);
}

void tst_RealVoices::isCutOff() {
    QtVoices voices(Program, u"flite"_s, bounds_);
    const auto voice = voices.MakeVoice();
    Recorder recorder;
    QVERIFY(recorder.Gather(0.1));
    QVERIFY(voice->Speak(u"one two three four five six seven eight nine ten "_s.repeated(20), 1));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.LoudSeconds(0, recorder.Samples()) > 0.5, 30'000);
    QVERIFY(voice->Speak(u"."_s, 2));
    QVERIFY(recorder.Gather(1.0));
    const qsizetype stopped = recorder.Samples();
    QVERIFY(recorder.Gather(0.5));
    const double rest = recorder.Rms(stopped, recorder.Samples());
    QVERIFY2(rest < 10, qPrintable(QString::number(rest)));
}

// Engines are dropped at work here, which must not bring the program down.
void tst_RealVoices::speaksOnAfterEveryPurge() {
    QtVoices voices(Program, u"flite"_s, bounds_);
    const auto voice = voices.MakeVoice();
    const QString longText = u"The quick brown fox jumps over the lazy dog. "_s.repeated(2000);
    for (int i = 0; i < 10; ++i) {
        QVERIFY(voice->Speak(longText, 3));
        QTest::qWait(i * 20);  // at another point of its work each time
    }
    QVERIFY2(SpeakWhole(*voice, u"Done"_s), qPrintable(voice->LastError()));
}

void tst_RealVoices::saysTheSoundlessAtOnce() {
    QtVoices voices(Program, u"flite"_s, bounds_);
    const auto voice = voices.MakeVoice();
    QVERIFY(SpeakWhole(*voice, u"..."_s));
    QCOMPARE(voice->LastError(), QString());
}

QTEST_GUILESS_MAIN(tst_RealVoices)
#include "tst_RealVoices.moc"
