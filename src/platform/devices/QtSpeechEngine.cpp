#include "platform/devices/QtSpeechEngine.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QVoice>

namespace platform {

namespace {

constexpr double FullRate = 10.0;
constexpr double FullVolume = 100.0;

bool IsAtRest(QTextToSpeech::State state) {
    return state == QTextToSpeech::Ready || state == QTextToSpeech::Error;
}

}  // namespace

void RestlessEngines::Take(std::unique_ptr<QTextToSpeech> engine) {
    ++*count_;
    QTextToSpeech* speech = engine.release();
    const auto rest = [count = count_, speech, resting = false](auto state) mutable {
        if (IsAtRest(state) && !std::exchange(resting, true)) {
            --*count;
            speech->deleteLater();
        }
    };
    QObject::connect(speech, &QTextToSpeech::stateChanged, speech, rest, Qt::QueuedConnection);
    speech->stop();
}

void RestlessEngines::Settle() {
    const QDeadlineTimer deadline(2000);
    while (*count_ > 0 && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(5);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QtSpeechEngine::QtSpeechEngine(const QString& name, std::shared_ptr<RestlessEngines> restless)
    : restless_(std::move(restless)), speech_(std::make_unique<QTextToSpeech>(name)) {
    // Queued, so that whoever hears of it may destroy the engine.
    QObject::connect(
        speech_.get(), &QTextToSpeech::stateChanged, &context_,
        [this](QTextToSpeech::State state) { Change(state); }, Qt::QueuedConnection);
}

QtSpeechEngine::~QtSpeechEngine() {
    if (busy_) {
        restless_->Take(std::move(speech_));
    }
}

QStringList QtSpeechEngine::Voices() const {
    QStringList names;
    for (const QVoice& voice : speech_->availableVoices()) {
        names += voice.name();
    }
    return names;
}

void QtSpeechEngine::Apply(const VoiceSettings& settings) {
    const QList<QVoice> voices = speech_->availableVoices();
    if (settings.Voice >= 0 && settings.Voice < voices.size()) {
        speech_->setVoice(voices[settings.Voice]);
    }
    speech_->setRate(settings.Rate / FullRate);
    speech_->setVolume(settings.Volume / FullVolume);
}

void QtSpeechEngine::Say(const QString& text) {
    busy_ = true;
    speech_->say(text);
}

QString QtSpeechEngine::Trouble() const {
    const QString reason = speech_->errorString();
    return reason.isEmpty() && speech_->state() == QTextToSpeech::Error
               ? QStringLiteral("The speech engine has failed")
               : reason;
}

void QtSpeechEngine::Change(QTextToSpeech::State state) {
    busy_ = busy_ && !IsAtRest(state);
    const auto onState = OnState;  // the call may end this engine's life
    if (!onState) {
        return;
    }
    if (state == QTextToSpeech::Speaking) {
        onState(State::Speaking);
    } else if (IsAtRest(state)) {
        onState(state == QTextToSpeech::Error ? State::Error : State::Ready);
    }
}

}  // namespace platform
