#include "WorldMaps.h"

#include <algorithm>
#include <cmath>

#include "Dials.h"
#include "Shores.h"

namespace stock {

namespace {

constexpr double Degree = 3.14159265358979 / 180;

Colour Ocean(double x, double y) {
    const double light = Hill(0, 1.1, std::hypot(x + 0.25, y + 0.4));
    return Mix(Hex(0x0d1f30), Hex(0x27526b), light) * Vignette(x, y, 0.35);
}

// The share of land round a place, so that a dot at the shore tells how much of it is land.
double LandShare(double longitude, double latitude, double reach) {
    int hits = 0;
    for (int row = -1; row <= 1; ++row) {
        for (int column = -1; column <= 1; ++column) {
            hits += IsLand(longitude + column * reach, latitude + row * reach) ? 1 : 0;
        }
    }
    return hits / 9.0;
}

void DrawDot(QPainter& painter, QPointF place, double size, double share, const Colour& ink) {
    if (share < 0.4) {
        return;
    }
    painter.setBrush(ToQColor(ink, 0.55 + 0.4 * share));
    painter.drawEllipse(place, size, size);
}

// Latitude by height in the picture; a little taller than wide degrees, which fills the square.
double LatitudeAt(double y) {
    return 14 - y * 108;
}

}  // namespace

QImage WorldMap() {
    QImage image = Render(Ocean, 210);
    QPainter painter(&image);
    PreparePrinting(painter);
    painter.setPen(Qt::NoPen);
    constexpr double Pitch = 0.0176;
    const Colour ink = Hex(0xdfe3d2);
    int row = 0;
    for (double y = -0.66; y < 0.66; y += Pitch * 0.8660254, ++row) {
        for (double x = -0.985 + (row % 2) * Pitch / 2; x < 0.985; x += Pitch) {
            const double share = LandShare(x * 182, LatitudeAt(y), 1.1);
            DrawDot(painter, {x, y}, Pitch * 0.38, share, ink);
        }
    }
    return image;
}

QImage PolarWorld() {
    const BezelShape bezel{0.945, 0.99, Hex(0x55431f), Hex(0xe6cf94)};
    QImage image = Render(
        [&bezel](double x, double y) {
            const double radius = std::hypot(x, y);
            Colour dial = Mix(Hex(0x1d4b66), Hex(0x0b2233), Soft(0.0, 0.75, radius));
            dial = dial + Grey(0.05 * Hill(0, 0.5, std::hypot(x + 0.3, y + 0.4)));
            const Colour chapter = Hex(0xe9e1cb) * (1 - 0.06 * Soft(0.7, 0.95, radius));
            dial = Mix(dial, chapter, Soft(0.658, 0.662, radius));
            dial = dial * (1 - 0.35 * Hill(0.655, 0.008, radius));
            return Framed(x, y, bezel, Hex(0x14110c), dial);
        },
        220);
    QPainter painter(&image);
    PreparePrinting(painter);
    painter.setPen(Qt::NoPen);
    const Colour land = Hex(0xd8c48f);
    for (double latitude = 84.5; latitude > -56; latitude -= 2.35) {
        const double radius = (90 - latitude) / 148 * 0.645;
        const int count = std::max(static_cast<int>(radius * 2 * 180 * Degree / 0.0108), 1);
        for (int dot = 0; dot < count; ++dot) {
            const double longitude = dot * 360.0 / count - 180;
            const double share = LandShare(longitude, latitude, 1.0);
            const QPointF place(radius * std::sin(longitude * Degree),
                                radius * std::cos(longitude * Degree));
            DrawDot(painter, place, 0.0042, share, land);
        }
    }
    const Colour ink = Hex(0x2a2418);
    PrintTrack(painter, ink, {0.89, 0.915, 0.004}, {0.875, 0.915, 0.011});
    PrintCircle(painter, ink, 0.918, 0.003);
    return image;
}

}  // namespace stock
