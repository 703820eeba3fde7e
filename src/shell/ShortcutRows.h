#pragma once

#include "editor/EditGridData.h"
#include "foundation/ClockProperty.h"

/// The grid of the shortcut window: a heading, then one row for each command, with the command in
/// column 0, the text of its key in column 1, and the number of its record as the row's data.
namespace shell {

/// What a cell shows instead of a key. Both are stored like any text and match no key.
inline const QString UsedKey = QStringLiteral("Used");        ///< another command has it
inline const QString InvalidKey = QStringLiteral("Invalid");  ///< nothing can be put on it

/// Shows the list. Records without a name have no row; of a value only what stands before its
/// first comma is shown. The current row stays where it is, as far as there is one.
void FillShortcutGrid(const ClockProperties& shortcuts, editor::EditGridData& grid);

/// The first row whose key has this text, to the letter; 0 for none. It looks no further than the
/// first row without a command.
int FindKeyRow(const editor::EditGridData& grid, const QString& keyText);

/// Whether a key is kept for something that no command may take: none is at present.
bool IsReservedKey(const QString& keyText);

/// What a key that is pressed puts into column 1 of a row: its text, or `UsedKey`, or `InvalidKey`
/// for a character alone, for F1 alone and for a key that its own text would not bring back, such
/// as Ctrl with a comma. Empty for a code that is no key of the list: only 32 to 126 are.
///
///     RecordedKey(grid, 4, 'K', KeyShift::Ctrl)  // "Ctrl+K", or "Used" if row 7 has it
///     RecordedKey(grid, 4, 'K', 0)               // "Invalid"
QString RecordedKey(const editor::EditGridData& grid, int row, int code, int shift);

}  // namespace shell
