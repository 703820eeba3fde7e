#pragma once

#include <QRectF>

#include "editor/GridColumns.h"

/// Where an editor lies over its cell. All measures are in twips, 15 to a pixel.
namespace editor {

/// The lowest line, and the fixed height of a list.
inline constexpr double LeastEditorHeight = 285;
inline constexpr double ListHeight = 240;
/// The spin buttons at the right end of a cell.
inline constexpr double SpinWidth = 255;

/// A line begins 10 twips within the cell, on the left and at the top, and is as high as the cell
/// and 10 twips narrower. A list begins 10 twips before the cell and is as wide.
///
///     PlaceCellEditor(EditorKind::Text, {100, 50, 1000, 300})   // 110, 60, 990 x 300
///     PlaceCellEditor(EditorKind::Combo, {100, 50, 1000, 300})  // 90, 50, 1000 x 240
QRectF PlaceCellEditor(EditorKind kind, const QRectF& cell);

/// The chooser takes the place of a heading, but is not lower than 285 twips.
QRectF PlaceColChooser(const QRectF& heading);

}  // namespace editor
