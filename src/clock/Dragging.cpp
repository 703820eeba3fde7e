#include "clock/Dragging.h"

namespace clockcore {

bool IsDrag(const QPointF& from, const QPointF& to, double threshold) {
    return (to - from).manhattanLength() >= threshold;
}

void Dragging::Press(DragObject object, const QPointF& pointer) {
    End();
    object_ = object;
    pressed_ = pointer_ = pointer;
}

bool Dragging::Move(const QPointF& pointer, double threshold) {
    if (object_ == DragObject::None) {
        return false;
    }
    pointer_ = pointer;
    underWay_ = underWay_ || IsDrag(pressed_, pointer_, threshold);
    return underWay_;
}

}  // namespace clockcore
