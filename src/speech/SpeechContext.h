#pragma once

#include "foundation/ClockProperty.h"
#include "foundation/Controls.h"
#include "foundation/ModuleState.h"
#include "platform/Services.h"
#include "timezones/TimeZoneRecord.h"

namespace speech {

/// What voice and music ask of the clock that they belong to.
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
    virtual ClockProperties& EditProperties() = 0;
};

/// What the speaking parts of one clock share; all of it outlives them.
struct SpeechContext {
    const ClockProperties& Properties;
    const TimeZoneRecord& Zone;
    mduUILib::ClockControls& Controls;
    const platform::Services& Services;
    const ModuleState& Module;
    SpeechHost& Host;
};

}  // namespace speech
