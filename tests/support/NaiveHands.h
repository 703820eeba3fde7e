#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/Angles.h"
#include "drawing/PixelPrimitives.h"

/// The shaded hands drawn the plain way, line by line and pixel by pixel: what the drawing code has
/// to equal, and to outrun.
namespace naive {

inline int Rounded(double value) {
    return static_cast<int>(std::nearbyint(value));
}

inline int Rgb(int red, int green, int blue) {
    return std::min(red, 255) | std::min(green, 255) << 8 | std::min(blue, 255) << 16;
}

inline void FillTriangle(drawing::Surface& surface, int x1, int y1, int x2, int y2, int x3, int y3,
                         int colour) {
    const bool alongX = std::abs(x3 - x2) > std::abs(y3 - y2);
    const double from = alongX ? x3 : y3;
    const double to = alongX ? x2 : y2;
    const double step = to >= from ? 0.5 : -0.5;
    for (double at = from; step > 0 ? at <= to : at >= to; at += step) {
        double x = alongX ? at : x3;
        double y = alongX ? y3 : at;
        if (from != to && alongX) {
            y = (x - x3) * (y2 - y3) / (x2 - x3) + y3;
        } else if (from != to) {
            x = (y - y3) * (x2 - x3) / (y2 - y3) + x3;
        }
        drawing::DrawPixelLine(surface, x1, y1, x, y, 1, colour);
    }
}

inline void Draw3D(drawing::Surface& surface, int cx, int cy, double a, int length, int tone,
                   int width) {
    const double u = a / 2 + drawing::Pi / 3;
    const double c = std::abs(std::cos(u));
    const double s = std::abs(std::sin(u));
    const std::array<double, 4> metal = {120 * c + 195 * s, 120 * s + 190 * c, 110 * c + 180 * s,
                                         110 * s + 175 * c};
    const std::array<double, 4> gold = {180 * c + 240 * s, 170 * s + 230 * c, 160 * c + 220 * s,
                                        150 * s + 210 * c};
    const double side = length * static_cast<double>(static_cast<float>(width) / 100.0F);
    const std::array<double, 5> distances = {0, static_cast<double>(length),
                                             length * static_cast<double>(0.3F), side, side};
    const std::array<double, 5> directions = {0, a, a + drawing::Pi, a + drawing::Pi / 2,
                                              a + drawing::ThreePi / 2};
    std::array<int, 5> x{};
    std::array<int, 5> y{};
    for (std::size_t i = 1; i <= 4; ++i) {
        x[i] = Rounded(cx + distances[i] * std::sin(directions[i]));
        y[i] = Rounded(cy + distances[i] * std::cos(directions[i]));
    }
    const std::array<std::pair<std::size_t, std::size_t>, 4> triangles = {
        {{1, 3}, {1, 4}, {2, 3}, {2, 4}}};
    for (const auto& [p, q] : triangles) {
        naive::FillTriangle(surface, x[p] - 2, y[p] + 4, x[q] - 2, y[q] + 4, cx - 2, cy + 4,
                            0x646464);
    }
    for (std::size_t i = 0; i < 4; ++i) {
        const auto [p, q] = triangles[i];
        const int m = Rounded(metal[i]);
        const int g = Rounded(gold[i]);
        const int colour = tone == 1 ? Rgb(m + 1, m, m) : tone == 2 ? Rgb(g, g, 0) : tone;
        naive::FillTriangle(surface, x[p], y[p], x[q], y[q], cx, cy, colour);
    }
}

inline void Draw3DSimpleLine(drawing::Surface& surface, int cx, int cy, double a, int length,
                             int tone, int width) {
    const double u = a / 2 + drawing::Pi / 3;
    const double c = std::abs(std::cos(u));
    const double s = std::abs(std::sin(u));
    const int lit = Rounded(tone == 1 ? 150 * c + 195 * s : 180 * c + 240 * s);
    const int dark = Rounded(tone == 1 ? 130 * s + 275 * c : 170 * s + 230 * c);
    for (const bool shadow : {true, false}) {
        for (float t = static_cast<float>(-width); t <= static_cast<float>(width); t += 0.1F) {
            const double e = static_cast<double>(width) - static_cast<double>(std::abs(t)) + length;
            const double sx = t * std::sin(drawing::ThreePi / 2 + a) + cx;
            const double sy = t * std::cos(drawing::ThreePi / 2 + a) + cy;
            const double tail = e * static_cast<double>(0.3F);
            const auto x1 = static_cast<float>(sx + e * std::sin(a));
            const auto y1 = static_cast<float>(sy + e * std::cos(a));
            const auto x2 = static_cast<float>(sx + tail * std::sin(a + drawing::Pi));
            const auto y2 = static_cast<float>(sy + tail * std::cos(a + drawing::Pi));
            const int shade = t <= 0 ? lit : dark;
            const int moveX = shadow ? -2 : 0;
            const int moveY = shadow ? 4 : 0;
            drawing::DrawPixelLine(surface, static_cast<double>(x1) + moveX,
                                   static_cast<double>(y1) + moveY, static_cast<double>(x2) + moveX,
                                   static_cast<double>(y2) + moveY, 1,
                                   shadow ? 0x646464 : Rgb(shade, shade, tone == 1 ? shade : 0));
        }
    }
}

}  // namespace naive
