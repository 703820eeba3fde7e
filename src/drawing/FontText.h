#pragma once

#include <QString>

#include "drawing/Surface.h"

namespace drawing {

/// A font by its exact parameters, as the device takes them.
struct LogFont {
    int Height = 0;      ///< of the character cell, in device pixels; 0 is the default height
    int Width = 0;       ///< average character width, in device pixels; 0 is the font's own
    int Escapement = 0;  ///< tenths of a degree, counter-clockwise
    int Weight = 400;    ///< above 1000: as heavy as there is
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    QString FaceName;
};

/// Prints a text whose character cell begins with its top left corner at (x, y) and is turned
/// around that point. The width is a real horizontal scale of the letters.
void DrawFontText(Surface& surface, const QString& text, double x, double y, const LogFont& font,
                  int colour);

}  // namespace drawing
