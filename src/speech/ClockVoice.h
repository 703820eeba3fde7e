#pragma once

#include <QString>

#include "foundation/Urgency.h"

namespace speech {

/// The voice of one clock, its menu and its mark.
class ClockVoice {
public:
    virtual ~ClockVoice() = default;

    /// Shows the mark, or not, and takes voice, rate and volume from the properties.
    virtual void PrepareSpeaker() {}
    /// Fills the menu of the mark with the voices that there are now.
    virtual void FillVoiceMenu() {}
    /// @param flags as in `SpeechFlags.h`
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

    /// Begins the next piece of music when none plays, is wanted and not held; ends music that is
    /// no longer wanted.
    virtual void CheckMusic() {}
    /// Plays a file, in place of what is playing.
    virtual void PlaySound(const QString& /*path*/) {}
    /// Stops the music and holds it; a sound that is playing goes on.
    virtual void StopMusic() {}
};

}  // namespace speech
