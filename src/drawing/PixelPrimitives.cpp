#include "drawing/PixelPrimitives.h"

#include <array>
#include <cmath>

#include "foundation/Numbers.h"

namespace drawing {

using mduAPILib::RoundToInteger;

namespace {

struct Direction {
    double Cos, Sin;
};

constexpr int Degrees = 361;

const std::array<Direction, Degrees>& CircleDirections() {
    static const std::array<Direction, Degrees> directions = [] {
        std::array<Direction, Degrees> all{};
        for (int d = 0; d < Degrees; ++d) {
            const double t = d * 6.28 / 360;
            all[static_cast<std::size_t>(d)] = {std::cos(t), std::sin(t)};
        }
        return all;
    }();
    return directions;
}

/// Calls @p plot with each step of the driving axis and the point of the other axis.
template <typename Plot>
void WalkLine(double from, double to, double otherFrom, double otherTo, const Plot& plot) {
    const double step = to >= from ? 1 : -1;
    for (double at = from; step > 0 ? at <= to : at >= to; at += step) {
        const double other = otherFrom == otherTo
                                 ? otherFrom
                                 : (at - from) * (otherTo - otherFrom) / (to - from) + otherFrom;
        plot(RoundToInteger(at), RoundToInteger(other));
    }
}

}  // namespace

void DrawPixelLine(Surface& surface, double x1, double y1, double x2, double y2, int /*width*/,
                   int colour) {
    if (std::abs(y1 - y2) > std::abs(x1 - x2)) {
        WalkLine(y1, y2, x1, x2, [&](int y, int x) { surface.SetPixel(x, y, colour); });
    } else {
        WalkLine(x1, x2, y1, y2, [&](int x, int y) { surface.SetPixel(x, y, colour); });
    }
}

void DrawPixelCircle(Surface& surface, int x, int y, int radius, int thickness, int colour) {
    for (int j = 0; j <= thickness; ++j) {
        for (const Direction& direction : CircleDirections()) {
            surface.SetPixel(RoundToInteger(x + (radius - j) * direction.Cos),
                             RoundToInteger(y + (radius - j) * direction.Sin), colour);
        }
    }
}

}  // namespace drawing
