#pragma once

#include "drawing/Surface.h"

/// The two shapes that all owner-drawn parts share, made of single pixels.
namespace drawing {

/// A stepping line without anti-aliasing, one pixel wide. The axis of the larger extent drives (x
/// when they are equal), from the first end by steps of 1 while it has not passed the other end;
/// with fractional ends the last pixel may lie short of it. Coordinates round half to even.
void DrawPixelLine(Surface& surface, double x1, double y1, double x2, double y2, int width,
                   int colour);

/// Rings of 361 pixels, one for each degree, at @p radius, @p radius - 1, ... @p radius -
/// @p thickness: a thickness of 1 gives two rings. A turn is 6.28, a hair less than two pi.
void DrawPixelCircle(Surface& surface, int x, int y, int radius, int thickness, int colour);

}  // namespace drawing
