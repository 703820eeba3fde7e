#pragma once

#include <array>
#include <span>

#include "drawing/Surface.h"

/// Shaded hands. Each is built of single pixels, with a shade computed from the hand's own angle,
/// so that it seems to catch the light as it turns, and first throws a grey shadow down and to the
/// left. Angles are as in `Angles.h`; the light angle is a / 2 + pi / 3.
namespace drawing {

inline constexpr int MetalTone = 1;
inline constexpr int GoldTone = 2;

/// A bar of parallel one-pixel lines with a pointed end, @p width pixels to each side of its axis:
/// at 0 a single line, below 0 nothing. One side is lit, the other darker. @p tone is `MetalTone`
/// or `GoldTone`.
void Draw3DSimpleLine(Surface& surface, int cx, int cy, double angle, int length, float tailRatio,
                      int tone, double width);

/// A kite of four triangles: tip at the length, tail at @p tailRatio of it, sides at @p width
/// percent of it. @p toneOrColour of 1 or 2 is a tone; any other value is the colour itself.
void Draw3D(Surface& surface, int cx, int cy, double angle, int length, float tailRatio,
            int toneOrColour, int width);

/// The kite between its four points (tip, tail, side, other side) and the centre.
void Draw3DHand(Surface& surface, std::span<const QPoint, 4> points, int cx, int cy, double angle,
                int toneOrColour);

/// A fan of pixel lines from the first point to the edge between the other two, walked from point 3
/// to point 2 by half pixels.
void FillTriangle(Surface& surface, int x1, int y1, int x2, int y2, int x3, int y3, int colour);

/// The points of a kite: tip, tail, side, other side.
std::array<QPoint, 4> KitePoints(int cx, int cy, double angle, int length, float tailRatio,
                                 int width);

/// Rectangles that hold a bar's and a kite's pixels, without the shadow.
QRect BarBounds(int cx, int cy, double angle, int length, float tailRatio, double width);
QRect KiteBounds(int cx, int cy, double angle, int length, float tailRatio, int width);

/// By how much a shadow is moved: (-2, 4) at a ratio of 1, whatever the size of the clock.
QPoint ShadowOffset(double devicePixelRatio);

}  // namespace drawing
