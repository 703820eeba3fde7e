#pragma once

#include <QString>

#include "timers/ClockTimer.h"

/// What a pointer is told that rests on the dial where timers are made and where they stand.
namespace timers {

/// A hint for a balloon.
struct TimerHint {
    QString Title;   ///< its heading
    QString Text;    ///< lines with "\r\n" between them
    int Colour = 0;  ///< of the text, red in the low byte
    bool operator==(const TimerHint&) const = default;
};

/// Of a minute spot, which stands for twelve minutes: "Time 12:48" above "Set timer for 12:48 to
/// 1:00". No hint, with both texts empty, for a text that is no time.
/// @param spotTime the time of the spot, "h:mm"
TimerHint SpotHint(const QString& spotTime);

/// Of the mark of a timer: its message in its colour, and below what its menu can change, each with
/// the present value. One that means one half of the day tells that first. A timer without a
/// message begins with these lines; of a long one the first 200 letters are told.
TimerHint MarkHint(const ClockTimer& timer);

}  // namespace timers
