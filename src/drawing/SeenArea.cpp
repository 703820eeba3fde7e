#include "drawing/SeenArea.h"

#include <algorithm>
#include <cmath>

#include "drawing/Angles.h"
#include "foundation/Numbers.h"

namespace drawing {

namespace {

constexpr int Directions = 32;  // in which a place is sought

}  // namespace

SeenArea::SeenArea(const QRegion& seen) {
    const QRect bounds = seen.boundingRect();
    top_ = bounds.top();
    middle_ = QRectF(bounds).center();
    rows_.resize(static_cast<std::size_t>(bounds.height()), {bounds.right() + 1, bounds.left()});
    for (const QRect& part : seen) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            Span& row = rows_[static_cast<std::size_t>(y - top_)];
            row.Left = std::min(row.Left, part.left());
            row.Behind = std::max(row.Behind, part.right() + 1);
        }
    }
}

// Without dents, what is seen in both the first and the last row is seen in all between them.
SeenArea::Span SeenArea::Across(int top, int bottom) const {
    const int end = top_ + static_cast<int>(rows_.size());
    if (top < top_ || bottom >= end || bottom < top) {
        return {};
    }
    const Span& first = rows_[static_cast<std::size_t>(top - top_)];
    const Span& last = rows_[static_cast<std::size_t>(bottom - top_)];
    return {std::max(first.Left, last.Left), std::min(first.Behind, last.Behind)};
}

bool SeenArea::Holds(const QRectF& place) const {
    const QRect pixels = place.toAlignedRect();
    const Span span = Across(pixels.top(), pixels.bottom());
    return IsWhole() || (span.Left <= pixels.left() && pixels.right() < span.Behind);
}

std::optional<QPointF> SeenArea::StraightWay(const QRectF& place) const {
    const QPointF whole = middle_ - place.center();
    const int steps = static_cast<int>(std::max(std::abs(whole.x()), std::abs(whole.y()))) + 1;
    for (int step = 0; step <= steps; ++step) {
        const QPointF way = (whole * step / steps).toPoint();
        if (Holds(place.translated(way))) {
            return way;
        }
    }
    return std::nullopt;
}

std::optional<QPointF> SeenArea::NearestWay(const QRectF& place,
                                            const std::vector<QRectF>& others) const {
    const auto isClear = [&](const QRectF& here) {
        return std::none_of(others.begin(), others.end(),
                            [&here](const QRectF& other) { return other.intersects(here); });
    };
    const int farthest = static_cast<int>(std::max(middle_.x(), middle_.y()) * 2);
    for (int distance = 0; distance <= farthest; ++distance) {
        for (int direction = 0; direction < Directions; ++direction) {
            const double angle = TwoPi * direction / Directions;
            const QPointF way(std::trunc(distance * std::sin(angle)),
                              std::trunc(distance * std::cos(angle)));
            if (Holds(place.translated(way)) && isClear(place.translated(way))) {
                return way;
            }
        }
    }
    return std::nullopt;
}

QPointF SeenArea::WayInward(const QRectF& place, const std::vector<QRectF>& others,
                            double gap) const {
    if (IsWhole()) {
        return {};
    }
    const QRectF wanted = place.adjusted(-gap, -gap, gap, gap);
    const std::optional<QPointF> seen = StraightWay(wanted);
    if (!seen) {
        return (middle_ - place.center()).toPoint();
    }
    return *seen + NearestWay(wanted.translated(*seen), others).value_or(QPointF());
}

std::optional<QRectF> SeenArea::RowFor(double top, double height, double width) const {
    const int extent = std::max(static_cast<int>(std::ceil(height)), 1);
    const int end = top_ + static_cast<int>(rows_.size()) - extent;
    std::optional<QRectF> widest;
    for (int y = std::max(static_cast<int>(std::ceil(top)), top_); y <= end; ++y) {
        const Span span = Across(y, y + extent - 1);
        const QRectF row(span.Left, y, span.Behind - span.Left, extent);
        if (row.width() > 0 && (!widest || row.width() > widest->width())) {
            widest = row;
        }
        if (row.width() >= width) {
            return row;
        }
    }
    return widest;
}

WindowMeasures MeasuresOf(Canvas& window) {
    Surface& surface = window.Surface();
    const QSizeF outer = window.OuterSize() / surface.TwipsPerDevicePixel();
    return {
        QSize(mduAPILib::RoundToInteger(outer.width()), mduAPILib::RoundToInteger(outer.height())),
        QRect(window.SurfaceOffset(), QSize(surface.ScaleWidth(), surface.ScaleHeight())),
        surface.DevicePixelRatio()};
}

SeenArea SeenThrough(Shape shape, const WindowMeasures& window) {
    const std::optional<QRegion> figure = WindowFigure(shape, window);
    return figure ? SeenArea((*figure & window.Client).translated(-window.Client.topLeft()))
                  : SeenArea();
}

}  // namespace drawing
