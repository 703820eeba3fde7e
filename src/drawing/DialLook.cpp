#include "drawing/DialLook.h"

#include <algorithm>
#include <cmath>

#include "drawing/AnalogueFace.h"
#include "drawing/Hands.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace drawing {

using mduAPILib::RoundToInteger;

bool DialLook::IsRandomColour() const {
    return NumberColour.compare("random"_L1, Qt::CaseInsensitive) == 0;
}

QPointF DialLook::NumberCentre(bool shadow) const {
    if (!shadow) {
        return QPointF(ToPoint(Centre.x()), ToPoint(Centre.y()));
    }
    return {Centre.x() - std::min(Centre.x() / 100, 2 * Ratio),
            Centre.y() + std::min(Centre.y() / 100, 3 * Ratio)};
}

QPointF DialLook::NumberPoint(int index, bool shadow) const {
    const QPointF centre = NumberCentre(shadow);
    const double angle = DialAngle(index, Special);
    const QPointF point(ToPoint(centre.x() + NumberRadius * std::sin(angle)),
                        ToPoint(centre.y() + NumberRadius * std::cos(angle)));
    return IsBackward() ? point + QPointF(2 * Ratio, 0) : point;
}

QRectF DialLook::SpotPlace(int index) const {
    const double angle = DialAngle(index, Special);
    const double half = SpotSize / 2.0;
    const int x = RoundToInteger(Centre.x() - half);
    const int y = RoundToInteger(Centre.y() - half);
    return {x + SpotRadius * std::sin(angle) - half, y + SpotRadius * std::cos(angle) - half,
            static_cast<double>(SpotSize), static_cast<double>(SpotSize)};
}

DialLook ReadDialLook(const ClockProperties& properties, Canvas& window, const QString& style) {
    const auto text = [&](const QString& key) {
        return mduLib::GetProperty(key, properties).trimmed();
    };
    const auto number = [&](const QString& key) { return mduAPILib::IntegerValue(text(key)); };
    const Surface& surface = window.Surface();
    const double ratio = surface.DevicePixelRatio();
    const double outermost = 0.48 * std::min(surface.ScaleWidth(), surface.ScaleHeight());
    return {
        .Style = NumberStyle(style.isEmpty() ? text(u"Hour Number Style"_s) : style),
        .Special = ReadClockSpecial(properties),
        .NumberColour = text(u"Hour Number Colour"_s),
        .NumberFont = text(u"Hour Number Font"_s),
        .NumberSize = number(u"Hour Number Size"_s),
        .NumberRadius = RoundToInteger(outermost * number(u"Hour Number Position(%)"_s) / 100),
        .Spots = SpotStyle(text(u"Minute Spot Style"_s)),
        .SpotSize = SpotSize(number(u"Minute Spot Size"_s), surface.ScaleHeight(), ratio),
        .SpotRadius = RoundToInteger(outermost * (number(u"Minute Spot Position(%)"_s) / 100.0)),
        .SpotImageFile = text(u"Minute Spot Image File"_s),
        .Centre = ClockCentre(properties, surface.ScaleWidth(), surface.ScaleHeight()),
        .LogicalHeight = surface.LogicalHeight(),
        .OuterHeight = window.OuterSize().height(),
        .Ratio = ratio,
    };
}

}  // namespace drawing
