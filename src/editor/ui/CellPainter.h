#pragma once

#include <QFont>
#include <QRect>
#include <QStyleOptionViewItem>

#include "editor/ui/CellLook.h"

class QPainter;

/// Where the parts of a cell lie; a part that the cell lacks is empty. In a right-to-left layout
/// they lie mirrored.
struct CellParts {
    QRect Check, Swatch, Picture, Text, Button;
};

/// The parts of a cell by its look. @param isCurrent the current cell shows its button
CellParts PartsOf(const QRect& cell, const CellLook& look, bool isCurrent,
                  const QStyleOptionViewItem& option);

/// The font of a cell's text.
QFont FontOf(const QFont& own, const CellLook& look, bool isStruckThrough);

/// Paints a cell's decorations and its text; the ground has been painted. The colours are those of
/// the option's palette: `Text`, or `HighlightedText` where the option is selected.
void PaintCell(QPainter& painter, const QStyleOptionViewItem& option, const CellParts& parts,
               const CellLook& look);

/// The width that a cell's text and decorations take, in pixels.
int WidthOf(const QString& text, const CellLook& look, const QStyleOptionViewItem& option);
