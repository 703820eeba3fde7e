#pragma once

#include <QString>

#include "foundation/Urgency.h"

namespace speech {

/// The voice of one clock, its menu and its mark.
class ClockVoice {
public:
    virtual ~ClockVoice() = default;

    virtual void PrepareSpeaker() {}
    virtual void FillVoiceMenu() {}
    virtual void SpeakMessage(const QString& /*text*/, int /*flags*/, Urgency /*urgency*/) {}
    virtual void PurgeSpeech(Urgency /*urgency*/) {}
    virtual bool IsSpeaking() const { return false; }  ///< whether a text is under way
};

/// The spoken time of one clock.
class SpokenTime {
public:
    virtual ~SpokenTime() = default;

    /// Reads the patterns from the properties anew.
    virtual void ReadPatterns() {}
    /// Speaks the shortest unit whose pattern is due, unless a message or an action is showing.
    virtual void CheckSpokenTime() {}
    /// Speaks the longest unit that has a pattern, due or not: a click on the speaker mark.
    virtual void SpeakTimeNow() {}
};

/// The music and sounds of one clock.
class ClockMusic {
public:
    virtual ~ClockMusic() = default;

    virtual void CheckMusic() {}
    virtual void PlaySound(const QString& /*path*/) {}
    virtual void StopMusic() {}
};

}  // namespace speech
