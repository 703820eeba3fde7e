#include "drawing/PixelPrimitives.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "foundation/Numbers.h"

namespace drawing {

using mduAPILib::RoundToInteger;

namespace {

constexpr int Degrees = 361;
constexpr int LargestKeptRadius = 20;  // of a hub

/// The pixels of a ring around the origin, each once, in the order of their first visit.
std::vector<QPoint> RingAround(int x, int y, int radius) {
    std::vector<QPoint> ring;
    for (int d = 0; d < Degrees; ++d) {
        const double t = d * 6.28 / 360;
        const QPoint pixel(RoundToInteger(x + radius * std::cos(t)),
                           RoundToInteger(y + radius * std::sin(t)));
        if (std::find(ring.begin(), ring.end(), pixel) == ring.end()) {
            ring.push_back(pixel);
        }
    }
    return ring;
}

/// Rings of a hub are drawn at every pass: no point of them lies half-way between two pixels, so
/// that the ring around the origin, moved, is the ring around any centre.
const std::vector<QPoint>& KeptRing(int radius) {
    static const std::array<std::vector<QPoint>, LargestKeptRadius + 1> rings = [] {
        std::array<std::vector<QPoint>, LargestKeptRadius + 1> all;
        for (int r = 0; r <= LargestKeptRadius; ++r) {
            all[static_cast<std::size_t>(r)] = RingAround(0, 0, r);
        }
        return all;
    }();
    return rings[static_cast<std::size_t>(radius)];
}

void DrawRing(Surface& surface, int x, int y, int radius, int colour) {
    if (radius >= 0 && radius <= LargestKeptRadius) {
        for (const QPoint& pixel : KeptRing(radius)) {
            surface.SetPixel(x + pixel.x(), y + pixel.y(), colour);
        }
        return;
    }
    for (int d = 0; d < Degrees; ++d) {
        const double t = d * 6.28 / 360;
        surface.SetPixel(RoundToInteger(x + radius * std::cos(t)),
                         RoundToInteger(y + radius * std::sin(t)), colour);
    }
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
        DrawRing(surface, x, y, radius - j, colour);
    }
}

}  // namespace drawing
