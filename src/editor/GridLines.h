#pragma once

#include "editor/EditGridData.h"

/// What the lines of a grid show and tell: their numbers, strike-through, gaps, sums, selections.
/// What is out of range is refused: false, and nothing has changed.
namespace editor {

/// Numbers the rows in column 0, from 1, up to the first that has no text.
void RefreshItemNumber(EditGridData& grid);
bool SetLineNumber(EditGridData& grid, int row, const QString& text);
/// The same in the row of the last edit; refused when there is none.
bool SetLastLineNumber(EditGridData& grid, const QString& text);
/// What stands there; empty when there is none.
QString LastLineNumber(const EditGridData& grid);

/// Strikes the current row through, or not, and selects it whole.
bool SetRowStrikeThrough(EditGridData& grid, bool state);
bool ToggleRowStrikeThrough(EditGridData& grid);
bool IsRowStrikeThrough(const EditGridData& grid);

/// Closes the gaps of the current column below the headings, unless rows are selected as a block:
/// where its cell is empty but for blanks, the next row below that has text there moves up, with
/// all its columns, and leaves an empty row. What stood in the other columns of a gap is gone, so a
/// grid whose gaps mean something does not ask for this.
void CompactColumn(EditGridData& grid);

/// The text at the moving end of the selection.
QString GetHightLightValue(const EditGridData& grid);
/// The sum of a column's cells that are numbers, from row 1 on; 0 for a column that isn't there.
double ColTotal(const EditGridData& grid, int col);

/// Selects one row whole, all that is not fixed, or the current cell alone.
bool SelectOneRow(EditGridData& grid, int row);
void SelectGridAll(EditGridData& grid);
void SelectGridNone(EditGridData& grid);

/// Colours the texts of a whole row, or of the selection with headings aside, red in the low byte.
/// `SetCellDefault` gives the selection the grid's own colour back.
bool SetRowForeColor(EditGridData& grid, int row, int color);
void SetSelectionForeColor(EditGridData& grid, int color);
void SetCellDefault(EditGridData& grid);

}  // namespace editor
