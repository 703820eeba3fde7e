#pragma once

#include "timezones/ClockContext.h"

namespace speech {

/// What voice and music ask of the clock that they belong to.
/// `clockcore::ClockHost` is the real one.
class SpeechHost {
public:
    virtual ~SpeechHost() = default;

    /// Whether this clock's window is the active one.
    virtual bool IsActiveClock() const = 0;
    /// Shows a picture of the stored ones on the speaker mark: 3 idle, 4 muted, 5 speaking.
    virtual void SetSpeakerPicture(int number) = 0;
    /// Lets what has changed on the face appear at once.
    virtual void ShowChanges() = 0;
    /// Tells the user, in the status bar, why something could not be heard.
    virtual void ShowStatus(const QString& text) = 0;
    /// The clock's properties for a change in memory, such as another volume. No file is written.
    virtual ClockProperties& EditProperties() = 0;
};

using SpeechContext = ClockContext<SpeechHost>;

}  // namespace speech
