#include "platform/devices/QueuedVoice.h"

#include <QCoreApplication>
#include <algorithm>

#include "platform/SpeechFlags.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int LongestWait = 24 * 3'600'000;  // milliseconds

/// Tells a listener from the event loop, if both are still there by then.
void TellLater(const std::weak_ptr<const VoiceDirectory::Listener>& listener) {
    const auto tell = [listener] {
        if (const auto alive = listener.lock()) {
            (*alive)();
        }
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), tell, Qt::QueuedConnection);
}

}  // namespace

std::shared_ptr<Utterance> SpeechQueue::Add(std::shared_ptr<VoiceCore> voice, const QString& text,
                                            std::weak_ptr<const VoiceDirectory::Listener> onEnd) {
    int ahead = 0;
    for (const auto& other : messages_) {
        ahead = std::min(ahead + other->Bound(), LongestWait);
    }
    auto message = std::make_shared<Utterance>(std::move(voice), text, bounds_, ahead);
    message->OnEnd = [this, onEnd = std::move(onEnd)] {
        TellLater(onEnd);
        Next();
    };
    messages_.push_back(message);
    Next();
    return message;
}

void SpeechQueue::Purge(const VoiceCore& voice) {
    const auto present = messages_;
    // From the last one: the end of a message begins the next.
    for (auto message = present.rbegin(); message != present.rend(); ++message) {
        if ((*message)->Voice() == &voice) {
            (*message)->End({});
        }
    }
}

void SpeechQueue::Next() {
    std::erase_if(messages_, [](const auto& message) { return message->HasEnded(); });
    if (!messages_.empty() && !messages_.front()->HasBegun()) {
        const auto first = messages_.front();  // it may end in here and be taken off
        first->Begin();
    }
}

QueuedVoice::QueuedVoice(std::shared_ptr<SpeechQueue> queue, MakeEngine make,
                         std::shared_ptr<VoiceDirectory> directory)
    : queue_(std::move(queue)),
      core_(std::make_shared<VoiceCore>()),
      directory_(std::move(directory)) {
    core_->Make = std::move(make);
}

QueuedVoice::~QueuedVoice() {
    queue_->Purge(*core_);
}

void QueuedVoice::SetOnNews(const std::function<void()>& onNews) {
    onNews_ = std::make_shared<const VoiceDirectory::Listener>(onNews);
    directory_->Listen(onNews_);
}

void QueuedVoice::SetVoice(int index) {
    core_->Settings.Voice = index;
    Apply();
}

void QueuedVoice::SetRate(int rate) {
    core_->Settings.Rate = std::clamp(rate, -10, 10);
    Apply();
}

void QueuedVoice::SetVolume(int volume) {
    core_->Settings.Volume = std::clamp(volume, 0, 100);
    Apply();
}

void QueuedVoice::Apply() {
    if (core_->Engine) {
        core_->Engine->Apply(core_->Settings);
    }
}

bool QueuedVoice::Speak(const QString& text, int flags) {
    const bool silent = text == u"."_s;
    if (silent || (flags & SpeechFlag::PurgeBeforeSpeak) != 0) {
        queue_->Purge(*core_);
    }
    last_ = nullptr;
    if (silent || !IsAudible(text)) {
        return true;
    }
    last_ = queue_->Add(core_, text, onNews_);
    return last_->Reason().isEmpty();
}

QString QueuedVoice::LastError() const {
    return last_ ? last_->Reason() : QString();
}

}  // namespace platform
