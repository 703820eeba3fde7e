#include "Materials.h"

#include <algorithm>
#include <cmath>

#include "Noise.h"

namespace stock {

namespace {

constexpr double Pi = 3.14159265358979;

// The broad light that lies over every flat surface.
double Sheen(double x, double y, double strength) {
    return 1 + strength * (Hill(-0.35, 0.75, (x + y) / 2) - 0.45);
}

}  // namespace

Colour Walnut(double x, double y) {
    const double warp = 0.13 * Layered(x * 1.2 + 3, y * 0.4, 3, 11);
    // A plank cut near the heart: long arches in the middle, straight grain beside them.
    const double depth = std::hypot(x + 0.24 + warp, 0.13 * (y - 2.3) + 0.4 * warp);
    const double ring = depth * 24 + 0.55 * Layered(x * 5, y * 0.7, 4, 12);
    const double phase = ring - std::floor(ring);
    const double late = Soft(0.1, 0.8, phase) * (1 - Soft(0.8, 1.0, phase));
    const double strength = 0.55 + 0.45 * Hash(static_cast<int>(std::floor(ring)), 0, 17);
    const double fibre =
        Noise(x * 95 + warp * 60, y * 2.6, 13) * 0.6 + Noise(x * 210 + warp * 90, y * 6, 14) * 0.4;
    const double pore = Soft(0.42, 0.9, Noise(x * 190 + warp * 90, y * 7.5, 15));
    const double cloud = Layered(x * 1.1, y * 0.6, 3, 16);
    Colour wood = Mix(Hex(0x6b4630), Hex(0x3a2318), late * strength * 0.85);
    wood = Mix(wood, Hex(0x8c6244), 0.2 + 0.5 * cloud);
    wood = wood * (1 + 0.12 * fibre) * (1 - 0.36 * pore);
    return wood * Sheen(x, y, 0.36) * Vignette(x, y, 0.45);
}

Colour WhiteMarble(double x, double y) {
    const double u = x * 0.8 + y * 0.6;
    const double v = y * 0.8 - x * 0.6;
    const double du = 0.55 * Layered(u * 1.1 + 5, v * 1.1, 4, 21);
    const double dv = 0.55 * Layered(u * 1.1, v * 1.1 + 9, 4, 22);
    const double large = std::abs(Noise(u * 0.9 + du, v * 1.9 + dv, 23));
    const double small = std::abs(Noise(u * 2.1 + 2 * du, v * 3.9 + 2 * dv, 24));
    const double weight = Soft(-0.35, 0.5, Layered(u * 0.8, v * 0.8, 2, 25));
    const double vein = std::exp(-large * 22) * (0.25 + 0.75 * weight);
    const double halo = std::exp(-large * 4.5) * weight;
    const double hair = std::exp(-small * 42) * 0.45 * weight;
    Colour stone = Mix(Hex(0xf4f2ee), Hex(0xe3e2e0), Soft(-0.4, 0.6, Layered(u, v, 5, 26)));
    stone = Mix(stone, Hex(0xbfc1c4), 0.5 * halo);
    stone = Mix(stone, Hex(0x80858c), std::min(0.62 * vein + 0.5 * hair, 0.8));
    stone = Mix(stone, Hex(0xcbb89a), 0.22 * vein * Soft(0.1, 0.5, Noise(u * 2, v * 2, 27)));
    return stone * Vignette(x, y, 0.12);
}

Colour BrushedAluminium(double x, double y) {
    const double streak = Noise(x * 3, y * 260, 31) * 0.45 + Noise(x * 9, y * 420, 32) * 0.35 +
                          Noise(x * 1.2, y * 70, 33) * 0.3;
    const double band = 0.70 + 0.17 * Hill(-0.3, 0.5, y + 0.06 * x) +
                        0.05 * Hill(0.62, 0.28, y + 0.06 * x) - 0.05 * (y + 1) / 2;
    const Colour metal = Mix(Hex(0xeef1f4), Hex(0xf4f2ee), (x + 1) / 2);
    return metal * (band + 0.045 * streak) * Vignette(x, y, 0.22);
}

Colour Parchment(double x, double y) {
    const double wobble = 0.004 * Noise(x * 3, y * 3, 41);
    const double laid = std::sin((y + wobble) * 2 * Pi * 66);
    const double nearest = std::abs(std::remainder(x + wobble * 2 + 0.06, 0.27));
    const double chain = std::exp(-nearest * nearest / 0.000018);
    const double cloud = Layered(x * 1.4, y * 1.4, 5, 42);
    const double flock = Layered(x * 24, y * 24, 3, 43);
    const double fibre = Soft(0.62, 0.8, Crests(x * 9, y * 9, 2, 44));
    Colour paper = Mix(Hex(0xf1e6cd), Hex(0xdfcaa2), Soft(-0.6, 0.7, cloud));
    paper = paper * (1 + 0.02 * laid - 0.035 * chain + 0.03 * flock);
    paper = Mix(paper, Hex(0xb99a68), 0.08 * fibre);
    const double edge = std::max(std::abs(x), std::abs(y)) + 0.06 * Layered(x * 5, y * 5, 3, 45);
    paper = Mix(paper, Hex(0x9c7742), 0.42 * Soft(0.82, 1.08, edge));
    return paper * Vignette(x, y, 0.14);
}

Colour CarbonFibre(double x, double y) {
    constexpr double Tows = 19;
    const double u = (x + y) * 0.70710678 * Tows;
    const double v = (x - y) * 0.70710678 * Tows;
    const auto column = static_cast<int>(std::floor(u));
    const auto row = static_cast<int>(std::floor(v));
    const bool lengthwise = ((column + row) % 4 + 4) % 4 < 2;
    const double across = (lengthwise ? u - column : v - row) - 0.5;
    const double along = lengthwise ? v : u;
    // A tow passes over two others and dives at both ends.
    const double step = std::remainder(along + (lengthwise ? column - 1 : row - 3), 4);
    const double rise = std::clamp(1 - step * step, 0.0, 1.0);
    const double strand = Noise((lengthwise ? u : v) * 15, along * 0.5, lengthwise ? 51 : 52);
    const double round = 1 - 2.6 * across * across;
    const double glance = lengthwise ? 0.62 : 0.34;
    const double sheen = 0.45 + 0.75 * Hill(-0.35, 0.8, (x + y) / 2);
    const double level =
        0.05 + 0.16 * glance * round * (0.55 + 0.45 * rise) * sheen * (1 + 0.28 * strand) * 1.5;
    return Colour{level * 0.97, level, level * 1.05} * Vignette(x, y, 0.4);
}

Colour FrostedGlass(double x, double y) {
    const double grain = Hash(static_cast<int>((x + 2) * 500), static_cast<int>((y + 2) * 500), 61);
    const double jx = x + 0.035 * (grain - 0.5);
    const double jy =
        y +
        0.035 * (Hash(static_cast<int>((y + 2) * 500), static_cast<int>((x + 2) * 500), 62) - 0.5);
    Colour view = Mix(Hex(0xdfeaee), Hex(0xb9cdd6), Soft(-1, 1, jy + 0.2 * jx));
    view = Mix(view, Hex(0x9fc3c8), 0.75 * Hill(0, 0.55, std::hypot(jx + 0.55, jy - 0.45)));
    view = Mix(view, Hex(0xf6ead6), 0.85 * Hill(0, 0.5, std::hypot(jx - 0.5, jy + 0.5)));
    view = Mix(view, Hex(0xa9b8d4), 0.7 * Hill(0, 0.5, std::hypot(jx - 0.65, jy - 0.6)));
    view = Mix(view, Hex(0xffffff), 0.5 * Hill(0, 0.45, std::hypot(jx + 0.5, jy + 0.6)));
    const double glide = Hill(-0.3, 0.07, x + 0.35 * y) + 0.6 * Hill(-0.05, 0.025, x + 0.35 * y);
    return (view + Grey(0.03 * glide + 0.022 * (grain - 0.5))) * Vignette(x, y, 0.1);
}

Colour CopperPatina(double x, double y) {
    const double du = 0.35 * Layered(x * 1.6, y * 1.6, 4, 71);
    const double dv = 0.35 * Layered(x * 1.6 + 8, y * 1.6, 4, 72);
    const double field = Layered(x * 1.5 + du, y * 1.1 + dv, 6, 73) +
                         0.3 * Layered(x * 9, y * 2.2, 3, 74) + 0.5 * (std::hypot(x, y) - 0.98);
    const double fine = Layered(x * 40, y * 40, 3, 75);
    const double green = Soft(-0.06, 0.5, field + 0.14 * fine);
    const double brush = Noise(x * 4, y * 170, 76) * 0.5 + Noise(x * 10, y * 330, 77) * 0.35;
    Colour copper = Mix(Hex(0x6f3d28), Hex(0xa86645), Hill(-0.25, 0.6, (x + y) / 2));
    copper = Mix(copper * (1 + 0.09 * brush), Hex(0x45302a), Soft(-0.3, 0.25, field) * 0.6);
    Colour bloom = Mix(Hex(0x3f7f74), Hex(0x86b9a6), Soft(-0.4, 0.6, Layered(x * 6, y * 6, 4, 78)));
    bloom = bloom * (1 + 0.1 * fine);
    return Mix(copper, bloom, green * 0.8) * Vignette(x, y, 0.32);
}

Colour MotherOfPearl(double x, double y) {
    const double du = Layered(x * 1.2 + 4, y * 1.2, 4, 81);
    const double dv = Layered(x * 1.2, y * 1.2 + 7, 4, 82);
    const double flow = 1.3 * Layered(x * 1.1 + du, y * 0.8 + dv, 4, 83) + 0.6 * x - 0.3 * y;
    const double angle = flow * Pi * 1.5;
    const Colour hue{0.5 + 0.5 * std::cos(angle), 0.5 + 0.5 * std::cos(angle - 2.1),
                     0.5 + 0.5 * std::cos(angle + 2.1)};
    const double fold = Crests(x * 2.2 + 1.4 * du, y * 1.7 + 1.4 * dv, 3, 84);
    Colour pearl = Mix(Hex(0xecebe8), hue, 0.045);
    pearl = pearl + Grey(0.16 * (fold - 0.62));
    return pearl * Vignette(x, y, 0.14);
}

Colour Dusk(double x, double y) {
    const double haze = y + 0.05 * Layered(x * 0.8, y * 2.2, 4, 91);
    Colour sky = Mix(Hex(0x141a33), Hex(0x3a3158), Soft(-1.0, -0.1, haze));
    sky = Mix(sky, Hex(0x9a5468), Soft(-0.25, 0.45, haze));
    sky = Mix(sky, Hex(0xe39a6d), Soft(0.3, 0.86, haze));
    sky = Mix(sky, Hex(0xf4cf9c), 0.7 * Soft(0.68, 1.05, haze));
    const double cloud = Soft(0.05, 0.5, Layered(x * 1.3 + 2, y * 6.5, 5, 92)) * Soft(-0.3, 0.4, y);
    return Mix(sky, sky * Hex(0x8a7f9c), 0.3 * cloud) * Vignette(x, y, 0.22);
}

Colour DeepSea(double x, double y) {
    const double depth = y + 0.03 * Noise(x * 1.2, y, 95);
    Colour sea = Mix(Hex(0x2f9aa6), Hex(0x0d5673), Soft(-1.05, 0.0, depth));
    sea = Mix(sea, Hex(0x041c33), Soft(-0.25, 1.0, depth));
    // Shafts of light from a place above the picture.
    const double bearing = std::atan2(x + 0.35, y + 1.9);
    const double shaft = Soft(0.0, 0.9, Noise(bearing * 9, 0.4, 96)) +
                         0.5 * Soft(0.1, 0.9, Noise(bearing * 23, 0.9, 97));
    sea = sea + Hex(0x8fe0dc) * (0.13 * shaft * Soft(0.75, -1.0, depth));
    return sea * Vignette(x, y, 0.3);
}

Colour Sunburst(double x, double y, const SunburstTones& tones) {
    const double radius = std::hypot(x, y);
    const double bearing = std::atan2(y, x);
    const double ray = Noise(bearing * 55 + 200, radius * 0.9, 101) * 0.4 +
                       Noise(bearing * 130 + 500, radius * 1.3, 102) * 0.35 +
                       Noise(bearing * 260 + 900, radius * 2, 103) * 0.25;
    // The seam of the bearing lies at the left; fade the rays there so that it can't be seen.
    const double ends = Soft(Pi, Pi - 0.02, std::abs(bearing));
    const double turn = bearing + 2.1 + 0.035 * ray * ends;
    const double fan = std::exp(5.5 * (std::cos(2 * turn) - 1));
    const double cross = 0.3 * std::exp(9 * (std::cos(2 * (turn - Pi / 2)) - 1));
    const double calm = Soft(0.0, 0.12, radius);
    Colour dial = Mix(tones.Body, tones.Light, (fan + cross) * (0.35 + 0.65 * calm) * 0.8 + 0.1);
    dial = Mix(dial, tones.Rim, Soft(0.35, 1.25, radius) * 0.85);
    return dial * (1 + 0.09 * ray * ends * calm);
}

}  // namespace stock
