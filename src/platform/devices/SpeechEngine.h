#pragma once

#include <QStringList>
#include <functional>
#include <memory>

namespace platform {

/// How a voice is to sound; kept by the voice, so that a fresh engine can be given all of it.
struct VoiceSettings {
    int Voice = -1;    ///< a place in SpeechEngine::Voices; negative: the engine's own choice
    int Rate = 0;      ///< -10 to 10
    int Volume = 100;  ///< 0 to 100
};

/// What speaks. An engine reports by itself how it fares, and it may never report at all: whoever
/// uses it has to bound every wait.
class SpeechEngine {
public:
    enum class State { Ready, Speaking, Error };

    virtual ~SpeechEngine() = default;
    virtual QStringList Voices() const = 0;  ///< none until the engine has told them
    virtual void Apply(const VoiceSettings& settings) = 0;
    virtual void Say(const QString& text) = 0;  ///< returns at once
    virtual void Stop() = 0;

    /// Why the engine can't speak; empty as long as it can.
    virtual QString Trouble() const = 0;

    /// Called from the event loop with each new state, in their order. The engine may be destroyed
    /// inside the call.
    std::function<void(State)> OnState;

    /// Called once from the event loop, when the engine has told its voices or has ended before
    /// that. The engine may be destroyed inside the call.
    std::function<void(const QStringList& voices)> OnVoices;
};

/// Makes an engine; null where there is none.
using MakeEngine = std::function<std::unique_ptr<SpeechEngine>()>;

}  // namespace platform
