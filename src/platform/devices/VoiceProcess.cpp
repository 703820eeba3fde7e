#include "platform/devices/VoiceProcess.h"

#include <QDeadlineTimer>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Speech Dispatcher has thousands of voices and takes seconds to count them.
constexpr int IntroductionMilliseconds = 10'000;

QString Decoded(const QByteArray& word) {
    return QString::fromUtf8(QByteArray::fromBase64(word));
}

QByteArray Encoded(const QString& text) {
    return text.toUtf8().toBase64();
}

}  // namespace

VoiceProcess::VoiceProcess(const QString& program, const QString& engine) {
    process_.setStandardErrorFile(QProcess::nullDevice());
    // Queued, so that whoever hears of it may destroy the engine.
    QObject::connect(
        &process_, &QProcess::readyRead, &process_, [this] { Read(); }, Qt::QueuedConnection);
    QObject::connect(
        &process_, &QProcess::finished, &process_,
        [this] { Die(u"The speech engine has ended"_s); }, Qt::QueuedConnection);
    QObject::connect(
        &process_, &QProcess::errorOccurred, &process_,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                Die(u"The speech engine can't be started. "_s + process_.errorString());
            }
        },
        Qt::QueuedConnection);
    process_.start(program, engine.isEmpty() ? QStringList() : QStringList(engine));
}

VoiceProcess::~VoiceProcess() {
    OnState = nullptr;
    process_.disconnect();
    process_.kill();
    process_.waitForFinished(1000);
}

QStringList VoiceProcess::Voices() {
    const QDeadlineTimer deadline(IntroductionMilliseconds);
    const QPointer<QProcess> alive = &process_;
    // What the event loop has taken in already would be waited for in vain.
    do {
        Read();
        if (!alive) {
            return {};
        }
    } while (!introduced_ && trouble_.isEmpty() &&
             process_.waitForReadyRead(static_cast<int>(deadline.remainingTime())));
    if (!introduced_ && trouble_.isEmpty() && process_.error() != QProcess::FailedToStart) {
        trouble_ = u"The speech engine does not answer"_s;
        process_.kill();
    }
    return voices_;
}

void VoiceProcess::Apply(const VoiceSettings& settings) {
    process_.write("set " + QByteArray::number(settings.Voice) + ' ' +
                   QByteArray::number(settings.Rate) + ' ' + QByteArray::number(settings.Volume) +
                   '\n');
}

void VoiceProcess::Say(const QString& text) {
    process_.write("say " + Encoded(text) + '\n');
}

void VoiceProcess::Read() {
    const QPointer<QProcess> alive = &process_;
    while (alive && process_.canReadLine()) {
        Hear(process_.readLine().trimmed().split(' '));  // it may end this object's life
    }
}

void VoiceProcess::Hear(const QByteArrayList& words) {
    if (words[0] == "voices") {
        introduced_ = true;
        for (const QByteArray& word : words.mid(1)) {
            voices_ += Decoded(word);
        }
    } else if (words[0] == "speaking") {
        Tell(State::Speaking);
    } else if (words[0] == "ready") {
        Tell(State::Ready);
    } else if (words[0] == "error") {
        const QString reason = Decoded(words.value(1));
        trouble_ = reason.isEmpty() ? u"The speech engine has failed"_s : reason;
        Tell(State::Error);
    }
}

void VoiceProcess::Die(const QString& reason) {
    trouble_ = trouble_.isEmpty() ? reason : trouble_;
    Tell(State::Error);
}

void VoiceProcess::Tell(State state) {
    if (const auto onState = OnState) {
        onState(state);  // it may end this object's life
    }
}

}  // namespace platform
