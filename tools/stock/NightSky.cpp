#include <QPainter>
#include <QRadialGradient>
#include <cmath>

#include "Materials.h"
#include "Noise.h"

namespace stock {

namespace {

// How far a place lies within the band of the galaxy, 0 to 1.
double Galaxy(double x, double y) {
    const double across = 0.77 * x + 0.64 * y + 0.12 * Layered(x * 1.1, y * 1.1, 3, 111) + 0.12;
    return Hill(0, 0.34, across);
}

Colour Sky(double x, double y) {
    const double band = Galaxy(x, y);
    const double cloud = 0.5 + 0.9 * Layered(x * 2.6, y * 2.6, 6, 112);
    const double dust = Soft(0.5, 0.82, Crests(x * 1.7 + 3, y * 1.7, 5, 113)) *
                        Hill(0, 0.2, 0.77 * x + 0.64 * y + 0.15);
    Colour sky = Mix(Hex(0x070b18), Hex(0x16223f), Soft(-1.1, 1.1, y - 0.25 * x));
    sky =
        sky + Hex(0x5c6a96) * (0.34 * band * cloud) + Hex(0x9a7f86) * (0.12 * band * band * cloud);
    sky = sky * (1 - 0.42 * dust);
    return sky * Vignette(x, y, 0.35);
}

Colour StarTint(double chance) {
    return chance < 0.2 ? Hex(0xffe3c2) : chance < 0.4 ? Hex(0xc9d8ff) : Hex(0xf6f7ff);
}

void DrawStar(QPainter& painter, QPointF place, double size, const Colour& tint, double strength) {
    QRadialGradient glow(place, size * 3.2);
    glow.setColorAt(0, ToQColor(tint, strength));
    glow.setColorAt(0.22, ToQColor(tint, strength * 0.75));
    glow.setColorAt(0.42, ToQColor(tint, strength * 0.14));
    glow.setColorAt(1, ToQColor(tint, 0));
    painter.setBrush(glow);
    painter.drawEllipse(place, size * 3.2, size * 3.2);
}

}  // namespace

QImage NightSky() {
    QImage image = Render(Sky, 110);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int star = 0; star < 2600; ++star) {
        const double x = Hash(star, 1, 120) * 2 - 1;
        const double y = Hash(star, 2, 120) * 2 - 1;
        // Most of the faint ones gather along the galaxy.
        if (star > 500 && Hash(star, 3, 120) > 0.12 + Galaxy(x, y)) {
            continue;
        }
        const double brightness = std::pow(Hash(star, 4, 120), 9);
        const double size = 0.62 + 1.5 * brightness;
        const double strength = 0.3 + 0.25 * Hash(star, 5, 120) + 0.45 * brightness;
        DrawStar(painter, {(x + 1) * PictureSize / 2, (y + 1) * PictureSize / 2}, size,
                 StarTint(Hash(star, 6, 120)), strength);
    }
    return image;
}

}  // namespace stock
