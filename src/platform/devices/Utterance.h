#pragma once

#include <QTimer>

#include "platform/devices/SpeechEngine.h"
#include "platform/devices/SpokenText.h"

namespace platform {

/// What outlives a voice whose clock is closed while it speaks: the engine and how it is set.
struct VoiceCore {
    MakeEngine Make;
    VoiceSettings Settings;
    std::unique_ptr<SpeechEngine> Engine;  ///< null until it is needed, and after it has failed

    /// The engine, made when there is none or the one there is can't speak; null where none can be
    /// made. Not for use while the voice speaks.
    SpeechEngine* NeedEngine();
};

/// One message on its way: it waits for its turn, is handed over piece by piece, and ends by itself
/// in any case, since each step has a bound. It lives on events.
///
/// The steps are the wait for its turn, then for each piece the wait until the engine speaks and
/// the wait until it has spoken. Whichever bound runs out first ends the message with a reason.
class Utterance : public std::enable_shared_from_this<Utterance> {
public:
    /// @param ahead what the messages before this one may take, in milliseconds
    Utterance(std::shared_ptr<VoiceCore> voice, const QString& text, const SpeechBounds& bounds,
              int ahead = 0);
    ~Utterance();
    Q_DISABLE_COPY_MOVE(Utterance)

    void Begin();  ///< its turn has come

    /// Ends it; @p reason tells why it failed, and is empty when it did not. An engine that is
    /// under way is stopped and not used again, so that nothing of it gets into the next message.
    void End(const QString& reason);

    /// The time it may still take once it is its turn, in milliseconds.
    int Bound() const;
    bool HasEnded() const { return ended_; }
    bool HasBegun() const { return begun_; }
    QString Reason() const { return reason_; }
    /// Whose message it is.
    const VoiceCore* Voice() const { return voice_.get(); }

    /// Called once, when it ends for whatever reason, but not when it is destroyed.
    std::function<void()> OnEnd;

private:
    void SayNext();
    void Hear(SpeechEngine::State state);
    /// The bound of the present step is reached.
    void GiveUp();

    std::shared_ptr<VoiceCore> voice_;
    QStringList pieces_;
    SpeechBounds bounds_;
    QTimer bound_;  ///< of the present step
    QTimer whole_;  ///< of all pieces
    QString reason_;
    bool begun_ = false;
    bool speaking_ = false;
    bool ended_ = false;
};

}  // namespace platform
