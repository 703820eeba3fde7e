#include "drawing/Hands.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/Angles.h"
#include "drawing/PixelPrimitives.h"
#include "foundation/Numbers.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

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

}  // namespace

int ToPoint(double value) {
    return std::clamp(mduAPILib::RoundToInteger(value), -32768, 32767);
}

HandStyle ReadHandStyle(const QString& text) {
    static const QStringList names = {
        u"Line"_s,    u"Frame"_s, u"3D Metal Simple"_s, u"3D Gold Simple"_s, u"3D Metal"_s,
        u"3D Gold"_s, u"3D"_s};
    return static_cast<HandStyle>(names.indexOf(text.trimmed()) + 1);
}

void DrawClockHand(Surface& surface, HandStyle style, int cx, int cy, double angle, int length,
                   int colour, int lineWidth) {
    if (length <= 0) {
        return;
    }
    switch (style) {
        case HandStyle::Line:
            DrawSimpleLine(surface, cx, cy, angle, length, colour, lineWidth);
            break;
        case HandStyle::Frame:
            DrawFrame(surface, cx, cy, angle, length, colour, lineWidth);
            break;
        default:
            break;
    }
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
    for (int i = 1; i <= rings; ++i) {
        const auto darker = [i](int component) { return std::max(component - 20 * i, 0); };
        const int ring = darker(parts.Red) | darker(parts.Green) << 8 | darker(parts.Blue) << 16;
        DrawPixelCircle(surface, cx, cy, i, 1, ring);
    }
}

QRect HandBounds(HandStyle style, int cx, int cy, double angle, int length, int lineWidth,
                 double /*devicePixelRatio*/) {
    if (length <= 0 || style == HandStyle::Unknown) {
        return {};
    }
    if (style != HandStyle::Line && style != HandStyle::Frame) {
        // Not worked out for this style: all that it can reach, with its width and its shadow.
        const int reach = 2 * length + std::max(0, lineWidth) + 8;
        return {cx - reach, cy - reach, 2 * reach + 1, 2 * reach + 1};
    }
    QRect bounds(QPoint(cx, cy), QSize(1, 1));
    for (const QPoint& point : FramePoints(cx, cy, angle, length)) {
        bounds |= QRect(point, QSize(1, 1));
    }
    const int margin = std::max(1, lineWidth) / 2 + 2;  // the pen's half and the soft edge
    return bounds.adjusted(-margin, -margin, margin, margin);
}

}  // namespace drawing
