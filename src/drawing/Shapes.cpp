#include "drawing/Shapes.h"

#include <cmath>

#include "drawing/Angles.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

struct Figure {
    QLatin1StringView Name;
    int Corners;  // 0 is the ellipse
    double StartAngle;
};

// The counts are not those of the names; clocks have always looked like this.
constexpr Figure Figures[] = {
    {"Circle"_L1, 0, 0},   {"Ellips"_L1, 0, 0},  {"Diamond"_L1, 4, -Pi / 2},
    {"Pentagon"_L1, 6, 0}, {"Hexagon"_L1, 8, 0}, {"Octagon"_L1, 10, 0},
};

const Figure* FindFigure(const QString& shape) {
    const QString name = shape.trimmed();
    for (const Figure& figure : Figures) {
        if (name == figure.Name) {
            return &figure;
        }
    }
    return nullptr;
}

QRegion FigureRegion(const Figure& figure, const QRect& box) {
    return figure.Corners == 0 ? QRegion(box, QRegion::Ellipse)
                               : QRegion(PolygonPoints(figure.Corners, figure.StartAngle, box));
}

}  // namespace

bool IsShape(const QString& shape) {
    return FindFigure(shape) != nullptr;
}

QPolygon PolygonPoints(int n, double startAngle, const QRect& box) {
    constexpr double turn = 6.28;
    constexpr double radius = 0.49;
    QPolygon points;
    for (int i = 0; i < n; ++i) {
        const double t = turn / n * i + startAngle;
        const auto at = [](double extent, double part, int from) {
            return mduAPILib::RoundToInteger(extent * radius * part + extent / 2 + from);
        };
        points +=
            QPoint(at(box.width(), std::cos(t), box.x()), at(box.height(), std::sin(t), box.y()));
    }
    return points;
}

QRegion ShapeRegion(const QString& shape, const QRect& box) {
    const Figure* figure = FindFigure(shape);
    const QRegion region = figure && box.isValid() ? FigureRegion(*figure, box) : QRegion();
    return region.isEmpty() ? QRegion(box) : region;
}

QPainterPath ShapePath(const QString& shape, const QRect& box) {
    QPainterPath path;
    const Figure* figure = FindFigure(shape);
    if (figure && figure->Corners == 0) {
        path.addEllipse(box);
    } else if (figure) {
        path.addPolygon(PolygonPoints(figure->Corners, figure->StartAngle, box));
        path.closeSubpath();
    }
    return path;
}

std::optional<QRegion> WindowFigure(const QString& shape, const WindowMeasures& window) {
    const Figure* figure = FindFigure(shape);
    if (!figure) {
        return std::nullopt;
    }
    QRect box = window.Client;
    if (figure->Corners == 0) {
        const int gap = mduAPILib::RoundToInteger(10 * window.Ratio);
        const int margin = window.Outer.height() - window.Client.height();
        box = QRect(QPoint(gap, margin),
                    QPoint(window.Outer.width() - gap - 1, window.Outer.height() - gap - 1));
    }
    const QRegion region = box.isValid() ? FigureRegion(*figure, box) : QRegion();
    return region.isEmpty() ? std::nullopt : std::optional(region);
}

}  // namespace drawing
