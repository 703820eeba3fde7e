#include "drawing/LocationLabel.h"

#include <algorithm>

#include "drawing/LabelText.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "platform/RandomNumbers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr double SmallestPoints = 6;
constexpr double PointStep = 0.5;
constexpr double PointsPerHeight = 0.05;
constexpr double WidthOnDial = 0.5;
constexpr double WidthOnDigits = 0.9;
constexpr double BelowCentre = 0.2;  // of the smaller side
constexpr double DownDigits = 0.82;  // of the height

QFont LabelFont(double points) {
    QFont font(u"Arial"_s);
    font.setPointSizeF(points);
    return font;
}

double NameWidth(const QString& name, double points, const Surface& surface) {
    return TextSize(LabelFont(points), name, surface.DevicePixelRatio()).width();
}

float Place(double stored, double automatic, double extent, double whole, double ratio) {
    const double place = stored == AutomaticPlace ? automatic - extent / 2 : stored * ratio;
    const double inside = extent <= whole ? std::clamp(place, 0.0, whole - extent) : place;
    return static_cast<float>(mduAPILib::RoundToInteger(inside));
}

void LayOut(mduUILib::Control& label, double points, const LocationLook& look,
            const Surface& surface, const QPointF& centre) {
    const double ratio = surface.DevicePixelRatio();
    label.Font = LabelFont(points);
    AutoSize(label, ratio);
    const double width = surface.ScaleWidth();
    const double height = surface.ScaleHeight();
    const QPointF automatic =
        look.Digital ? QPointF(width / 2, height * DownDigits)
                     : QPointF(centre.x(), centre.y() + std::min(width, height) * BelowCentre);
    label.Left = Place(look.Left, automatic.x(), static_cast<double>(label.Width), width, ratio);
    label.Top = Place(look.Top, automatic.y(), static_cast<double>(label.Height), height, ratio);
}

}  // namespace

LocationLook ReadLocationLook(const ClockProperties& properties, platform::RandomNumbers& random) {
    const auto value = [&properties](const QString& key) {
        return mduAPILib::Val(mduLib::GetProperty(key, properties));
    };
    LocationLook look;
    look.Points = value(u"Time Zone Label Size"_s);
    look.Left = value(u"Time Zone Name Left"_s);
    look.Top = value(u"Time Zone Name Top"_s);
    look.Colour =
        mduUILib::ColourValue(mduLib::GetProperty(u"Time Zone Colour"_s, properties), random);
    look.Digital = mduLib::GetProperty(u"Clocks"_s, properties).trimmed() == "Digital"_L1;
    return look;
}

double LocationPoints(const QString& name, const LocationLook& look, const Surface& surface) {
    const double limit = look.Digital
                             ? surface.ScaleWidth() * WidthOnDigits
                             : std::min(surface.ScaleWidth(), surface.ScaleHeight()) * WidthOnDial;
    double points = std::max(surface.LogicalHeight() * PointsPerHeight, SmallestPoints);
    const double widest = NameWidth(name, points, surface);
    if (widest > limit) {
        points = std::max(points * limit / widest, SmallestPoints);
    }
    // Fonts come in whole pixels, so the width does not follow the size exactly.
    while (points > SmallestPoints && NameWidth(name, points, surface) > limit) {
        points = std::max(points - PointStep, SmallestPoints);
    }
    const bool fits = NameWidth(name, points, surface) <= surface.ScaleWidth();
    return fits ? points : 0;
}

void PlaceLocationLabel(mduUILib::Control& label, const LocationLook& look, const Surface& surface,
                        const QPointF& centre, const SeenArea& seen) {
    double points = look.Points < 0 ? LocationPoints(label.Caption, look, surface) : look.Points;
    label.Visible = points > 0;
    if (!label.Visible) {
        return;
    }
    label.ForeColor = look.Colour;
    LayOut(label, points, look, surface, centre);
    const bool mayShrink = look.Points < 0 && look.IsAutomatic();
    while (mayShrink && points > SmallestPoints && !seen.Holds(label.Rect())) {
        points = std::max(points - PointStep, SmallestPoints);
        LayOut(label, points, look, surface, centre);
    }
}

}  // namespace drawing
