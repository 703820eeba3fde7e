#include "clock/PartNudge.h"

#include <algorithm>
#include <cmath>

#include "drawing/AnalogueFace.h"

namespace clockcore {

namespace {

/// So many percent of one side of the surface, in whole logical pixels.
double Step(double side, int percents, double ratio) {
    return percents * std::max(1.0, std::nearbyint(side / ratio / 100)) * ratio;
}

}  // namespace

void PartNudge::Nudge(DragObject object, const QPoint& percents) {
    if (object != held_.Object() || !held_.IsStillOurs()) {
        Keep();
        held_.Take(object);
    }
    if (held_.Object() == DragObject::None) {
        return;
    }
    if (held_.IsPercent()) {
        held_.Put(PushedPercents(percents));
    } else {
        held_.MoveTo(held_.Place().translated(Way(percents)));
    }
}

KeyValues PartNudge::PushedPercents(const QPoint& percents) const {
    const DropWindow window = held_.Window();
    const QPointF place =
        held_.Object() == DragObject::Dial
            ? drawing::ClockCentre(data_.Properties(), static_cast<int>(window.Surface.width()),
                                   static_cast<int>(window.Surface.height()))
            : held_.Place().topLeft();
    return PushedPercent(held_.Object(), place, percents, held_.ReadOut().size(), window);
}

QPointF PartNudge::Way(const QPoint& percents) const {
    const DropWindow window = held_.Window();
    const QSizeF& whole = window.Surface;
    if (held_.Object() == DragObject::Flag) {
        return {percents.x() * whole.width(), percents.y() * whole.height()};
    }
    return {Step(whole.width(), percents.x(), window.Ratio),
            Step(whole.height(), percents.y(), window.Ratio)};
}

}  // namespace clockcore
