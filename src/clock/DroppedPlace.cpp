#include "clock/DroppedPlace.h"

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

struct Grip {
    QLatin1StringView Name;
    int Right, Down;  // pixels from the pointer to the middle of what it holds
};

Grip GripOf(Dragged what) {
    return what == Dragged::Dial ? Grip{"Clock"_L1, 10, 20} : Grip{"Digital Clock"_L1, 5, -30};
}

QString Percent(double twips, double extent) {
    return mduAPILib::ShortSingleText(static_cast<float>(twips / extent * 100));
}

}  // namespace

DroppedPlace StoreDroppedPlace(const QPointF& at, Dragged what, const QSizeF& outer,
                               double twipsPerPixel) {
    const Grip grip = GripOf(what);
    return {grip.Name + u" CentralX(%)"_s, grip.Name + u" CentralY(%)"_s,
            Percent(at.x() + grip.Right * twipsPerPixel, outer.width()),
            Percent(at.y() + grip.Down * twipsPerPixel, outer.height())};
}

}  // namespace clockcore
