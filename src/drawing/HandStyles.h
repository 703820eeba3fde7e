#pragma once

#include <QString>
#include <QStringList>

#include "drawing/Surface.h"

/// The styles of hands. One row of the table in `HandStyles.cpp` tells all of a style: its name,
/// how it is drawn and which pixels it may touch; a new style is a name here and a row there.
namespace drawing {

/// How a hand is drawn, by its number.
enum class HandStyle {
    Unknown = 0,  ///< not drawn
    Line,
    Frame,
    MetalSimple,
    GoldSimple,
    Metal,
    Gold,
    Solid
};

/// The style of a property value such as "Line", "Frame" or "3D Metal"; blanks around it are
/// dropped, letter case counts, and any other text is `Unknown`.
HandStyle ReadHandStyle(const QString& text);

QStringList HandStyleNames();  ///< in the order of their numbers

/// Whether a style is drawn with a pen, whose width is one of pixels.
bool IsPen(HandStyle style);

/// Draws one hand from the centre; nothing unless the length is above 0 and the style is known.
/// @p lineWidth is the property's: the width of the pen for "Line" and "Frame" and half the width
/// of the "Simple" hands, both in logical pixels, and a percentage of the length for the others.
void DrawClockHand(Surface& surface, HandStyle style, int cx, int cy, double angle, int length,
                   int colour, int lineWidth);

/// A rectangle that holds every pixel of a hand with its shadow, closely for the shaded styles; the
/// width is that of `DrawClockHand`. Empty where nothing is drawn.
QRect HandBounds(HandStyle style, int cx, int cy, double angle, int length, int lineWidth,
                 double devicePixelRatio = 1);

}  // namespace drawing
