#include "Noise.h"

#include <cmath>

namespace stock {

namespace {

std::uint64_t Scramble(std::uint64_t value) {
    value ^= value >> 30;
    value *= 0xbf58476d1ce4e5b9U;
    value ^= value >> 27;
    value *= 0x94d049bb133111ebU;
    return value ^ (value >> 31);
}

double Fade(double t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

double Slope(std::int64_t x, std::int64_t y, double dx, double dy, std::uint32_t seed) {
    const double angle = Hash(x, y, seed) * 6.28318530717958;
    return std::cos(angle) * dx + std::sin(angle) * dy;
}

}  // namespace

double Hash(std::int64_t x, std::int64_t y, std::uint32_t seed) {
    const auto a = static_cast<std::uint64_t>(x) * 0x9e3779b97f4a7c15U;
    const auto b = static_cast<std::uint64_t>(y) * 0xc2b2ae3d27d4eb4fU;
    const std::uint64_t mixed = Scramble(a ^ Scramble(b + seed));
    return static_cast<double>(mixed >> 11) / 9007199254740992.0;
}

double Noise(double x, double y, std::uint32_t seed) {
    const double left = std::floor(x);
    const double top = std::floor(y);
    const auto i = static_cast<std::int64_t>(left);
    const auto j = static_cast<std::int64_t>(top);
    const double dx = x - left;
    const double dy = y - top;
    const double u = Fade(dx);
    const double upper = std::lerp(Slope(i, j, dx, dy, seed), Slope(i + 1, j, dx - 1, dy, seed), u);
    const double lower =
        std::lerp(Slope(i, j + 1, dx, dy - 1, seed), Slope(i + 1, j + 1, dx - 1, dy - 1, seed), u);
    return 1.5 * std::lerp(upper, lower, Fade(dy));
}

double Layered(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0;
    double weight = 0.5;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * Noise(x, y, seed + static_cast<std::uint32_t>(octave));
        // An odd factor keeps the lattices of the octaves from meeting.
        x = x * 2.03 + 17.1;
        y = y * 2.03 - 9.7;
        weight /= 2;
    }
    return sum;
}

double Crests(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0;
    double weight = 0.5;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * (1 - std::abs(Noise(x, y, seed + static_cast<std::uint32_t>(octave))));
        x = x * 2.03 + 17.1;
        y = y * 2.03 - 9.7;
        weight /= 2;
    }
    return sum;
}

}  // namespace stock
