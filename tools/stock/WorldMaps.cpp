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

// The dots of each second row stand between those of the row above.
void PrintLandAcross(QPainter& painter, const Colour& ink) {
    constexpr double Pitch = 0.0176;
    constexpr double RowPitch = Pitch * 0.8660254;
    constexpr int Rows = 87;
    constexpr int Columns = 112;
    for (int row = 0; row < Rows; ++row) {
        const double y = row * RowPitch - 0.66;
        for (int column = 0; column < Columns; ++column) {
            const double x = (column + (row % 2) * 0.5) * Pitch - 0.985;
            const double share = LandShare(x * 182, LatitudeAt(y), 1.1);
            DrawDot(painter, {x, y}, Pitch * 0.38, share, ink);
        }
    }
}

constexpr double MapRadius = 0.66;

// Rings of dots, one for each circle of latitude from the pole to Cape Horn.
void PrintLandAroundPole(QPainter& painter, const Colour& ink) {
    constexpr double RingPitch = 2.35;
    constexpr int Rings = 60;
    for (int ring = 0; ring < Rings; ++ring) {
        const double latitude = 84.5 - ring * RingPitch;
        const double radius = (90 - latitude) / 148 * (MapRadius - 0.015);
        const int count = std::max(static_cast<int>(radius * 360 * Degree / 0.0108), 1);
        for (int dot = 0; dot < count; ++dot) {
            const double longitude = dot * 360.0 / count - 180;
            const QPointF place(radius * std::sin(longitude * Degree),
                                radius * std::cos(longitude * Degree));
            DrawDot(painter, place, 0.0042, LandShare(longitude, latitude, 1.0), ink);
        }
    }
}

Colour PolarDial(double x, double y) {
    const BezelShape bezel{0.945, 0.99, Hex(0x55431f), Hex(0xe6cf94)};
    const double radius = std::hypot(x, y);
    Colour dial = Mix(Hex(0x1d4b66), Hex(0x0b2233), Soft(0.0, 0.75, radius));
    dial = dial + Grey(0.05 * Hill(0, 0.5, std::hypot(x + 0.3, y + 0.4)));
    const Colour chapter = Hex(0xe9e1cb) * (1 - 0.06 * Soft(0.7, 0.95, radius));
    dial = Mix(dial, chapter, Soft(MapRadius - 0.002, MapRadius + 0.002, radius));
    dial = dial * (1 - 0.35 * Hill(MapRadius - 0.005, 0.008, radius));
    return Framed(x, y, bezel, Hex(0x14110c), dial);
}

}  // namespace

QImage WorldMap() {
    QImage image = Render(Ocean, 210);
    QPainter painter(&image);
    PreparePrinting(painter);
    painter.setPen(Qt::NoPen);
    PrintLandAcross(painter, Hex(0xdfe3d2));
    return image;
}

QImage PolarWorld() {
    QImage image = Render(PolarDial, 220);
    QPainter painter(&image);
    PreparePrinting(painter);
    painter.setPen(Qt::NoPen);
    PrintLandAroundPole(painter, Hex(0xd8c48f));
    const Colour ink = Hex(0x2a2418);
    PrintTrack(painter, ink, {0.89, 0.915, 0.004}, {0.875, 0.915, 0.011});
    PrintCircle(painter, ink, 0.918, 0.003);
    return image;
}

}  // namespace stock
