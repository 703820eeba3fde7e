#include "clock/DroppedParts.h"

#include <algorithm>

#include "clock/DroppedPlace.h"
#include "drawing/FlagPosition.h"
#include "foundation/Numbers.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr struct {
    DragObject Object;
    QLatin1StringView Across, Down;
} Keys[] = {
    {DragObject::Dial, "Clock CentralX(%)"_L1, "Clock CentralY(%)"_L1},
    {DragObject::Digits, "Digital Clock CentralX(%)"_L1, "Digital Clock CentralY(%)"_L1},
    {DragObject::Location, "Time Zone Name Left"_L1, "Time Zone Name Top"_L1},
    {DragObject::Speaker, "Speaker Image Left"_L1, "Speaker Image Top"_L1},
    {DragObject::Handle, "Transparent Icon Left"_L1, "Transparent Icon Top"_L1},
};

const QString FlagKey = u"Flag Position"_s;

/// The percent, or the nearest that leaves the middle of something of that extent in the surface.
/// -1 would mean that the clock finds a place by itself.
QString PercentInSight(const QString& percent, double extent, double whole) {
    constexpr double automatic = -1;
    const double value = mduAPILib::Val(percent);
    const double least = -extent / 2 / whole * 100;
    const double inside = std::clamp(value, least, least + 100);
    if (inside == automatic) {
        return u"0"_s;
    }
    return inside == value ? percent : mduAPILib::ShortSingleText(static_cast<float>(inside));
}

double FromEdge(double place, double extent, double whole) {
    return std::clamp(place, 0.0, std::max(whole - extent, 0.0));
}

QString Logical(double devicePixels, double ratio) {
    return QString::number(mduAPILib::RoundToInteger(devicePixels / ratio));
}

}  // namespace

DropWindow DropWindowOf(drawing::Canvas& canvas) {
    const drawing::Surface& surface = canvas.Surface();
    return {QSizeF(surface.ScaleWidth(), surface.ScaleHeight()), canvas.OuterSize(),
            surface.DevicePixelRatio()};
}

std::vector<QString> KeysOf(DragObject object) {
    for (const auto& row : Keys) {
        if (row.Object == object) {
            return {row.Across, row.Down};
        }
    }
    return object == DragObject::Flag ? std::vector<QString>{FlagKey} : std::vector<QString>();
}

KeyValues DroppedPercent(DragObject object, const QPointF& pointer, const QSizeF& size,
                         const DropWindow& window) {
    const bool isDial = object == DragObject::Dial;
    const DroppedPlace place =
        StoreDroppedPlace(pointer * TwipsPerPixel, isDial ? Dragged::Dial : Dragged::Digits,
                          window.Outer, TwipsPerPixel / window.Ratio);
    const QSizeF extent = isDial ? QSizeF(0, 0) : size;
    return {{place.KeyX, PercentInSight(place.X, extent.width(), window.Surface.width())},
            {place.KeyY, PercentInSight(place.Y, extent.height(), window.Surface.height())}};
}

KeyValues PushedPercent(DragObject object, const QPointF& place, const QPoint& percents,
                        const QSizeF& size, const DropWindow& window) {
    const std::vector<QString> keys = KeysOf(object);
    const QSizeF extent = object == DragObject::Dial ? QSizeF(0, 0) : size;
    const auto pushed = [](double from, double whole, int percent, double part) {
        const double value = from / whole * 100 + percent;
        return PercentInSight(mduAPILib::ShortSingleText(static_cast<float>(value)), part, whole);
    };
    return {{keys[0], pushed(place.x(), window.Surface.width(), percents.x(), extent.width())},
            {keys[1], pushed(place.y(), window.Surface.height(), percents.y(), extent.height())}};
}

KeyValues DroppedCorner(const QRectF& flag, const QSizeF& surface) {
    using drawing::FlagPosition;
    const bool left = flag.center().x() < surface.width() / 2;
    const bool bottom = flag.center().y() > surface.height() / 2;
    const FlagPosition corner = bottom ? left ? FlagPosition::BottomLeft : FlagPosition::BottomRight
                                : left ? FlagPosition::TopLeft
                                       : FlagPosition::TopRight;
    return {{FlagKey, drawing::FlagPositionName(corner)}};
}

KeyValues DroppedPixels(DragObject object, const QRectF& part, const DropWindow& window) {
    const std::vector<QString> keys = KeysOf(object);
    const QRectF place = InSight(part, window.Surface);
    return {{keys[0], Logical(place.left(), window.Ratio)},
            {keys[1], Logical(place.top(), window.Ratio)}};
}

QRectF InSight(QRectF part, const QSizeF& surface) {
    part.moveTo(FromEdge(part.left(), part.width(), surface.width()),
                FromEdge(part.top(), part.height(), surface.height()));
    return part;
}

}  // namespace clockcore
