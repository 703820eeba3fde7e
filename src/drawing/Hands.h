#pragma once

#include <QRect>

#include "drawing/Surface.h"

/// The plain hands and the hub. Angles are as in `Angles.h`, lengths and the pen's width are in
/// device pixels.
namespace drawing {

/// One straight line from the centre to the tip, without a tail.
void DrawSimpleLine(Surface& surface, int cx, int cy, double angle, int length, int colour,
                    int lineWidth);

/// The outline of a thin kite: tip at the length, tail at 0.3 of it, sides at 0.02 of it.
void DrawFrame(Surface& surface, int cx, int cy, double angle, int length, int colour,
               int lineWidth);

/// The hub: a fading disc of pixel rings, one for each 1600 twips of the window's outer height, 20
/// at most; each ring is darker by 20 than the last. A ring is one logical pixel wide.
void DrawCentrePoint(Surface& surface, int cx, int cy, int colour);

/// The number of those rings.
int CentrePointRings(int windowHeightInTwips);

/// A coordinate or length as drawing uses it: rounded half to even, within 16 bits.
int ToPoint(double value);

/// Rectangles that hold every pixel of a line and of a frame.
QRect LineBounds(int cx, int cy, double angle, int length, int lineWidth);
QRect FrameBounds(int cx, int cy, double angle, int length, int lineWidth);

}  // namespace drawing
