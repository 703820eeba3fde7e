#include "platform/devices/VoiceProcess.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString Decoded(const QByteArray& word) {
    return QString::fromUtf8(QByteArray::fromBase64(word));
}

QByteArray Encoded(const QString& text) {
    return text.toUtf8().toBase64();
}

}  // namespace

VoiceProcess::VoiceProcess(const QString& program, const QString& engine) {
    QProcess* process = process_.get();
    // Queued, so that whoever hears of it may destroy the engine.
    QObject::connect(
        process, &QProcess::readyRead, process, [this] { Read(); }, Qt::QueuedConnection);
    QObject::connect(
        process, &QProcess::finished, process, [this] { Die(u"The speech engine has ended"_s); },
        Qt::QueuedConnection);
    QObject::connect(
        process, &QProcess::errorOccurred, process,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                Die(u"The speech engine can't be started. "_s + process_->errorString());
            }
        },
        Qt::QueuedConnection);
    process->start(program, engine.isEmpty() ? QStringList() : QStringList(engine));
}

VoiceProcess::~VoiceProcess() {
    OnState = nullptr;
    LetGo(std::move(process_));
}

void VoiceProcess::Apply(const VoiceSettings& settings) {
    process_->write("set " + QByteArray::number(settings.Voice) + ' ' +
                    QByteArray::number(settings.Rate) + ' ' + QByteArray::number(settings.Volume) +
                    '\n');
}

void VoiceProcess::Say(const QString& text) {
    process_->write("say " + Encoded(text) + '\n');
}

void VoiceProcess::Read() {
    const std::weak_ptr<bool> life = life_;
    while (!life.expired() && process_->canReadLine()) {
        Hear(process_->readLine().trimmed().split(' '));  // it may end this object's life
    }
}

void VoiceProcess::Hear(const QByteArrayList& words) {
    if (words[0] == "voices") {
        for (const QByteArray& word : words.mid(1)) {
            voices_ += Decoded(word);
        }
        TellVoices();
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
    const std::weak_ptr<bool> life = life_;
    TellVoices();
    if (!life.expired()) {
        Tell(State::Error);
    }
}

void VoiceProcess::TellVoices() {
    if (const auto onVoices = std::exchange(OnVoices, nullptr)) {
        onVoices(voices_);  // it may end this object's life
    }
}

void VoiceProcess::Tell(State state) {
    if (const auto onState = OnState) {
        onState(state);  // it may end this object's life
    }
}

}  // namespace platform
