#pragma once

#include <QPainterPath>
#include <QPolygon>
#include <QRegion>
#include <QString>
#include <optional>

/// The figures that a window or a dial may have: "Circle", "Ellips" (so spelled), "Diamond",
/// "Pentagon", "Hexagon", "Octagon". Blanks around a name and letter case don't count; any other
/// text, "Normal" among them, is the plain rectangle.
namespace drawing {

/// Whether a text names a figure other than the rectangle.
bool IsShape(const QString& shape);

/// The corners of a polygon of @p n corners in a box. They lie at 0.49 of the box around its
/// middle, from @p startAngle on (0 is three o'clock, -pi / 2 twelve), a turn being 6.28: the
/// figure stays within the box by a hundredth.
QPolygon PolygonPoints(int n, double startAngle, const QRect& box);

/// The figure in a box: one and the same ellipse for "Circle" and "Ellips"; a "Diamond" has 4
/// corners, a "Pentagon" 6, a "Hexagon" 8, an "Octagon" 10. A box too small to hold a figure, or
/// any other text, gives the box itself.
QRegion ShapeRegion(const QString& shape, const QRect& box);

/// The same figure as an outline that can be painted with a soft edge; empty for the rectangle.
QPainterPath ShapePath(const QString& shape, const QRect& box);

/// What the figure of a window depends on, in device pixels.
struct WindowMeasures {
    QSize Outer;       ///< with frame and title bar
    QRect Client;      ///< the drawing surface within it
    double Ratio = 1;  ///< device pixels per logical pixel
    bool operator==(const WindowMeasures&) const = default;
};

/// The figure of a whole window; nothing where it is the plain rectangle. The ellipse keeps 10
/// logical pixels from the sides and from the bottom and as much from the top as title bar and
/// borders are high; polygons fill the client area.
std::optional<QRegion> WindowFigure(const QString& shape, const WindowMeasures& window);

}  // namespace drawing
