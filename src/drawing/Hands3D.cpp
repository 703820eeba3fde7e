#include "drawing/Hands3D.h"

#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/Angles.h"
#include "drawing/FanFill.h"
#include "drawing/Hands.h"
#include "drawing/LineBundle.h"
#include "foundation/Numbers.h"

namespace drawing {

using mduAPILib::RoundToInteger;

namespace {

constexpr int ShadowColour = 100 | 100 << 8 | 100 << 16;

/// How much of |cos u| and of |sin u| makes up a shade.
struct Light {
    double OfCosine, OfSine;
};

/// The shades of a tone: the lit and the dark side of a bar, and the four triangles of a kite.
struct ToneLights {
    std::array<Light, 2> Bar;
    std::array<Light, 4> Kite;
};

constexpr ToneLights Metal = {{{{150, 195}, {275, 130}}},
                              {{{120, 195}, {190, 120}, {110, 180}, {175, 110}}}};
constexpr ToneLights Gold = {{{{180, 240}, {230, 170}}},
                             {{{180, 240}, {230, 170}, {160, 220}, {210, 150}}}};

int Colour(int red, int green, int blue) {
    const auto component = [](int value) { return std::clamp(value, 0, 255); };
    return component(red) | component(green) << 8 | component(blue) << 16;
}

int Shade(const Light& light, double angle) {
    const double u = angle / 2 + Pi / 3;
    return RoundToInteger(light.OfCosine * std::abs(std::cos(u)) +
                          light.OfSine * std::abs(std::sin(u)));
}

int BarColour(int tone, std::size_t side, double angle) {
    const int s = Shade((tone == GoldTone ? Gold : Metal).Bar[side], angle);
    return Colour(s, s, tone == GoldTone ? 0 : s);
}

int KiteColour(int toneOrColour, std::size_t triangle, double angle) {
    if (toneOrColour == MetalTone) {
        const int s = Shade(Metal.Kite[triangle], angle);
        return Colour(s + 1, s, s);
    }
    if (toneOrColour == GoldTone) {
        const int s = Shade(Gold.Kite[triangle], angle);
        return Colour(s, s, 0);
    }
    return toneOrColour;
}

/// The lines of a bar, by their distance t from its axis.
class Bar {
public:
    Bar(int cx, int cy, double angle, int length, float tailRatio, double width)
        : cx_(cx),
          cy_(cy),
          length_(length),
          tailRatio_(tailRatio),
          width_(static_cast<float>(std::min(width, MostWidth))),
          acrossX_(std::sin(ThreePi / 2 + angle)),
          acrossY_(std::cos(ThreePi / 2 + angle)),
          tipX_(std::sin(angle)),
          tipY_(std::cos(angle)),
          tailX_(std::sin(angle + Pi)),
          tailY_(std::cos(angle + Pi)) {}

    /// What lies between the ends of the middle line and of the two outer ones.
    QRect Bounds() const {
        QPolygonF ends;
        for (const float t : {-width_, 0.0F, width_}) {
            const auto [x1, y1, x2, y2] = LineAt(t);
            ends << QPointF(x1, y1) << QPointF(x2, y2);
        }
        const QRectF around = ends.boundingRect();
        const double noise = Noise();
        const auto low = [noise](double value) { return RoundToInteger(value - noise); };
        const auto high = [noise](double value) { return RoundToInteger(value + noise); };
        return {QPoint(low(around.left()), low(around.top())),
                QPoint(high(around.right()), high(around.bottom()))};
    }

    /// Draws the lines of both sides, each side in its colour.
    void Draw(Surface& surface, const QPoint& offset, int litColour, int darkColour) const {
        float t = -width_;
        t = DrawSide(surface, offset, litColour, t, std::min(width_, 0.0F));
        DrawSide(surface, offset, darkColour, t, width_);
    }

private:
    static constexpr double MostWidth = 32767;  // beyond it a step of 0.1 might get lost

    /// Draws from @p t on while it has not passed @p end; returns the next.
    float DrawSide(Surface& surface, const QPoint& offset, int colour, float t, float end) const {
        const auto [least, most] = VisiblePart(surface.Clip().translated(-offset));
        LineBundle bundle(surface, colour, Noise());
        while (t <= end) {
            if (t >= least && t <= most) {
                const auto [x1, y1, x2, y2] = LineAt(t);
                bundle.Add(x1 + offset.x(), y1 + offset.y(), x2 + offset.x(), y2 + offset.y());
            }
            t += 0.1F;
        }
        return t;
    }

    /// The distances from the axis at which lines may touch a rectangle.
    std::pair<double, double> VisiblePart(const QRect& rect) const {
        const auto distance = [this](int x, int y) {
            return (x - cx_) * acrossX_ + (y - cy_) * acrossY_;
        };
        const auto [least, most] = std::minmax(
            {distance(rect.left(), rect.top()), distance(rect.right(), rect.top()),
             distance(rect.left(), rect.bottom()), distance(rect.right(), rect.bottom())});
        constexpr double roundedAway = 2;
        return {least - roundedAway, most + roundedAway};
    }

    struct Ends {
        double X1, Y1, X2, Y2;
    };

    Ends LineAt(float t) const {
        const double e = static_cast<double>(width_) - std::abs(t) + length_;
        return {Single(t * acrossX_ + cx_ + e * tipX_), Single(t * acrossY_ + cy_ + e * tipY_),
                Single(t * acrossX_ + cx_ + e * tailRatio_ * tailX_),
                Single(t * acrossY_ + cy_ + e * tailRatio_ * tailY_)};
    }

    static double Single(double value) { return static_cast<double>(static_cast<float>(value)); }

    /// The ends are off by half a last digit in single precision, and where a line crosses a row
    /// by a few times that.
    double Noise() const {
        const double farthest = std::abs(cx_) + std::abs(cy_) + 2.0 * width_ + length_ + 1;
        return farthest * 0x1p-21;
    }

    double cx_, cy_, length_, tailRatio_;
    float width_;
    double acrossX_, acrossY_, tipX_, tipY_, tailX_, tailY_;
};

}  // namespace

QPoint ShadowOffset(double devicePixelRatio) {
    return {RoundToInteger(-2 * devicePixelRatio), RoundToInteger(4 * devicePixelRatio)};
}

std::array<QPoint, 4> KitePoints(int cx, int cy, double angle, int length, float tailRatio,
                                 int width) {
    const double sideRatio = static_cast<float>(width) / 100.0F;
    const auto pointAt = [&](double distance, double direction) {
        return QPoint(ToPoint(cx + distance * std::sin(direction)),
                      ToPoint(cy + distance * std::cos(direction)));
    };
    return {pointAt(length, angle), pointAt(length * static_cast<double>(tailRatio), angle + Pi),
            pointAt(length * sideRatio, angle + Pi / 2),
            pointAt(length * sideRatio, angle + ThreePi / 2)};
}

QRect BarBounds(int cx, int cy, double angle, int length, float tailRatio, double width) {
    return width < 0 ? QRect() : Bar(cx, cy, angle, length, tailRatio, width).Bounds();
}

QRect KiteBounds(int cx, int cy, double angle, int length, float tailRatio, int width) {
    QRect bounds(cx, cy, 1, 1);
    for (const QPoint& point : KitePoints(cx, cy, angle, length, tailRatio, width)) {
        bounds |= QRect(point, QSize(1, 1));
    }
    return bounds;
}

void Draw3DSimpleLine(Surface& surface, int cx, int cy, double angle, int length, float tailRatio,
                      int tone, double width) {
    const Bar bar(cx, cy, angle, length, tailRatio, width);
    const QPoint shadow = ShadowOffset(surface.DevicePixelRatio());
    bar.Draw(surface, shadow, ShadowColour, ShadowColour);
    bar.Draw(surface, {0, 0}, BarColour(tone, 0, angle), BarColour(tone, 1, angle));
}

void Draw3D(Surface& surface, int cx, int cy, double angle, int length, float tailRatio,
            int toneOrColour, int width) {
    const std::array<QPoint, 4> points = KitePoints(cx, cy, angle, length, tailRatio, width);
    Draw3DHand(surface, points, cx, cy, angle, toneOrColour);
}

void Draw3DHand(Surface& surface, std::span<const QPoint, 4> points, int cx, int cy, double angle,
                int toneOrColour) {
    const QPoint centre(cx, cy);
    const auto fill = [&](std::size_t triangle, const QPoint& offset, int colour) {
        const QPoint end = points[triangle / 2] + offset;       // the tip twice, then the tail
        const QPoint side = points[2 + triangle % 2] + offset;  // one side, the other side
        const QPoint middle = centre + offset;
        FillTriangle(surface, end.x(), end.y(), side.x(), side.y(), middle.x(), middle.y(), colour);
    };
    const QPoint shadow = ShadowOffset(surface.DevicePixelRatio());
    for (std::size_t triangle = 0; triangle < 4; ++triangle) {
        fill(triangle, shadow, ShadowColour);
    }
    for (std::size_t triangle = 0; triangle < 4; ++triangle) {
        fill(triangle, {0, 0}, KiteColour(toneOrColour, triangle, angle));
    }
}

void FillTriangle(Surface& surface, int x1, int y1, int x2, int y2, int x3, int y3, int colour) {
    FillFan(surface, {x1, y1}, {x3, y3}, {x2, y2}, colour);
}

}  // namespace drawing
