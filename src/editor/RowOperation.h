#pragma once

#include <optional>

#include "editor/EditGridData.h"

namespace editor {

/// What can be done with the current row and the row's own clipboard, `ClippedRow`.
enum class RowOp {
    EmptyClip = -2,  ///< there is nothing to paste then, and nothing is cut any more
    HasClip = -1,    ///< asks whether there is anything to paste
    Cut = 1,         ///< the row goes away once it is pasted; a heading is only copied
    Copy = 4,
    Paste = 5,  ///< see `RowOperation`
    Delete = 6  ///< an empty row comes in at the end
};

/// Does one operation. A paste behind a cut moves the row before the current one and numbers the
/// rows anew; the number of rows stays, and the row behind the end is an opened one. Any other
/// paste gives the texts to the selection and sets the current row's data to -1.
/// Nothing is pasted into a heading, and none is deleted.
///
///     RowOperation(grid, 1);      // cut row 1
///     grid.SetRow(3);
///     RowOperation(grid, 5);      // it stands before what was row 3
///
/// @return true for -2, whether there is a text for -1; nothing for all else
std::optional<bool> RowOperation(EditGridData& grid, int operation);

}  // namespace editor
