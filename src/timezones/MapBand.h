#pragma once

#include <QPointF>
#include <QRectF>
#include <optional>

#include "platform/ZoneDatabase.h"

/// The map of the world in the window of zones. It is divided into 26 columns, one for each hour
/// from GMT-12 to GMT+14, so the world itself is 24 columns wide and comes round again at both
/// sides. The meridian 180 W lies 250 twips from the left edge.
namespace mduTimeZones {

/// The width of a column of a map of that width, in the same unit.
double MapColumn(double mapWidth);

/// G: the hours east of Greenwich under a place of the map, in twips from its left edge, to two
/// decimals. A map of 7800 twips gives 0 at 3850 and -12 at 250.
double MapHours(double x, double mapWidth);

/// The place of an hour G on the map: the way back.
double MapX(double hours, double mapWidth);

/// The band of hours that is picked by moving along the map.
class MapBand {
public:
    /// Moves to a place in twips. @return whether the band has changed: G is another one than
    /// before, and ten times G, rounded, is no multiple of 5.
    bool MoveTo(double x, double mapWidth);

    /// Takes an hour as it is.
    /// @param hours east of Greenwich, with no bounds
    void Set(double hours);
    void Clear();

    std::optional<double> G() const { return g_; }
    /// V: 12 less G, what `ZoneList::SetBand` takes; nothing while no band is picked.
    std::optional<double> Hours() const;

private:
    std::optional<double> g_;
};

/// A map in an area of pixels: as wide as the area, its height as the world's is, cut at the poles
/// where the area is lower.
class MapLayout {
public:
    explicit MapLayout(const QRectF& area) : area_(area) {}

    QRectF World() const;  ///< the world from 180 W to 180 E, from pole to pole
    /// It may lie above or below the area.
    QPointF PointOf(const platform::ZonePlace& place) const;
    QRectF Column(double hours) const;  ///< the column with this hour in its middle

private:
    QRectF area_;
};

}  // namespace mduTimeZones
