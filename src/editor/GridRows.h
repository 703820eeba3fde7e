#pragma once

#include <optional>

#include "editor/EditGridData.h"

/// Rows that come, go and move. What is out of range is refused: false, or nothing, and nothing has
/// changed.
namespace editor {

/// Whether a row has text in any column, blanks being none.
bool RowHasText(const EditGridData& grid, int row);

/// Empties every cell; the row's number becomes 0, and it is no longer struck through. A cut of the
/// row that waits for its paste is that of a copy from then on.
bool ClearRow(EditGridData& grid, int row);
/// `ClearRow` of all rows that are not fixed. The number of rows stays.
void GridClear(EditGridData& grid);
/// The same of all rows, the headings as well.
void Clear(EditGridData& grid);

/// Copies texts, data and strike-through to another row; the grid grows where that one lies past
/// its end. A number in column 0 arrives as the next one.
///
///     row 1: "7\tRed"; CopyRow(grid, 1, 2)  // row 2: "8\tRed"
bool CopyRow(EditGridData& grid, int from, int to);

/// Opens an empty line at the current row, which moves down with all below it, or else below the
/// current row. The grid grows when its last row is in use. Column 0 of the new line holds the
/// row's number.
/// @return the row of the new line; nothing in a heading
std::optional<int> InsertOneLine(EditGridData& grid, bool moveDown);
/// Opens a line below the current row and copies the row there. @return the row of the copy
std::optional<int> Duplicate(EditGridData& grid);

/// Adds a row with the texts that tabs part: before row @p place, or at the end.
bool AddItem(EditGridData& grid, const QString& text, std::optional<int> place = {});
/// Gives these texts to the first row that has none, and adds one where there is none.
bool AddRowDetail(EditGridData& grid, const QString& text);

/// Takes away the first row whose column 0 equals @p name, to the letter. Headings stay.
bool RemoveItemByName(EditGridData& grid, const QString& name);
/// Takes away the rows of the selection; as many empty ones come in at the end. Headings stay.
void DeleteGridRows(EditGridData& grid);

}  // namespace editor
