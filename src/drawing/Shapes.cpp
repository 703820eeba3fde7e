#include "drawing/Shapes.h"

#include <cmath>

#include "drawing/Angles.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

struct ShapeRow {
    QLatin1StringView Name;
    Shape Kind;
    int Corners;  // 0 is the ellipse
    double StartAngle;
    bool IsFigure = true;
};

// The counts are not those of the names; clocks have always looked like this.
constexpr ShapeRow Shapes[] = {
    {"Normal"_L1, Shape::Normal, 0, 0, false}, {"Circle"_L1, Shape::Circle, 0, 0},
    {"Ellips"_L1, Shape::Ellips, 0, 0},        {"Diamond"_L1, Shape::Diamond, 4, -Pi / 2},
    {"Pentagon"_L1, Shape::Pentagon, 6, 0},    {"Hexagon"_L1, Shape::Hexagon, 8, 0},
    {"Octagon"_L1, Shape::Octagon, 10, 0},
};

/// Null for the rectangle.
const ShapeRow* FindFigure(Shape shape) {
    for (const ShapeRow& row : Shapes) {
        if (row.Kind == shape && row.IsFigure) {
            return &row;
        }
    }
    return nullptr;
}

QRegion FigureRegion(const ShapeRow& figure, const QRect& box) {
    return figure.Corners == 0 ? QRegion(box, QRegion::Ellipse)
                               : QRegion(PolygonPoints(figure.Corners, figure.StartAngle, box));
}

}  // namespace

Shape ReadShape(const QString& text) {
    const QStringView name = QStringView(text).trimmed();
    for (const ShapeRow& row : Shapes) {
        if (name == row.Name) {
            return row.Kind;
        }
    }
    return Shape::Unknown;
}

QStringList ShapeNames() {
    QStringList names;
    for (const ShapeRow& row : Shapes) {
        names += row.Name;
    }
    return names;
}

bool IsFigure(Shape shape) {
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

QPainterPath ShapePath(Shape shape, const QRect& box) {
    QPainterPath path;
    const ShapeRow* figure = FindFigure(shape);
    if (figure && figure->Corners == 0) {
        path.addEllipse(box);
    } else if (figure) {
        path.addPolygon(PolygonPoints(figure->Corners, figure->StartAngle, box));
        path.closeSubpath();
    }
    return path;
}

std::optional<QRegion> WindowFigure(Shape shape, const WindowMeasures& window) {
    const ShapeRow* figure = FindFigure(shape);
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
