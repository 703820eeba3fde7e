#pragma once

#include <functional>

#include "editor/EditGridData.h"

namespace editor {

/// Sorts whole rows by the columns of the selection, from left to right. A selection of several
/// rows sorts these, any other all that are not headings. Equal rows keep their order, rows without
/// any text stay behind the others, and the current cell keeps its place.
///
/// | code | order |
/// |---|---|
/// | 0 | as it is |
/// | 1, 2 | by number where both are numbers, else by text, letter case aside; up, down |
/// | 3, 4 | by the number that the text begins with, 0 if there is none; up, down |
/// | 5, 6 | by text, letter case aside; up, down |
/// | 7, 8 | by the codes of the characters; up, down |
///
/// @return false for any other code
bool Sort(EditGridData& grid, int code);

/// The same rows by another order, which may run in a circle.
/// @param compare tells of two rows, as they stand, below 0, 0 or above 0
void SortBy(EditGridData& grid, const std::function<int(int row1, int row2)>& compare);

}  // namespace editor
