#include "clock/PropertyRedraw.h"

#include "foundation/NamedValues.h"

namespace clockcore {

using drawing::DialParts;

void PropertyRedraw::Apply(Redraw what, const QString& value) {
    switch (what) {
        case Redraw::Nothing:
        case Redraw::ActionMessage:  // has been applied by whoever set it
            break;
        case Redraw::Hands:
            parts_.Face.DrawClockFace();
            break;
        case Redraw::HourNumbers:
            DrawNumbers(DialParts::Numbers);
            break;
        case Redraw::MinuteSpots:
            DrawNumbers(DialParts::All);
            break;
        case Redraw::Digits:
            ApplyToDigits();
            break;
        case Redraw::Calculator:
            if (data_.IsCalculator()) {
                parts_.Calculator.ApplyCalculatorLook();
            }
            break;
        case Redraw::Location:
            // A name that was hidden is laid out by the face alone.
            parts_.Overlays.LayOutOverlays();
            parts_.Face.DrawClockFace();
            break;
        case Redraw::Flag:
            parts_.Overlays.LayOutOverlays();
            break;
        case Redraw::SpeakerPlace:
            parts_.Overlays.SetSpeakerPosition();
            break;
        case Redraw::Message:
            parts_.Messages.SetMessageColour(mduUILib::ColourValue(value, parts_.Random));
            break;
        case Redraw::Speech:
        case Redraw::SpeakerVolume:
        case Redraw::SpeakRate:
            ApplyToVoice(what, value);
            break;
    }
}

void PropertyRedraw::DrawNumbers(DialParts what) {
    if (data_.IsAnalogue()) {
        parts_.Dial.DrawDialNumbers(what);
        parts_.Face.DrawClockFace();
    }
}

void PropertyRedraw::ApplyToDigits() {
    if (data_.IsDigital()) {
        parts_.Face.ReadDigitalFormat();
        parts_.Digital.SetDigitalLayout();
        parts_.Face.DrawClockFace();
    }
}

// The voice hears of its volume and its rate here and nowhere else.
void PropertyRedraw::ApplyToVoice(Redraw what, const QString& value) {
    if (what == Redraw::SpeakerVolume) {
        parts_.Voice.SetVolumeByMenu(value);
    } else if (what == Redraw::SpeakRate) {
        parts_.Voice.SetRateByMenu(value);
    } else {
        parts_.Voice.PrepareSpeaker();
        parts_.Spoken.ReadPatterns();
    }
}

}  // namespace clockcore
