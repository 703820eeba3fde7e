#pragma once

#include "clock/HeldPart.h"

namespace clockcore {

/// A part of a clock that moves with the pointer, until it is dropped or taken back.
///
/// While they move, dial and digits stand where a drop at that moment would put them: each holds to
/// the pointer by the grip of `DroppedPlace`. The others keep the pointer where it took them.
class PartDrag {
public:
    PartDrag(ClockData& data, const HeldPart::Parts& parts) : held_(data, parts) {}

    /// Takes hold of a part; one that was still held is taken back. `None` and the window hold
    /// nothing.
    void Begin(DragObject object);
    /// Brings the part to the pointer and shows it there. @return false when the move is over,
    /// since something else has changed the clock
    /// @param pointer in logical pixels of the clock
    /// @param way how far that is from the press
    bool Follow(const QPointF& pointer, const QPointF& way);
    /// Stores the part where it was brought last, and tells. A part that has not been moved stores
    /// nothing.
    void Drop() { held_.Store(); }
    /// The part goes back to where it was, and nothing is stored.
    void TakeBack() { held_.TakeBack(); }
    /// `None` between drags.
    DragObject Object() const { return held_.Object(); }

private:
    HeldPart held_;
    QRectF start_;  ///< of the control, in device pixels
};

}  // namespace clockcore
