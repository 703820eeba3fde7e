#include "timezones/MapBand.h"

#include "foundation/Numbers.h"
#include "foundation/Twips.h"

namespace mduTimeZones {

namespace {

constexpr double Columns = 26;
constexpr double LeftEdge = 250;  // twips
constexpr double HoursToGreenwich = 12;
constexpr double HoursRound = 24;
// The inhabited world lies north of the equator: a low map shows more of that side.
constexpr double MiddleLatitude = 15;

}  // namespace

double MapColumn(double mapWidth) {
    return mapWidth / Columns;
}

double MapHours(double x, double mapWidth) {
    const double columns = (x - LeftEdge) / MapColumn(mapWidth);
    return QString::number(columns, 'f', 2).toDouble() - HoursToGreenwich;
}

double MapX(double hours, double mapWidth) {
    return LeftEdge + (hours + HoursToGreenwich) * MapColumn(mapWidth);
}

bool MapBand::MoveTo(double x, double mapWidth) {
    const double g = MapHours(x, mapWidth);
    if (g == g_ || mduAPILib::RoundToInteger(g * 10) % 5 == 0) {
        return false;
    }
    g_ = g;
    return true;
}

void MapBand::Set(double hours) {
    g_ = hours;
}

void MapBand::Clear() {
    g_.reset();
}

std::optional<double> MapBand::Hours() const {
    return g_ ? std::optional(HoursToGreenwich - *g_) : std::nullopt;
}

QRectF MapLayout::World() const {
    const double column = MapColumn(area_.width());
    const double height = column * HoursRound / 2;
    const double left = area_.left() + LeftEdge / TwipsPerPixel;
    const double spare = area_.height() - height;
    // A map that is cut keeps the latitude in its middle, as far as the poles allow.
    const double middle = height * (90 - MiddleLatitude) / 180;
    const double top = spare >= 0 ? spare / 2 : qBound(spare, area_.height() / 2 - middle, 0.0);
    return {left, area_.top() + top, column * HoursRound, height};
}

QPointF MapLayout::PointOf(const platform::ZonePlace& place) const {
    const QRectF world = World();
    return {world.left() + world.width() * (place.Longitude + 180) / 360,
            world.top() + world.height() * (90 - place.Latitude) / 180};
}

QRectF MapLayout::Column(double hours) const {
    const double width = area_.width() * TwipsPerPixel;
    const double column = MapColumn(area_.width());
    const double middle = area_.left() + MapX(hours, width) / TwipsPerPixel;
    return {middle - column / 2, area_.top(), column, area_.height()};
}

}  // namespace mduTimeZones
