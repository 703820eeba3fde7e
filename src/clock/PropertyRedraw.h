#pragma once

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "clock/PartMenuCatalogue.h"
#include "drawing/FaceParts.h"
#include "speech/SpeakerVoice.h"
#include "timers/ClockMessages.h"

namespace platform {
class RandomNumbers;
}

namespace clockcore {

/// Brings up to date what goes by one property, and nothing else of the clock. What the present
/// kind of clock has not is left alone: a digital clock has no hands to draw.
class PropertyRedraw {
public:
    /// What may go by a property. All of it outlives this.
    struct Parts {
        ClockFace& Face;
        drawing::Dial& Dial;
        drawing::DigitalClock& Digital;
        drawing::CalculatorClock& Calculator;
        drawing::Overlays& Overlays;
        timers::ClockMessages& Messages;
        speech::SpeakerVoice& Voice;
        speech::SpokenTime& Spoken;
        platform::RandomNumbers& Random;
    };

    PropertyRedraw(const ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// @param value the new value of the property, which is in the properties already
    void Apply(Redraw what, const QString& value);

private:
    void DrawNumbers(drawing::DialParts what);
    void ApplyToDigits();
    void ApplyToVoice(Redraw what, const QString& value);

    const ClockData& data_;
    Parts parts_;
};

}  // namespace clockcore
