#pragma once

#include <vector>

#include "platform/Voices.h"
#include "platform/devices/Utterance.h"
#include "platform/devices/VoiceDirectory.h"

namespace platform {

/// The messages of all voices. One is spoken at a time, in the order in which they came.
class SpeechQueue {
public:
    /// @param bounds how long a message may take to begin and to end
    explicit SpeechQueue(const SpeechBounds& bounds = {}) : bounds_(bounds) {}

    /// @param onEnd is called, from the event loop, when the message has ended; null is let be
    std::shared_ptr<Utterance> Add(std::shared_ptr<VoiceCore> voice, const QString& text,
                                   std::weak_ptr<const VoiceDirectory::Listener> onEnd = {});

    /// Cuts off what a voice says and takes back what it has still to say.
    void Purge(const VoiceCore& voice);

private:
    void Next();

    SpeechBounds bounds_;
    std::vector<std::shared_ptr<Utterance>> messages_;  ///< the first one is being spoken
};

/// The voice of one clock. It speaks in its turn, with an engine of its own.
///
/// `Speak` comes back at once; the flag 2 first purges what this voice is saying. The text "."
/// purges and says nothing. `LastError` tells in the end why a text could not be spoken. The next
/// message tries again with a fresh engine. A voice may be destroyed while it speaks.
class QueuedVoice final : public Voice {
public:
    /// @param make makes the engine of this voice
    /// @param directory which voices there are; by default none
    QueuedVoice(std::shared_ptr<SpeechQueue> queue, MakeEngine make,
                std::shared_ptr<VoiceDirectory> directory = std::make_shared<VoiceDirectory>());
    ~QueuedVoice() override;
    Q_DISABLE_COPY_MOVE(QueuedVoice)

    QStringList Descriptions() const override { return directory_->Descriptions(); }
    bool IsAsking() const override { return directory_->IsAsking(); }
    /// @param index into `Descriptions`
    void SetVoice(int index) override;
    /// @param rate -10 to 10; beyond that it is held to the nearer of the two
    void SetRate(int rate) override;
    /// @param volume 0 to 100, held likewise
    void SetVolume(int volume) override;
    bool Speak(const QString& text, int flags) override;
    /// A message that waits for its turn counts as spoken.
    bool IsSpeaking() const override { return last_ && !last_->HasEnded(); }
    QString LastError() const override;
    void SetOnNews(const std::function<void()>& onNews) override;

private:
    void Apply();

    std::shared_ptr<SpeechQueue> queue_;
    std::shared_ptr<VoiceCore> core_;
    std::shared_ptr<VoiceDirectory> directory_;
    std::shared_ptr<const VoiceDirectory::Listener> onNews_;
    std::shared_ptr<Utterance> last_;  ///< the last message, whose reason is `LastError`
};

}  // namespace platform
