#pragma once

#include <QPointF>
#include <QSizeF>

#include "drawing/Surface.h"
#include "foundation/ClockProperty.h"

namespace drawing {

/// The side of a timer's mark on a surface, in device pixels: it grows gently with the face.
double TimerMarkSide(const Surface& surface);

/// Where a mark stands before it is placed, in device pixels.
inline constexpr QPointF UnplacedMark(13, 13);

/// Where the mark of a timer stands: its top left corner. @p spot is the number of the minute spot
/// (0 and above), @p place the place within it (1 to 12: a minute of the twelve that a spot stands
/// for). On a dial (@p isDial) the mark's lower right corner lies on a ring just inside the spots;
/// with any other face the marks run along the bottom edge.
QPointF TimerMarkPlace(const Surface& surface, const ClockProperties& properties, bool isDial,
                       int spot, int place, const QSizeF& mark);

/// How far around the ring a point lies: the turn clockwise from twelve o'clock, from 0 to below 1,
/// of the place whose mark has that lower right corner. A mirrored dial turns the other way. The
/// centre itself gives 0.
/// @param corner in device pixels; it need not lie on the ring
double TurnOnTheRing(const Surface& surface, const ClockProperties& properties,
                     const QPointF& corner);

}  // namespace drawing
