#pragma once

#include <QRectF>
#include <QRegion>
#include <optional>
#include <vector>

#include "drawing/Canvas.h"
#include "drawing/Shapes.h"

namespace drawing {

/// What of a clock's surface is seen through the outline of its window, and where things find room
/// in it. The area has no dents, as all figures of a window. Measures are device pixels of the
/// surface.
class SeenArea {
public:
    /// All of the surface, whatever its size: a window without an outline.
    SeenArea() = default;
    /// An empty region is the whole surface, too.
    explicit SeenArea(const QRegion& seen);

    bool IsWhole() const { return rows_.empty(); }

    /// Whether all of a rectangle is seen; a window without an outline hides nothing.
    bool Holds(const QRectF& place) const;

    /// The way that a rectangle has to go, in whole pixels, until it is seen whole, @p gap clear of
    /// the edge and of @p others: straight towards the middle as far as need be, and from there to
    /// the nearest place that is clear. Where there is none it stays where it is seen, or in the
    /// middle if it is too large for that.
    QPointF WayInward(const QRectF& place, const std::vector<QRectF>& others, double gap) const;

    /// The room for a line of text of that height: as wide as the area is everywhere in the line.
    /// It is the first such row, @p top or below it, that is @p width wide; else the widest.
    /// Nothing where no line of that height fits, or in a window without an outline.
    std::optional<QRectF> RowFor(double top, double height, double width) const;

private:
    struct Span {
        int Left = 0, Behind = 0;  ///< the first pixel that is seen, and the first that is not
    };

    Span Across(int top, int bottom) const;
    std::optional<QPointF> StraightWay(const QRectF& place) const;
    std::optional<QPointF> NearestWay(const QRectF& place, const std::vector<QRectF>& others) const;

    int top_ = 0;
    std::vector<Span> rows_;  ///< one a pixel, from the first that is seen on
    QPointF middle_;
};

/// What the figure of a clock's window depends on.
WindowMeasures MeasuresOf(Canvas& window);

/// What is seen of a surface through a "Window Shape".
SeenArea SeenThrough(Shape shape, const WindowMeasures& window);

}  // namespace drawing
