#pragma once

#include <QStringList>
#include <functional>
#include <memory>

namespace platform {

/// One text-to-speech voice object (each clock has its own). Nothing that it is asked keeps the
/// caller waiting.
class Voice {
public:
    virtual ~Voice() = default;
    /// One for each voice of the machine; none, too, while these are not known yet.
    virtual QStringList Descriptions() const = 0;
    /// Whether the machine is still to tell which voices it has.
    virtual bool IsAsking() const { return false; }
    virtual void SetVoice(int index) = 0;    ///< from 0, in the order of `Descriptions`
    virtual void SetRate(int rate) = 0;      ///< -10 to 10
    virtual void SetVolume(int volume) = 0;  ///< 0 to 100
    /// Begins to speak a text. @return false when it is known already that it can't be spoken
    /// @param flags those of SpeechFlags.h, added up
    virtual bool Speak(const QString& text, int flags) = 0;
    /// Whether the last text is being spoken, or waits for its turn.
    virtual bool IsSpeaking() const { return false; }
    /// Why the last text could not be spoken; empty when it could, or while it is being spoken.
    virtual QString LastError() const { return {}; }
    /// @p onNews is called, from the event loop, when the last text has come to its end and when
    /// the machine has told its voices. The voice may be destroyed in it.
    virtual void SetOnNews(const std::function<void()>& /*onNews*/) {}
};

/// The machine's speech.
class Voices {
public:
    virtual ~Voices() = default;
    virtual std::unique_ptr<Voice> MakeVoice() = 0;  ///< null where there is no speech at all
};

}  // namespace platform
