#include "Dials.h"

#include <cmath>

#include "Materials.h"
#include "Noise.h"

namespace stock {

namespace {

const BezelShape SteelBezel{0.935, 0.99, Hex(0x4c5056), Hex(0xd9dde2)};
const BezelShape BrassBezel{0.9, 0.965, Hex(0x5e4115), Hex(0xe8c878)};
const BezelShape GoldBezel{0.93, 0.99, Hex(0x6b4a17), Hex(0xf0d28a)};

// The glaze of an enamel dial: hardly uneven, with one broad soft reflection.
double Glaze(double x, double y) {
    return 1 + 0.012 * Layered(x * 2, y * 2, 3, 131) +
           0.035 * Hill(0, 0.6, std::hypot(x + 0.4, y + 0.5));
}

Colour CirclesBrushed(double x, double y) {
    const double radius = std::hypot(x, y);
    const double bearing = std::atan2(y, x);
    const double groove =
        Noise(radius * 230, 7.5, 141) * 0.5 + Noise(radius * 330, std::cos(bearing) * 2, 142) * 0.5;
    const double turn = bearing + 0.72 + 0.03 * groove;
    const double fan = std::exp(4.5 * (std::cos(2 * turn) - 1)) +
                       0.32 * std::exp(8 * (std::cos(2 * (turn - 1.45)) - 1));
    const double calm = Soft(0.0, 0.1, radius);
    const double level = 0.56 + 0.32 * fan * calm + 0.05 * groove - 0.07 * Soft(0.5, 1.0, radius);
    return Colour{level * 0.985, level, level * 1.02};
}

// Engine turning: rings that swing in and out in 24 waves, cut as fine sharp grooves.
double EngineTurned(double x, double y) {
    const double radius = std::hypot(x, y);
    const double wave = std::sin(24 * std::atan2(y, x) + 9 * radius);
    const double ring = 34 * radius + 0.42 * wave * Soft(0.03, 0.2, radius);
    return std::abs(std::sin(ring * 3.14159265358979));
}

Colour Guilloche(double x, double y) {
    const double radius = std::hypot(x, y);
    constexpr double Step = 0.0012;
    const double slopeX = EngineTurned(x + Step, y) - EngineTurned(x - Step, y);
    const double slopeY = EngineTurned(x, y + Step) - EngineTurned(x, y - Step);
    const double facing = std::tanh(-(slopeX + slopeY) * 2.2);
    const double groove = 1 - Soft(0.0, 0.3, EngineTurned(x, y));
    const double fan = std::exp(2.5 * (std::cos(2 * (std::atan2(y, x) + 2.3)) - 1));
    const double depth = Soft(0.02, 0.1, radius);
    const double level = 0.74 + 0.12 * fan + (0.11 * facing - 0.16 * groove) * depth;
    return Hex(0xfbf9f4) * level;
}

}  // namespace

QImage BrushedSteelDial() {
    QImage image = Render(
        [](double x, double y) {
            const double radius = std::hypot(x, y);
            // A recess under the track, finely set off from the field within.
            const double rim = Soft(0.797, 0.803, radius);
            const Colour field = CirclesBrushed(x, y);
            Colour dial = Mix(field, field * 0.82, rim);
            dial = dial * (1 - 0.3 * Hill(0.8, 0.004, radius)) +
                   Grey(0.16 * Hill(0.807, 0.003, radius));
            return Framed(x, y, SteelBezel, Hex(0x24272b) * Vignette(x, y, 0.3), dial);
        },
        140);
    QPainter painter(&image);
    PreparePrinting(painter);
    PrintTrack(painter, Hex(0x1d2126), {0.865, 0.9, 0.005}, {0.83, 0.9, 0.012});
    return image;
}

QImage BlackEnamelDial() {
    QImage image = Render(
        [](double x, double y) {
            const double gloss = Hill(0, 0.75, std::hypot(x + 0.45, y + 0.62));
            const double arc = Soft(0.86, 0.845, std::hypot(x, y)) *
                               Soft(0.93, 0.99, std::hypot(x - 0.33, y - 0.45));
            const Colour enamel =
                Mix(Hex(0x08090b), Hex(0x2a2d33), 0.8 * gloss) + Grey(0.022 * arc);
            return Framed(x, y, GoldBezel, Hex(0x0e0d0c), enamel * Vignette(x, y, 0.3));
        },
        150);
    QPainter painter(&image);
    PreparePrinting(painter);
    const Colour ink = Hex(0xe5d9bd);
    PrintCircle(painter, ink, 0.872, 0.004);
    PrintTrack(painter, ink, {0.842, 0.872, 0.004}, {0.82, 0.872, 0.009});
    return image;
}

QImage IvoryEnamelDial() {
    QImage image = Render(
        [](double x, double y) {
            const Colour enamel =
                Mix(Hex(0xf8f1de), Hex(0xe9dcbd), Soft(0.3, 1.05, std::hypot(x, y)));
            return Framed(x, y, GoldBezel, Hex(0x2b1d12), enamel * Glaze(x, y));
        },
        160);
    QPainter painter(&image);
    PreparePrinting(painter);
    const Colour ink = Hex(0x2a2320);
    PrintCircle(painter, ink, 0.872, 0.004);
    PrintCircle(painter, ink, 0.84, 0.004);
    PrintTrack(painter, ink, {0.84, 0.872, 0.004}, {0.836, 0.876, 0.013});
    return image;
}

QImage GuillocheDial() {
    QImage image = Render(
        [](double x, double y) {
            const double radius = std::hypot(x, y);
            const Colour silver = Grey(0.9) * Hex(0xfdfbf6) * Glaze(x, y);
            const double ring = Soft(0.548, 0.552, radius) * Soft(0.96, 0.95, radius);
            Colour dial = Mix(Guilloche(x, y), silver, ring);
            dial = dial * (1 - 0.3 * Hill(0.545, 0.005, radius));
            dial = dial + Grey(0.1 * Hill(0.557, 0.004, radius));
            return Framed(x, y, SteelBezel, Hex(0x2c2e33), dial * Vignette(x, y, 0.16));
        },
        170);
    QPainter painter(&image);
    PreparePrinting(painter);
    const Colour ink = Hex(0x1f2a44);
    PrintCircle(painter, ink, 0.885, 0.003);
    PrintTrack(painter, ink, {0.858, 0.885, 0.004}, {0.848, 0.885, 0.01});
    return image;
}

QImage StationDial() {
    QImage image = Render(
        [](double x, double y) {
            const BezelShape bezel{0.945, 0.995, Hex(0x0c0d0f), Hex(0x5d6268)};
            const double radius = std::hypot(x, y);
            const Colour face = Mix(Hex(0xfbfbf8), Hex(0xe6e6e1), Soft(0.2, 1.0, radius));
            return Framed(x, y, bezel, Hex(0xb9bcbe) * Vignette(x, y, 0.2), face);
        },
        180);
    QPainter painter(&image);
    PreparePrinting(painter);
    PrintTrack(painter, Hex(0x111214), {0.83, 0.9, 0.022}, {0.69, 0.9, 0.058});
    return image;
}

QImage WalnutCase() {
    QImage image = Render(
        [](double x, double y) {
            const Colour enamel =
                Mix(Hex(0xf7f1e4), Hex(0xe4d8c0), Soft(0.25, 0.95, std::hypot(x, y)));
            return Framed(x, y, BrassBezel, Walnut(x, y), enamel * Glaze(x, y));
        },
        190);
    QPainter painter(&image);
    PreparePrinting(painter);
    const Colour ink = Hex(0x33241a);
    PrintDots(painter, ink, 0.835, 0.0055, 0.012);
    PrintCircle(painter, ink, 0.575, 0.003);
    return image;
}

QImage SlateDial() {
    QImage image = Render(
        [](double x, double y) {
            const double cleft = Layered(x * 2.2 + 4, y * 3.4, 6, 201);
            const double slopes = Layered((x + 0.004) * 2.2 + 4, (y + 0.004) * 3.4, 6, 201) - cleft;
            Colour stone = Mix(Hex(0x3a4148), Hex(0x4e565e), 0.5 + 0.6 * cleft);
            stone =
                stone * (1 - 3.4 * slopes) * (1 + 0.1 * Hill(0, 0.8, std::hypot(x + 0.4, y + 0.5)));
            return stone * Vignette(x, y, 0.45);
        },
        200);
    QPainter painter(&image);
    PreparePrinting(painter);
    PrintTrack(painter, Hex(0xd7d9d6), {0.9, 0.925, 0.0045}, {0.875, 0.925, 0.011});
    return image;
}

}  // namespace stock
