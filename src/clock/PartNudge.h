#pragma once

#include "clock/HeldPart.h"

namespace clockcore {

/// A part of a clock that is pushed with the arrow keys, a percent of the surface at a time. What
/// several pushes have come to is stored at once.
///
///     nudge.Nudge(DragObject::Dial, {1, 0});   // 51 percent, in memory
///     nudge.Nudge(DragObject::Dial, {1, -1});  // 52 across, 49 down
///     nudge.Keep();                            // both in the file
class PartNudge {
public:
    PartNudge(ClockData& data, const HeldPart::Parts& parts) : data_(data), held_(data, parts) {}

    /// Moves a part by percents of the surface, to the right and down, at once. Whole logical
    /// pixels, at least one, for those that are stored so; a flag goes to the next corner. Another
    /// part than the one before keeps that one first. `None` and the window stay where they are.
    void Nudge(DragObject object, const QPoint& percents);
    /// Stores what has been pushed; nothing when nothing was.
    void Keep() { held_.Store(); }

private:
    KeyValues PushedPercents(const QPoint& percents) const;
    /// How far a push goes, in device pixels.
    QPointF Way(const QPoint& percents) const;

    const ClockData& data_;
    HeldPart held_;
};

}  // namespace clockcore
