#include "drawing/Hands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "drawing/Angles.h"
#include "drawing/PixelPrimitives.h"
#include "foundation/Numbers.h"
#include "foundation/TextHelpers.h"

namespace drawing {

namespace {

constexpr double TailRatio = 0.3;
constexpr double SideRatio = 0.02;

/// A point at a distance from the centre.
QPoint PointAt(int cx, int cy, double distance, double angle) {
    return {ToPoint(cx + distance * std::sin(angle)), ToPoint(cy + distance * std::cos(angle))};
}

/// Tip, tail and the two sides of a frame.
std::array<QPoint, 4> FramePoints(int cx, int cy, double angle, int length) {
    return {PointAt(cx, cy, length, angle), PointAt(cx, cy, TailRatio * length, angle + Pi),
            PointAt(cx, cy, SideRatio * length, angle + Pi / 2),
            PointAt(cx, cy, SideRatio * length, angle + ThreePi / 2)};
}

void Connect(Surface& surface, const QPoint& from, const QPoint& to, int colour, int lineWidth) {
    surface.Line(from.x(), from.y(), to.x(), to.y(), colour, lineWidth);
}

/// With half of the pen and its soft edge.
QRect Around(std::span<const QPoint> points, int lineWidth) {
    const int margin = std::max(1, lineWidth) / 2 + 2;
    QRect bounds;
    for (const QPoint& point : points) {
        bounds |= QRect(point, QSize(1, 1));
    }
    return bounds.adjusted(-margin, -margin, margin, margin);
}

}  // namespace

int ToPoint(double value) {
    return std::clamp(mduAPILib::RoundToInteger(value), -32768, 32767);
}

void DrawSimpleLine(Surface& surface, int cx, int cy, double angle, int length, int colour,
                    int lineWidth) {
    Connect(surface, {cx, cy}, PointAt(cx, cy, length, angle), colour, lineWidth);
}

void DrawFrame(Surface& surface, int cx, int cy, double angle, int length, int colour,
               int lineWidth) {
    const auto [tip, tail, side, otherSide] = FramePoints(cx, cy, angle, length);
    Connect(surface, tip, side, colour, lineWidth);
    Connect(surface, tail, otherSide, colour, lineWidth);
    Connect(surface, side, tail, colour, lineWidth);
    Connect(surface, otherSide, tip, colour, lineWidth);
}

int CentrePointRings(int windowHeightInTwips) {
    return mduAPILib::RoundToInteger(mduLib::AtMost(windowHeightInTwips / 1600.0, 20));
}

void DrawCentrePoint(Surface& surface, int cx, int cy, int colour) {
    const mduLib::ColourParts parts = mduLib::SplitColour(colour);
    const int rings = CentrePointRings(surface.Height());
    const double ratio = surface.DevicePixelRatio();
    for (int i = 1; i <= rings; ++i) {
        const auto darker = [i](int component) { return std::max(component - 20 * i, 0); };
        const int ring = darker(parts.Red) | darker(parts.Green) << 8 | darker(parts.Blue) << 16;
        const int radius = mduAPILib::RoundToInteger(i * ratio);
        const int lastRadius = mduAPILib::RoundToInteger((i - 1) * ratio);
        DrawPixelCircle(surface, cx, cy, radius, radius - lastRadius, ring);
    }
}

QRect LineBounds(int cx, int cy, double angle, int length, int lineWidth) {
    return Around(std::array{QPoint(cx, cy), PointAt(cx, cy, length, angle)}, lineWidth);
}

QRect FrameBounds(int cx, int cy, double angle, int length, int lineWidth) {
    return Around(FramePoints(cx, cy, angle, length), lineWidth);
}

}  // namespace drawing
