#pragma once

#include <QString>

#include "clock/ClockHit.h"
#include "timers/ClockTimer.h"

/// What a pointer is told that rests on a part of a clock.
namespace clockcore {

/// A hint for a balloon.
struct PartHint {
    static constexpr int DesktopColour = -1;

    QString Title;  ///< empty for none
    QString Text;   ///< lines with "\r\n" between them; empty where there is nothing to tell
    int Colour = DesktopColour;  ///< of the text, red in the low byte
    bool operator==(const PartHint&) const = default;
};

/// What the menu of a part can set: of hands, digits, hour numbers and the two lines of the
/// calculator. Nothing for any other part.
PartHint HintOf(ClockPart part);

/// Of a spot, by the time that it stands for, "h:mm"; nothing for a text that is no time.
PartHint HintOfSpot(const QString& spotTime);

/// Of the mark of a timer, in the colour of its message.
PartHint HintOfMark(const timers::ClockTimer& timer);

}  // namespace clockcore
