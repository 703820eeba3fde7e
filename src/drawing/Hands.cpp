#include "drawing/Hands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "drawing/Angles.h"
#include "drawing/Hands3D.h"
#include "drawing/PixelPrimitives.h"
#include "foundation/Numbers.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr double TailRatio = 0.3;
constexpr float TailRatio3D = 0.3F;
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

/// A pen's width in device pixels.
int PenWidth(int lineWidth, double devicePixelRatio) {
    return mduAPILib::RoundToInteger(lineWidth * devicePixelRatio);
}

QRect Around(std::span<const QPoint> points, int margin) {
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
    const double ratio = surface.DevicePixelRatio();
    const int pen = PenWidth(lineWidth, ratio);
    switch (style) {
        case HandStyle::Line:
            DrawSimpleLine(surface, cx, cy, angle, length, colour, pen);
            break;
        case HandStyle::Frame:
            DrawFrame(surface, cx, cy, angle, length, colour, pen);
            break;
        case HandStyle::MetalSimple:
        case HandStyle::GoldSimple:
            Draw3DSimpleLine(surface, cx, cy, angle, length, TailRatio3D,
                             style == HandStyle::GoldSimple ? GoldTone : MetalTone,
                             lineWidth * ratio);
            break;
        case HandStyle::Metal:
            Draw3D(surface, cx, cy, angle, length, TailRatio3D, MetalTone, lineWidth);
            break;
        case HandStyle::Gold:
            Draw3D(surface, cx, cy, angle, length, TailRatio3D, GoldTone, lineWidth);
            break;
        case HandStyle::Solid:
            Draw3D(surface, cx, cy, angle, length, TailRatio3D, colour, lineWidth);
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
    const double ratio = surface.DevicePixelRatio();
    for (int i = 1; i <= rings; ++i) {
        const auto darker = [i](int component) { return std::max(component - 20 * i, 0); };
        const int ring = darker(parts.Red) | darker(parts.Green) << 8 | darker(parts.Blue) << 16;
        const int radius = mduAPILib::RoundToInteger(i * ratio);
        const int lastRadius = mduAPILib::RoundToInteger((i - 1) * ratio);
        DrawPixelCircle(surface, cx, cy, radius, radius - lastRadius, ring);
    }
}

QRect HandBounds(HandStyle style, int cx, int cy, double angle, int length, int lineWidth,
                 double devicePixelRatio) {
    if (length <= 0) {
        return {};
    }
    // For a pen: its half and the soft edge.
    const int margin = std::max(1, PenWidth(lineWidth, devicePixelRatio)) / 2 + 2;
    const auto withShadow = [devicePixelRatio](const QRect& hand) {
        return hand | hand.translated(ShadowOffset(devicePixelRatio));
    };
    switch (style) {
        case HandStyle::Unknown:
            return {};
        case HandStyle::Line:
            return Around(std::array{QPoint(cx, cy), PointAt(cx, cy, length, angle)}, margin);
        case HandStyle::Frame:
            return Around(FramePoints(cx, cy, angle, length), margin);
        case HandStyle::MetalSimple:
        case HandStyle::GoldSimple:
            return withShadow(
                BarBounds(cx, cy, angle, length, TailRatio3D, lineWidth * devicePixelRatio));
        default:
            return withShadow(KiteBounds(cx, cy, angle, length, TailRatio3D, lineWidth));
    }
}

}  // namespace drawing
