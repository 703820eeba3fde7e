#pragma once

#include <QPainterPath>
#include <QPolygon>
#include <QRegion>
#include <QStringList>
#include <optional>

/// The figures that a window or a dial may have. One row of the table in `Shapes.cpp` tells all of
/// a shape: its name and how it is cut.
namespace drawing {

enum class Shape {
    Unknown,   ///< any other text: drawn as the plain rectangle, though it is not "Normal"
    Normal,    ///< the plain rectangle
    Circle,    ///< the ellipse of the box, not round unless the box is a square
    Ellips,    ///< so spelled; one and the same figure as `Circle`
    Diamond,   ///< 4 corners, the first at twelve o'clock
    Pentagon,  ///< 6 corners, from three o'clock on, as those below
    Hexagon,   ///< 8 corners
    Octagon    ///< 10 corners
};

/// The shape of a property value such as "Diamond" or " Ellips "; blanks around it are dropped,
/// letter case counts, and any other text is `Unknown`.
Shape ReadShape(const QString& text);

QStringList ShapeNames();  ///< in the order of a menu of them

/// Whether a shape is a figure other than the rectangle.
bool IsFigure(Shape shape);

/// The corners of a polygon of @p n corners in a box. They lie at 0.49 of the box around its
/// middle, from @p startAngle on (0 is three o'clock, -pi / 2 twelve), a turn being 6.28: the
/// figure stays within the box by a hundredth.
QPolygon PolygonPoints(int n, double startAngle, const QRect& box);

/// The figure in a box as an outline that can be painted with a soft edge; empty for the rectangle.
QPainterPath ShapePath(Shape shape, const QRect& box);

/// What the figure of a window depends on, in device pixels.
struct WindowMeasures {
    QSize Outer;       ///< with frame and title bar
    QRect Client;      ///< the drawing surface within it
    double Ratio = 1;  ///< device pixels per logical pixel
    bool operator==(const WindowMeasures&) const = default;
};

/// The figure of a whole window; nothing where it is the plain rectangle. The ellipse keeps 10
/// logical pixels from the sides and from the bottom and as much from the top as title bar and
/// borders are high; polygons fill the client area. A window too small for its figure is whole.
std::optional<QRegion> WindowFigure(Shape shape, const WindowMeasures& window);

}  // namespace drawing
