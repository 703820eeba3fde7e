#pragma once

#include <QPointF>

#include "clock/ClockData.h"
#include "foundation/Controls.h"

namespace clockcore {

/// The parts of a clock that a click may mean, each with a menu of its own.
enum class ClockPart {
    Face,  ///< all that is nothing else
    Speaker,
    Action,  ///< the mark or the text of an action that counts down
    Message,
    TimerMark,  ///< of the slot that is the index
    Location,
    Flag,
    Output,  ///< the calculated time of a calculator
    Input,   ///< its local time
    Digits,
    HourNumber,  ///< 1 to 60: twelve stands at 60, one at 5
    Spot,        ///< 1 to 60, likewise
    Hands        ///< where they meet
};

/// What lies at a point: a part, and its number where it is one of an array.
struct ClockHit {
    ClockPart Part = ClockPart::Face;
    int Index = 1;  ///< in the control array; 1 for a part that there is one of
    bool operator==(const ClockHit&) const = default;
};

/// The part at a point, in device pixels of the surface. Where parts overlap it is the upper one.
/// Parts that are hidden take no clicks, save the labels behind painted hour numbers, which take
/// them for these; a spot takes those a little beside it, too. A point beside all parts, on the
/// surface or off it, is the face.
ClockHit PartAt(const mduUILib::ClockControls& controls, const QPointF& point);

/// The same on a clock that may have hands: what would be its face is that of the hands within 20
/// device pixels of the dial's centre, across and down, the bounds included.
/// @param scale the size of the surface in device pixels
ClockHit HitAt(const ClockData& data, const mduUILib::ClockControls& controls, const QSize& scale,
               const QPointF& point);

/// Where a part stands, in device pixels of the surface: what takes its clicks, though of a spot
/// only itself, and all digits together. Nothing, as an empty rectangle, for the face and for a
/// part that is hidden.
QRectF PlaceOfPart(const ClockData& data, const mduUILib::ClockControls& controls,
                   const QSize& scale, const ClockHit& hit);

/// The first visible member of an array that holds a point, in device pixels of the surface; null
/// where there is none.
const mduUILib::Control* ControlAt(const mduUILib::ControlArray& array, const QPointF& point);

}  // namespace clockcore
