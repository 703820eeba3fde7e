#pragma once

#include <QString>

#include "drawing/Surface.h"

/// The hands and the hub. Angles are as in `Angles.h`, lengths in device pixels.
namespace drawing {

/// How a hand is drawn, by its number.
enum class HandStyle {
    Unknown = 0,  ///< not drawn
    Line = 1,
    Frame = 2,
    MetalSimple = 3,
    GoldSimple = 4,
    Metal = 5,
    Gold = 6,
    Solid = 7
};

/// The style of a property value such as "Line", "Frame" or "3D Metal"; blanks around it are
/// dropped.
HandStyle ReadHandStyle(const QString& text);

/// Draws one hand from the centre; nothing unless the length is above 0 and the style is known.
/// @p lineWidth is the property's: the width of the pen for "Line" and "Frame" and half the width
/// of the "Simple" hands, both in logical pixels, and a percentage of the length for the others.
void DrawClockHand(Surface& surface, HandStyle style, int cx, int cy, double angle, int length,
                   int colour, int lineWidth);

/// One straight line from the centre to the tip, without a tail. Here and in `DrawFrame` the pen's
/// width is in device pixels.
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

/// A rectangle that holds every pixel of a hand with its shadow, closely for the shaded styles; the
/// width is that of `DrawClockHand`.
QRect HandBounds(HandStyle style, int cx, int cy, double angle, int length, int lineWidth,
                 double devicePixelRatio = 1);

}  // namespace drawing
