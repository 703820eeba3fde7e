#include "Room.h"

#include <array>
#include <cmath>

namespace sounds {

namespace {

struct Echo {
    double Milliseconds, Level;
};

constexpr std::array<Echo, 6> LeftWalls{
    {{7.3, 0.8}, {11.9, -0.62}, {17.1, 0.52}, {23.7, 0.42}, {31.3, -0.33}, {41.9, 0.25}}};
constexpr std::array<Echo, 6> RightWalls{
    {{8.1, -0.78}, {12.7, 0.64}, {16.3, 0.5}, {25.1, -0.41}, {29.9, 0.34}, {43.3, 0.24}}};

// Lengths without a common divisor, so that no echoes fall together.
constexpr std::array<std::size_t, 4> LeftLines{1559, 1867, 2179, 2503};
constexpr std::array<std::size_t, 4> RightLines{1613, 1811, 2243, 2459};

// Four delay lines that feed each other through a Householder mirror, and lose their height first.
Wave Tail(const Wave& dry, double ring, const std::array<std::size_t, 4>& lengths,
          std::size_t total) {
    std::array<Wave, 4> lines;
    std::array<double, 4> loss{};
    std::array<double, 4> soft{};
    for (std::size_t k = 0; k < 4; ++k) {
        lines[k].assign(lengths[k], 0);
        loss[k] = std::pow(10, -3 * static_cast<double>(lengths[k]) / (ring * SynthesisRate));
    }
    Wave wet(total);
    for (std::size_t i = 0; i < total; ++i) {
        double sum = 0;
        for (std::size_t k = 0; k < 4; ++k) {
            soft[k] += 0.55 * (lines[k][i % lengths[k]] - soft[k]);
            sum += soft[k];
        }
        const double in = i < dry.size() ? dry[i] : 0;
        for (std::size_t k = 0; k < 4; ++k) {
            lines[k][i % lengths[k]] = in + loss[k] * (soft[k] - sum / 2);
        }
        wet[i] = (soft[0] - soft[1] + soft[2] - soft[3]) / 2;
    }
    return wet;
}

}  // namespace

Wave InRoom(const Wave& dry, const RoomKind& room, bool rightEar) {
    Wave wet = dry;
    for (const Echo& echo : rightEar ? RightWalls : LeftWalls) {
        Mix(wet, dry, echo.Milliseconds / 1000, room.Early * echo.Level);
    }
    if (room.Tail > 0) {
        const std::size_t total = dry.size() + SamplesOf(room.Ring);
        Mix(wet, Tail(dry, room.Ring, rightEar ? RightLines : LeftLines, total), 0.012, room.Tail);
    }
    return wet;
}

}  // namespace sounds
