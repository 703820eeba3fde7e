#include "clock/PartDrag.h"

namespace clockcore {

void PartDrag::Begin(DragObject object) {
    held_.Take(object);
    if (Object() != DragObject::None) {
        start_ = held_.Place();
    }
}

bool PartDrag::Follow(const QPointF& pointer, const QPointF& way) {
    if (!held_.IsStillOurs()) {
        TakeBack();
        return false;
    }
    const DropWindow window = held_.Window();
    if (held_.IsPercent()) {
        held_.Put(DroppedPercent(Object(), pointer, held_.ReadOut().size(), window));
    } else {
        held_.MoveTo(start_.translated(way * window.Ratio));
    }
    return true;
}

}  // namespace clockcore
