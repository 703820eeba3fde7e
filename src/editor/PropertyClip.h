#pragma once

#include <QString>
#include <vector>

#include "foundation/ClockProperty.h"

/// Cutting, copying and pasting of records as text: to another window of properties, and to and
/// from a text editor.
namespace editor {

/// The records as lines of key, tab and value. A value that holds tabs keeps them.
///
///     "Hour Hand Colour\tRed\nHour Hand Style\t3D"
QString ClipText(const ClockProperties& properties, const std::vector<int>& records);

/// A value that a paste puts into a record.
struct PastedValue {
    int Record = 0;
    QString Cell;
    bool operator==(const PastedValue&) const = default;
};

/// What a text puts where. Lines that begin with a key of the file and a tab go to their keys; the
/// second line of a key goes to its second record, and a line alone to the current record where
/// that is of its key. Any other text as a whole is one value, which goes to the current record.
///
///     PastedValues("Red", properties, 7)                 // {7, "Red"}
///     PastedValues("Hour Hand Colour\tRed", ..., 7)      // to its own record
///     PastedValues("A\t1\nB\t2\nno key\t3", ..., 7)      // "1" to A, "2" to B
///
/// @param current the current record; 0 where there is none, to which nothing goes
std::vector<PastedValue> PastedValues(const QString& text, const ClockProperties& properties,
                                      int current);

/// How many lines of such a text go nowhere: those without a key of the file, where another line
/// has one, and those of a key that comes more often than the file has it.
int LinesWithoutRecord(const QString& text, const ClockProperties& properties);

}  // namespace editor
