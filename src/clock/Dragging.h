#pragma once

#include <QPointF>

#include "clock/DragObjects.h"

namespace clockcore {

/// Whether a pointer that was pressed at one point and has come to another drags what lies there,
/// or the hand trembles and it is still a click. All of them in pixels of one kind.
/// @param threshold what the ways across and down have to add up to
///
///     IsDrag({10, 10}, {13, 16}, 10);  // false, since 3 + 6 is less
///     IsDrag({10, 10}, {14, 16}, 10);  // true
bool IsDrag(const QPointF& from, const QPointF& to, double threshold);

/// A drag from its press to its end: whether it is a drag at all, and how far it has come. It knows
/// neither events nor windows; points may be of any kind, as long as it is the same one throughout.
///
///     dragging.Press(DragObject::Flag, {10, 10});
///     dragging.Move({13, 12}, 10);  // false: the hand trembles, a click is still a click
///     dragging.Move({40, 10}, 10);  // true, and so is each move from then on
///     dragging.Way();               // (30, 0)
class Dragging {
public:
    /// Begins anew. A press on `DragObject::None` ends what there was.
    void Press(DragObject object, const QPointF& pointer);
    /// Takes the pointer along.
    /// @param threshold how far from its press the pointer has to come first: see `IsDrag`
    /// @return whether the object moves
    bool Move(const QPointF& pointer, double threshold);
    void End() { *this = {}; }

    /// What is pressed or moves; `None` between drags.
    DragObject Object() const { return object_; }
    /// The threshold has been passed.
    bool IsUnderWay() const { return underWay_; }
    const QPointF& Pointer() const { return pointer_; }
    /// From the press to the pointer.
    QPointF Way() const { return pointer_ - pressed_; }

private:
    DragObject object_ = DragObject::None;
    QPointF pressed_, pointer_;
    bool underWay_ = false;
};

}  // namespace clockcore
