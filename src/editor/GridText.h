#pragma once

#include <optional>

#include "editor/EditGridData.h"

/// Rows and whole grids as text.
namespace editor {

/// The data rows from row 1 on as clip text, each with the trimmed delimiter behind it; without
/// one, with CR LF. The first row whose column 1 is empty is the last (column 0, where there is no
/// other). Its last row becomes the current one, selected whole, and columns are selected from then
/// on.
///
///     Grid2Str(grid, ";")  // "1\tRed;2\tBlue;3\t;"
QString Grid2Str(EditGridData& grid, const QString& delimiter);

/// Fills the selection from its top left: tabs part columns, carriage returns rows. What does not
/// fit is dropped.
void Str2Gird(EditGridData& grid, const QString& text);

/// The clip text of the current row, which is selected whole.
QString CurrentRowStr(EditGridData& grid);

/// The cells of a row, joined with "," and not escaped; a @p stopCol above 0 is the first column
/// that is left out. Nothing for a row that isn't there.
std::optional<QString> RowToStr(const EditGridData& grid, int row, int stopCol = 0);

/// Element c of a text that commas part goes to column c. Element 0 is not taken: column 0 holds
/// the line's number. @return false where there are fewer elements than columns, which keeps what
/// has been written, and where there is no such row
bool StrToRow(EditGridData& grid, const QString& text, int row);

}  // namespace editor
