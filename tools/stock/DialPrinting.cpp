#include <QColor>
#include <cmath>

#include "Dials.h"

namespace stock {

namespace {

constexpr double Pi = 3.14159265358979;

QPen Ink(const Colour& ink, double width) {
    return {ToQColor(ink), width, Qt::SolidLine, Qt::FlatCap};
}

QPointF Place(int minute, double radius) {
    const double angle = minute * Pi / 30;
    return {radius * std::sin(angle), -radius * std::cos(angle)};
}

}  // namespace

Colour Framed(double x, double y, const BezelShape& bezel, const Colour& ground,
              const Colour& dial) {
    const double radius = std::hypot(x, y);
    constexpr double Edge = 0.002;
    // How squarely the ring's rounded back faces the light.
    const double profile = 2 * (radius - bezel.Inner) / (bezel.Outer - bezel.Inner) - 1;
    const double facing = profile * (-x - y) / (1.41421356 * std::max(radius, 0.01));
    const double lit = Soft(-1.0, 1.0, facing);
    const double glint = Hill(0.62, 0.16, facing) + 0.35 * Hill(-0.55, 0.12, facing);
    const Colour ring = Mix(bezel.Dark, bezel.Light, lit) + bezel.Light * (0.38 * glint);
    // The ring throws its shadow on the dial at the upper left, and on the ground at the lower
    // right.
    const double sunk =
        Soft(bezel.Inner - 0.05, bezel.Inner + 0.03, std::hypot(x - 0.02, y - 0.024));
    const double cast =
        Soft(bezel.Outer + 0.06, bezel.Outer - 0.02, std::hypot(x - 0.02, y - 0.03));
    const Colour inside = dial * (1 - 0.42 * sunk);
    const Colour outside = ground * (1 - 0.55 * cast);
    const Colour near = Mix(inside, ring, Soft(bezel.Inner - Edge, bezel.Inner + Edge, radius));
    return Mix(near, outside, Soft(bezel.Outer - Edge, bezel.Outer + Edge, radius));
}

void PreparePrinting(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(PictureSize / 2.0, PictureSize / 2.0);
    painter.scale(PictureSize / 2.0, PictureSize / 2.0);
}

void PrintTrack(QPainter& painter, const Colour& ink, const Strokes& minutes,
                const Strokes& hours) {
    for (int minute = 0; minute < 60; ++minute) {
        const Strokes& stroke = minute % 5 == 0 ? hours : minutes;
        painter.setPen(Ink(ink, stroke.Width));
        painter.drawLine(Place(minute, stroke.From), Place(minute, stroke.To));
    }
}

void PrintCircle(QPainter& painter, const Colour& ink, double radius, double width) {
    painter.setPen(Ink(ink, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), radius, radius);
}

void PrintDots(QPainter& painter, const Colour& ink, double radius, double minuteSize,
               double hourSize) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQColor(ink));
    for (int minute = 0; minute < 60; ++minute) {
        const double size = minute % 5 == 0 ? hourSize : minuteSize;
        painter.drawEllipse(Place(minute, radius), size, size);
    }
}

}  // namespace stock
