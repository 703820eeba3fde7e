#pragma once

#include <QFile>
#include <QProcess>
#include <QTest>
#include <QtEndian>
#include <cmath>
#include <utility>

/// Records what comes out of the sound server's sink "null": one channel, 16 bits, 16,000 samples a
/// second.
class Recorder {
public:
    static constexpr int SamplesPerSecond = 16'000;
    static constexpr int Window = SamplesPerSecond / 20;

    Recorder() {
        process_.setProcessChannelMode(QProcess::SeparateChannels);
        process_.start(QStringLiteral("parec"),
                       {QStringLiteral("--device=null.monitor"), QStringLiteral("--format=s16le"),
                        QStringLiteral("--channels=1"), QStringLiteral("--rate=16000"),
                        QStringLiteral("--latency-msec=20")});
    }

    ~Recorder() {
        process_.kill();
        process_.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Recorder)

    qsizetype Samples() {
        data_ += process_.readAllStandardOutput();
        return data_.size() / 2;
    }

    /// Records for some more sound time.
    bool Gather(double seconds) {
        const qsizetype wanted = Samples() + static_cast<qsizetype>(seconds * SamplesPerSecond);
        return QTest::qWaitFor([&] { return Samples() >= wanted; }, 30'000);
    }

    /// The loudness of the samples from @p from up to @p to; full scale is 32767.
    double Rms(qsizetype from, qsizetype to) const {
        double sum = 0;
        for (qsizetype i = from; i < to; ++i) {
            const double sample = qFromLittleEndian<qint16>(data_.constData() + 2 * i);
            sum += sample * sample;
        }
        return to > from ? std::sqrt(sum / static_cast<double>(to - from)) : 0.0;
    }

    /// The loudness of each twentieth of a second.
    QList<double> Windows(qsizetype from, qsizetype to) const {
        QList<double> windows;
        for (qsizetype i = from; i + Window <= to; i += Window) {
            windows += Rms(i, i + Window);
        }
        return windows;
    }

    /// The sound time in which something is heard, in seconds.
    double LoudSeconds(qsizetype from, qsizetype to) const {
        const QList<double> windows = Windows(from, to);
        return 0.05 * static_cast<double>(std::count_if(windows.begin(), windows.end(),
                                                        [](double loud) { return loud > 100; }));
    }

    /// Keeps it as raw samples in the folder TEMPOLARK_KEEP, where that is set.
    void Keep(const QString& name) const {
        const QString folder = qEnvironmentVariable("TEMPOLARK_KEEP");
        if (folder.isEmpty()) {
            return;
        }
        QFile file(folder + u'/' + name + QStringLiteral(".raw"));
        if (!file.open(QIODevice::WriteOnly) || file.write(data_) != data_.size()) {
            qWarning("can't keep %s", qPrintable(file.fileName()));
        }
    }

private:
    QProcess process_;
    QByteArray data_;
};
