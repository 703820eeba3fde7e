#pragma once

#include <QFont>
#include <QSizeF>

#include "foundation/Controls.h"

class QPainter;

/// Labels: a control's `Font` holds the family and the size in points; on a surface a point is
/// 96/72 logical pixels, whatever the screen says of its own resolution.
namespace drawing {

/// The control's font in whole device pixels, from 1 to `LargestFontExtent`; a family that is not
/// installed is replaced as `InstalledFamily` tells.
QFont PixelFont(const QFont& font, double devicePixelRatio);

/// The size of a line of text in that font, in device pixels: the advance of its characters, and
/// the height of a line. Both rounded up.
QSizeF TextSize(const QFont& font, const QString& text, double devicePixelRatio);

/// Gives a label the size of its caption.
void AutoSize(mduUILib::Control& label, double devicePixelRatio);

/// Paints a label's caption, centred in its rectangle, in its colour. An invisible or empty label
/// paints nothing, nor does one whose font is larger than `LargestFontExtent`.
void PaintLabel(QPainter& painter, const mduUILib::Control& label, double devicePixelRatio);

/// Paints an image control: its picture stretched over its rectangle.
void PaintImage(QPainter& painter, const mduUILib::Control& image);

}  // namespace drawing
