#pragma once

#include "drawing/ClockSpecial.h"

/// Angles of all clock drawing. A point at distance r from the centre (cx, cy) is
/// (cx + r sin a, cy + r cos a) with y downward: a = 0 points to six o'clock, a = pi to twelve, and
/// a hand that moves clockwise has a falling angle. The constants are the stored ones, not the
/// library's.
namespace drawing {

inline constexpr double Pi = 3.14159265358979;
inline constexpr double TwoPi = 6.28318530717958;
inline constexpr double ThreePi = 9.42477796076937;

/// A time of day as the hands show it.
struct HandTime {
    int Hour = 0;  ///< 0 to 23
    int Minute = 0;
    int Second = 0;
    bool operator==(const HandTime&) const = default;
};

struct HandAngles {
    double Hour = Pi;
    double Minute = Pi;
    double Second = Pi;
};

/// Where the hands stand. The hour hand moves with the minutes; the others jump. "Analogue
/// Backward" mirrors the dial, "Analogue Right Half" and "Analogue Left Half" fold it; any other
/// special is forward. The folding tests look at whole hours only, so a hand may lean over the edge
/// of its half for an hour.
HandAngles AnglesAt(const HandTime& time, ClockSpecial special);

}  // namespace drawing
