#include "drawing/TimerMarks.h"

#include <algorithm>
#include <cmath>

#include "drawing/AnalogueFace.h"
#include "drawing/Hands.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr double SidePart = 0.07;  // of the face's height
constexpr double LeastSide = 12;   // logical pixels
constexpr double MostSide = 28;

QPoint RingCentre(const Surface& surface, const ClockProperties& properties) {
    const QPointF centre = ClockCentre(properties, surface.ScaleWidth(), surface.ScaleHeight());
    return {ToPoint(centre.x()), ToPoint(centre.y())};
}

// 1 to the right, -1 on a mirrored dial.
int Direction(const ClockProperties& properties) {
    return ReadClockSpecial(properties) == ClockSpecial::AnalogueBackward ? -1 : 1;
}

QPointF OnTheRing(const Surface& surface, const ClockProperties& properties, int spot, int place,
                  const QSizeF& mark) {
    const int diameter = std::min(surface.ScaleWidth(), surface.ScaleHeight());
    const int position =
        mduAPILib::IntegerValue(mduLib::GetProperty(u"Minute Spot Position(%)"_s, properties));
    const int radius = mduAPILib::ToInt16(diameter * 0.42 * position / 100);
    const QPoint centre = RingCentre(surface, properties);
    const double angle = Pi - (place / 60.0 / 12 + spot / 60.0) * 2 * Pi;
    const double across = radius * std::sin(angle) * Direction(properties);
    return {centre.x() + across - mark.width(),
            centre.y() + radius * std::cos(angle) - mark.height()};
}

QPointF AlongTheBottom(const Surface& surface, int spot, const QSizeF& mark) {
    const double x = surface.ScaleWidth() / 60.0 * spot;
    return {x - mark.width() >= 0 ? x - 4 * mark.width() : x,
            surface.ScaleHeight() - mark.height()};
}

}  // namespace

double TimerMarkSide(const Surface& surface) {
    return mduAPILib::RoundToInteger(
        std::clamp(SidePart * surface.LogicalHeight(), LeastSide, MostSide) *
        surface.DevicePixelRatio());
}

QPointF TimerMarkPlace(const Surface& surface, const ClockProperties& properties, bool isDial,
                       int spot, int place, const QSizeF& mark) {
    return isDial ? OnTheRing(surface, properties, spot, place, mark)
                  : AlongTheBottom(surface, spot, mark);
}

double TurnOnTheRing(const Surface& surface, const ClockProperties& properties,
                     const QPointF& corner) {
    const QPointF from = corner - RingCentre(surface, properties);
    if (from.isNull()) {
        return 0;
    }
    const double turn = std::atan2(from.x() * Direction(properties), -from.y()) / (2 * Pi);
    return turn < 0 ? turn + 1 : turn;
}

}  // namespace drawing
