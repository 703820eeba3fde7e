#pragma once

#include <QString>

#include "drawing/Surface.h"

namespace drawing {

/// A font by its exact parameters, as the device takes them.
struct LogFont {
    int Height = 0;      ///< of the character cell, in device pixels; 0 is the default height
    int Width = 0;       ///< average character width, in device pixels; 0 is the font's own
    int Escapement = 0;  ///< tenths of a degree, counter-clockwise
    int Weight = 400;    ///< 0 is the normal one; above 1000: as heavy as there is
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    QString FaceName;
    bool operator==(const LogFont&) const = default;
};

/// The cell height of a font whose height is 0, in logical pixels.
inline constexpr int DefaultFontHeight = 16;
/// A font with a greater height or width than this, in device pixels, prints nothing.
inline constexpr int LargestFontExtent = 4000;

/// The family to ask the system for: the name itself where it is installed, else the family of the
/// same letter widths that stands in for it ("Times New Roman" is "Liberation Serif"); an unknown
/// name is left to the system.
QString InstalledFamily(const QString& name);

/// Prints a text whose character cell begins with its top left corner at (x, y) and is turned
/// around that point. The cell is as high as the font's ascent and descent together; the average
/// width is the mean of the small letters and the blank, by their frequency in English text. The
/// width is a real horizontal scale of the letters: at half the font's own width an "I" is half as
/// thick.
///
/// Example: at (100, 50) with an escapement of 900 the text runs upward from there, the tops of
/// its letters to the left, its cells covering the pixels right of x = 100.
void DrawFontText(Surface& surface, const QString& text, double x, double y, const LogFont& font,
                  int colour);

}  // namespace drawing
