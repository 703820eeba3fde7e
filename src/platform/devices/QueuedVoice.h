#pragma once

#include <vector>

#include "platform/Machine.h"
#include "platform/devices/Utterance.h"

namespace platform {

/// The messages of all voices. One is spoken at a time, in the order in which they came.
class SpeechQueue {
public:
    explicit SpeechQueue(const SpeechBounds& bounds = {}) : bounds_(bounds) {}

    std::shared_ptr<Utterance> Add(std::shared_ptr<VoiceCore> voice, const QString& text);

    /// Cuts off what a voice says and takes back what it has still to say.
    void Purge(const VoiceCore& voice);

private:
    void Next();

    SpeechBounds bounds_;
    std::vector<std::shared_ptr<Utterance>> messages_;  ///< the first one is being spoken
};

/// The voice of one clock. It speaks in its turn, with an engine of its own.
///
/// The flags of `Speak`: 1 returns at once, 2 first purges what this voice is saying. Without 1 the
/// call returns when the speech is done, and the event loop runs meanwhile. The text "." purges and
/// says nothing. It answers False when the text could not be spoken; `LastError` tells why. The
/// next message tries again with a fresh engine. A voice may be destroyed while it speaks.
class QueuedVoice final : public Voice {
public:
    QueuedVoice(std::shared_ptr<SpeechQueue> queue, MakeEngine make,
                std::function<QStringList(VoiceCore&)> descriptions = {});
    ~QueuedVoice() override;
    Q_DISABLE_COPY_MOVE(QueuedVoice)

    QStringList Descriptions() const override;
    void SetVoice(int index) override;
    void SetRate(int rate) override;
    void SetVolume(int volume) override;
    bool Speak(const QString& text, int flags) override;
    QString LastError() const override;

private:
    void Apply();

    std::shared_ptr<SpeechQueue> queue_;
    std::shared_ptr<VoiceCore> core_;
    std::function<QStringList(VoiceCore&)> descriptions_;
    std::shared_ptr<Utterance> last_;  ///< the last message, whose reason is `LastError`
};

}  // namespace platform
