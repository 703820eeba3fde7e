#pragma once

#include <QStringList>

#include "foundation/ClockProperty.h"

/// The rows of the property window: how a record shows in the grid, and how a cell's text comes
/// back to its record. A record's number is its row in the array, from 1.
namespace editor {

/// Told where a value is cut off, since what stands behind a comma are its choices.
inline const QString CommaProblem = QStringLiteral("A value can't hold a comma");

/// What stands in the column "Value": the text before the first comma, or all of it.
QString PropertyCell(const QString& value);

/// What the editor offers: the pieces of a value behind its first comma.
///
///     ValueChoices("A,A,B")  // "A", "B"
QStringList ValueChoices(const QString& value);

/// Whether a value is picked from a list: it offers more than one choice. Any other is typed.
bool IsPicked(const QString& value);

/// Whether an array has a record of that number.
bool HasRecord(const ClockProperties& properties, int record);

/// What a commit has done.
struct RowCommit {
    QString Cell;        ///< what the cell shows from then on
    bool Dirty = false;  ///< the record's value has changed
    bool operator==(const RowCommit&) const = default;
};

/// Takes a cell's text over into its record, whose choices stay behind it. A line end or a tab in
/// the text becomes a blank. A cell that shows what the record holds changes nothing, and so does
/// an empty one of a record with choices, which gets its value back, unless the key holds "File".
/// Nothing happens where there is no such record.
RowCommit CommitRow(ClockProperties& properties, int record, const QString& cell);

}  // namespace editor
