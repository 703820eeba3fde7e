#pragma once

#include <QString>
#include <vector>

#include "editor/EditGridData.h"
#include "editor/GridLook.h"

namespace editor {

/// One column of a format text: its heading and how texts stand in it.
struct FormatPiece {
    QString Caption;
    ColAlign Alignment = ColAlign::Left;
    bool operator==(const FormatPiece&) const = default;
};

/// The columns of a format text, which "|" parts; "<", "^" or ">" before a caption puts the
/// column's texts to the left, the middle or the right.
///
///     FormatOf("Name|>Value")  // "Name" at the left, "Value" at the right
///     FormatOf("")             // none
std::vector<FormatPiece> FormatOf(const QString& format);

/// Writes the captions of a look's format text into row 0 and takes its alignments over. A column
/// that the format does not tell stays; a caption that is empty leaves its heading.
void SetupColHeaders(EditGridData& grid, GridLook& look);

/// Moves a row, or a column with its look, to another place; those between move up or back. What is
/// fixed is refused. @return false when nothing has moved
bool SetRowPosition(EditGridData& grid, int row, int place);
bool SetColPosition(EditGridData& grid, GridLook& look, int col, int place);

}  // namespace editor
