#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include "devices/Recorder.h"
#include "platform/devices/QtPlayers.h"

using namespace Qt::StringLiterals;
using platform::QtPlayers;

namespace {
const QString Program = QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-player");
}

/// Needs a sound server with a sink "null", and in the folder TEMPOLARK_SOUNDS a tone of one second
/// as tone.wav and in a compressed form as tone.mp3 and tone.ogg.
class tst_RealPlayers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void playsToTheEnd_data();
    void playsToTheEnd();
    void repeats();
    void pausesAndStops();
    void tellsWhatIsNoSound_data();
    void tellsWhatIsNoSound();
    void forgetsTheLastError();
    void mayDieWhileItPlays();

private:
    static QString Sound(const QString& name) {
        return qEnvironmentVariable("TEMPOLARK_SOUNDS") + u'/' + name;
    }
    QTemporaryDir folder_;
};

void tst_RealPlayers::playsToTheEnd_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("wav") << u"tone.wav"_s;
    QTest::newRow("mp3") << u"tone.mp3"_s;
    QTest::newRow("ogg") << u"tone.ogg"_s;
}

void tst_RealPlayers::playsToTheEnd() {
    QFETCH(QString, name);
    if (!QFile::exists(Sound(name))) {
        QSKIP("there is no such sound: sox lacks the format");
    }
    Recorder recorder;
    QVERIFY(recorder.Gather(0.5));
    const qsizetype before = recorder.Samples();
    const auto player = QtPlayers(Program).MakePlayer();
    QCOMPARE(player->PlayState(), 1);
    player->SetVolume(100);
    player->SetUrl(Sound(name));  // which starts it
    QTRY_COMPARE(player->PlayState(), 3);
    QTRY_VERIFY_WITH_TIMEOUT(player->PlayState() != 3, 30'000);
    QCOMPARE(player->LastError(), QString());
    QVERIFY(recorder.Gather(0.5));
    const double seconds = recorder.LoudSeconds(before, recorder.Samples());
    qInfo("%s: RMS before %.1f, while playing %.1f; heard for %.2f s", qPrintable(name),
          recorder.Rms(0, before), recorder.Rms(before, recorder.Samples()), seconds);
    QVERIFY(recorder.Rms(0, before) < 10);
    QVERIFY2(seconds > 0.5 && seconds < 1.5, qPrintable(QString::number(seconds)));
}

void tst_RealPlayers::repeats() {
    Recorder recorder;
    const auto player = QtPlayers(Program).MakePlayer();
    for (int i = 0; i < 2; ++i) {
        player->SetUrl(Sound(u"tone.wav"_s));
        QTRY_COMPARE(player->PlayState(), 3);
        QTRY_VERIFY_WITH_TIMEOUT(player->PlayState() != 3, 30'000);
    }
    player->Play();
    QTRY_COMPARE(player->PlayState(), 3);
    QTRY_VERIFY_WITH_TIMEOUT(player->PlayState() != 3, 30'000);
    QVERIFY(recorder.Gather(0.5));
    QVERIFY(recorder.LoudSeconds(0, recorder.Samples()) > 1.5);
}

void tst_RealPlayers::pausesAndStops() {
    const auto player = QtPlayers(Program).MakePlayer();
    player->SetUrl(Sound(u"tone.wav"_s));
    QTRY_COMPARE(player->PlayState(), 3);
    player->Pause();
    QTRY_COMPARE(player->PlayState(), 2);
    player->Stop();
    QTRY_COMPARE(player->PlayState(), 1);
}

void tst_RealPlayers::tellsWhatIsNoSound_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("This is no sound at all.\n").repeated(100);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(100'000, '\0');
    QTest::newRow("head of a wav") << QByteArray("RIFF\x24\xff\xff\x7fWAVEfmt ", 16);
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "PNG"));
    QTest::newRow("picture") << png;
}

void tst_RealPlayers::tellsWhatIsNoSound() {
    QFETCH(QByteArray, content);
    const QString path = folder_.filePath(u"broken.wav"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    const auto player = QtPlayers(Program).MakePlayer();
    player->SetUrl(path);
    QTRY_VERIFY(!player->LastError().isEmpty());
    QTRY_VERIFY(player->PlayState() != 3);
    qInfo("%s", qPrintable(player->LastError()));
}

void tst_RealPlayers::forgetsTheLastError() {
    const auto player = QtPlayers(Program).MakePlayer();
    player->SetUrl(folder_.filePath(u"missing.wav"_s));
    QCOMPARE(player->LastError(), u"There is no "_s + folder_.filePath(u"missing.wav"_s));
    player->Play();
    QCOMPARE(player->PlayState(), 1);
    player->SetUrl(folder_.path());
    QVERIFY(!player->LastError().isEmpty());
    player->SetUrl(Sound(u"tone.wav"_s));
    QCOMPARE(player->PlayState(), 3);
    QCOMPARE(player->LastError(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(player->PlayState() != 3, 30'000);
    QCOMPARE(player->LastError(), QString());
}

void tst_RealPlayers::mayDieWhileItPlays() {
    for (int i = 0; i < 5; ++i) {
        auto player = QtPlayers(Program).MakePlayer();
        player->SetUrl(Sound(u"tone.wav"_s));
        QTRY_COMPARE(player->PlayState(), 3);
        player.reset();
        QVERIFY(player == nullptr);
    }
}

QTEST_GUILESS_MAIN(tst_RealPlayers)
#include "tst_RealPlayers.moc"
