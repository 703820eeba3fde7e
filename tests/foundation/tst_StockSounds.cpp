#include <QDir>
#include <QFile>
#include <QTest>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;

namespace {

QDir Data(const QString& folder) {
    return QDir(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/") + folder);
}

QStringList SoundFiles() {
    return Data(u"SoundFiles"_s).entryList({u"*.wav"_s}, QDir::Files, QDir::Name);
}

QStringList MusicFiles() {
    return Data(u"Music"_s).entryList(QDir::Files, QDir::Name);
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct WavFile {
    int Format = 0, Channels = 0, Rate = 0, Bits = 0;
    std::vector<double> Samples;  // 1 is full scale

    double Seconds() const { return static_cast<double>(Samples.size()) / Rate; }
};

template <typename Number>
int NumberAt(const QByteArray& bytes, qsizetype at) {
    return at + qsizetype(sizeof(Number)) <= bytes.size()
               ? qFromLittleEndian<Number>(bytes.constData() + at)
               : 0;
}

/// Empty when the file is no RIFF of waves or is cut short.
WavFile ReadWav(const QString& path) {
    const QByteArray bytes = Bytes(path);
    WavFile wav;
    if (!bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE" ||
        NumberAt<qint32>(bytes, 4) + 8 != bytes.size()) {
        return wav;
    }
    for (qsizetype at = 12; at + 8 <= bytes.size();) {
        const QByteArray name = bytes.mid(at, 4);
        const qsizetype length = NumberAt<qint32>(bytes, at + 4);
        at += 8;
        if (length < 0 || at + length > bytes.size()) {
            return {};
        }
        if (name == "fmt ") {
            wav.Format = NumberAt<qint16>(bytes, at);
            wav.Channels = NumberAt<qint16>(bytes, at + 2);
            wav.Rate = NumberAt<qint32>(bytes, at + 4);
            wav.Bits = NumberAt<qint16>(bytes, at + 14);
        } else if (name == "data") {
            for (qsizetype i = at; i + 1 < at + length; i += 2) {
                wav.Samples.push_back(NumberAt<qint16>(bytes, i) / 32768.0);
            }
        }
        at += length + length % 2;
    }
    return wav;
}

WavFile ReadSound(const QString& name) {
    return ReadWav(Data(u"SoundFiles"_s).filePath(name));
}

double Decibels(double level) {
    return 20 * std::log10(level + 1e-9);
}

/// Samples from one part of the sound to another, 0 to 1.
std::span<const double> Part(const WavFile& wav, double from, double to) {
    const auto at = [&wav](double part) {
        return static_cast<std::size_t>(part * static_cast<double>(wav.Samples.size()));
    };
    return std::span(wav.Samples).subspan(at(from), at(to) - at(from));
}

double Peak(std::span<const double> samples) {
    double peak = 0;
    for (const double sample : samples) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

double Power(std::span<const double> samples) {
    double sum = 0;
    for (const double sample : samples) {
        sum += sample * sample;
    }
    return samples.empty() ? 0 : sum / static_cast<double>(samples.size());
}

/// Level of those blocks of 10 ms that are at most 10 dB below the loudest.
double LoudLevel(const WavFile& wav) {
    const auto block = static_cast<std::size_t>(wav.Rate / 100);
    std::vector<double> powers;
    for (std::size_t at = 0; at + block <= wav.Samples.size(); at += block) {
        powers.push_back(Power(std::span(wav.Samples).subspan(at, block)));
    }
    const double loudest = *std::max_element(powers.begin(), powers.end());
    double sum = 0;
    int count = 0;
    for (const double power : powers) {
        if (power >= loudest / 10) {
            sum += power;
            ++count;
        }
    }
    return Decibels(std::sqrt(sum / count));
}

/// The length of an mp3 by its frames, each of which must begin where the last one ends; -1 when
/// one does not. Only what the music uses is known: version 1, layer 3, 44.1 kHz.
double Mp3Seconds(const QByteArray& bytes) {
    constexpr int kilobits[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    int frames = 0;
    for (qsizetype at = 0; at < bytes.size(); ++frames) {
        const auto byte = [&bytes, at](int i) { return static_cast<quint8>(bytes[at + i]); };
        if (at + 4 > bytes.size() || byte(0) != 0xff || (byte(1) & 0xfe) != 0xfa ||
            byte(2) >> 4 == 15 || (byte(2) & 0x0c) != 0) {
            return -1;
        }
        const int padding = (byte(2) >> 1) & 1;
        at += 144 * 1000 * kilobits[byte(2) >> 4] / 44100 + padding;
    }
    return frames * 1152 / 44100.0;
}

}  // namespace

class tst_StockSounds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ThereAreManySounds();
    void EachIsPlainWave_data();
    void EachIsPlainWave();
    void EachIsLoudAndUncut_data() { EachIsPlainWave_data(); }
    void EachIsLoudAndUncut();
    void EachSwingsAroundZero_data() { EachIsPlainWave_data(); }
    void EachSwingsAroundZero();
    void EachBeginsAndEndsInSilence_data() { EachIsPlainWave_data(); }
    void EachBeginsAndEndsInSilence();
    void EachHasItsLength_data();
    void EachHasItsLength();
    void TheLevelsAreEven();
    void TheAlarmGrows();
    void TicksComeOneAtATime();
    void NoTwoSoundsAreAlike();
    void ThereAreThreePieces();
    void MusicIsWholeAndShort();
    void TheMusicIsSmall();
    void AreOfferedForTimers();
};

void tst_StockSounds::ThereAreManySounds() {
    QVERIFY(SoundFiles().size() >= 12);
    QCOMPARE(Data(u"SoundFiles"_s).entryList(QDir::Files, QDir::Name), SoundFiles());
}

void tst_StockSounds::EachIsPlainWave_data() {
    QTest::addColumn<QString>("name");
    for (const QString& name : SoundFiles()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_StockSounds::EachIsPlainWave() {
    QFETCH(QString, name);
    const WavFile wav = ReadSound(name);
    QCOMPARE(wav.Format, 1);
    QCOMPARE(wav.Bits, 16);
    QCOMPARE(wav.Channels, 1);
    QCOMPARE(wav.Rate, 22050);
}

void tst_StockSounds::EachIsLoudAndUncut() {
    QFETCH(QString, name);
    const double peak = Decibels(Peak(ReadSound(name).Samples));
    QVERIFY2(peak < -1 && peak > -9, qPrintable(QString::number(peak)));
}

void tst_StockSounds::EachSwingsAroundZero() {
    QFETCH(QString, name);
    const WavFile wav = ReadSound(name);
    QVERIFY(!wav.Samples.empty());
    double sum = 0;
    for (const double sample : wav.Samples) {
        sum += sample;
    }
    QVERIFY(std::abs(sum / static_cast<double>(wav.Samples.size())) < 0.001);
}

// Where a sound starts or stops at once, a click is heard.
void tst_StockSounds::EachBeginsAndEndsInSilence() {
    QFETCH(QString, name);
    const WavFile wav = ReadSound(name);
    constexpr std::size_t millisecond = 22;  // samples
    QVERIFY(wav.Samples.size() > 2 * millisecond);
    QVERIFY(Peak(std::span(wav.Samples).first(millisecond)) < 0.001);
    QVERIFY(Peak(std::span(wav.Samples).last(millisecond)) < 0.001);
}

void tst_StockSounds::EachHasItsLength_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::newRow("bell") << u"Bell.wav"_s << 1.5 << 4.0;
    QTest::newRow("chime") << u"Westward Chime.wav"_s << 1.5 << 5.0;
    QTest::newRow("two notes") << u"Two Notes.wav"_s << 0.5 << 2.0;
    QTest::newRow("clock tick") << u"Clock Tick.wav"_s << 0.03 << 0.15;
    QTest::newRow("soft tick") << u"Soft Tick.wav"_s << 0.03 << 0.15;
    QTest::newRow("wood block") << u"Wood Block.wav"_s << 0.05 << 0.4;
    QTest::newRow("glass") << u"Glass.wav"_s << 1.0 << 4.0;
    QTest::newRow("marimba") << u"Marimba.wav"_s << 0.5 << 3.0;
    QTest::newRow("gong") << u"Gong.wav"_s << 1.5 << 4.0;
    QTest::newRow("bowl") << u"Singing Bowl.wav"_s << 1.5 << 4.0;
    QTest::newRow("alarm") << u"Rising Alarm.wav"_s << 7.0 << 9.0;
    QTest::newRow("beeps") << u"Digital Beeps.wav"_s << 0.5 << 2.0;
    QTest::newRow("harp") << u"Harp.wav"_s << 1.5 << 4.0;
    QTest::newRow("dewdrop") << u"Dewdrop.wav"_s << 0.3 << 2.0;
}

void tst_StockSounds::EachHasItsLength() {
    QFETCH(QString, name);
    QFETCH(double, least);
    QFETCH(double, most);
    const double seconds = ReadSound(name).Seconds();
    QVERIFY2(seconds >= least && seconds <= most, qPrintable(QString::number(seconds)));
}

void tst_StockSounds::TheLevelsAreEven() {
    for (const QString& name : SoundFiles()) {
        const double level = LoudLevel(ReadSound(name));
        QVERIFY2(level > -15 && level < -10, qPrintable(name + QString::number(level)));
    }
}

void tst_StockSounds::TheAlarmGrows() {
    const WavFile alarm = ReadSound(u"Rising Alarm.wav"_s);
    const double first = Power(Part(alarm, 0, 1 / 3.0));
    const double second = Power(Part(alarm, 1 / 3.0, 2 / 3.0));
    const double third = Power(Part(alarm, 2 / 3.0, 1));
    QVERIFY(second > 2 * first);
    QVERIFY(third > 2 * second);
    QVERIFY(third > 10 * first);
}

// A tick must be over long before the next second.
void tst_StockSounds::TicksComeOneAtATime() {
    for (const QString& name : {u"Clock Tick.wav"_s, u"Soft Tick.wav"_s}) {
        const WavFile tick = ReadSound(name);
        QVERIFY(Power(Part(tick, 0, 0.5)) > 100 * Power(Part(tick, 0.5, 1)));
    }
}

void tst_StockSounds::NoTwoSoundsAreAlike() {
    QSet<QByteArray> contents;
    for (const QString& name : SoundFiles()) {
        contents += Bytes(Data(u"SoundFiles"_s).filePath(name));
    }
    QCOMPARE(contents.size(), SoundFiles().size());
}

void tst_StockSounds::ThereAreThreePieces() {
    QCOMPARE(MusicFiles(),
             QStringList({u"Little Waltz.mp3"_s, u"Morning Strings.mp3"_s, u"Still Water.mp3"_s}));
}

void tst_StockSounds::MusicIsWholeAndShort() {
    for (const QString& name : MusicFiles()) {
        const double seconds = Mp3Seconds(Bytes(Data(u"Music"_s).filePath(name)));
        QVERIFY2(seconds > 20 && seconds < 35, qPrintable(name + QString::number(seconds)));
    }
}

void tst_StockSounds::TheMusicIsSmall() {
    qint64 bytes = 0;
    for (const QFileInfo& file : Data(u"Music"_s).entryInfoList(QDir::Files)) {
        QVERIFY(file.size() > 100'000);
        bytes += file.size();
    }
    QVERIFY(bytes < 1'500'000);
}

// The choices of a new timer's sound are "None" and all that there are.
void tst_StockSounds::AreOfferedForTimers() {
    ClockProperties defaults;
    QVERIFY(mduLib::ReadPropertyFile(platform::LocalFiles(),
                                     QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/Tempolark.ini"),
                                     defaults));
    QCOMPARE(mduLib::GetProperty(u"Timer Sound File"_s, defaults), u".\\SoundFiles\\Marimba.wav"_s);
    QStringList offered = mduLib::GetPropertyChoices(u"Timer Sound File"_s, defaults).split(u',');
    QCOMPARE(offered.takeFirst(), u"None"_s);
    offered.replaceInStrings(u".\\SoundFiles\\"_s, QString());
    QCOMPARE(offered, SoundFiles());
}

QTEST_GUILESS_MAIN(tst_StockSounds)
#include "tst_StockSounds.moc"
