#pragma once

#include "foundation/ClockProperty.h"
#include "platform/Files.h"

/// Finding and storing values in a property array.
///
/// A row matches when its trimmed Name equals the name asked for, letter case aside, and when the
/// category asked for is empty or equals the trimmed Category, letter case aside. The name asked
/// for is not trimmed. Rows are searched from 1 upward; the first match wins.
namespace mduLib {

/// The number of the first matching row; 0 if there is none.
int FindPropertyRow(const QString& name, const ClockProperties& array,
                    const QString& category = {});

/// The raw Value of the first row of that name; empty if there is none.
QString GetPropertyRaw(const QString& name, const ClockProperties& array);
QString GetPropertyRawIn(const QString& name, const ClockProperties& array,
                         const QString& category);

/// The current value: the raw Value up to its first comma. A key that is missing reads "0".
QString GetProperty(const QString& name, const ClockProperties& array,
                    const QString& category = {});

/// The choices: the text behind the first comma; the whole raw value if it holds no comma.
QString GetPropertyChoices(const QString& name, const ClockProperties& array);

/// Stores a trimmed current value and keeps the row's choices. A row whose value begins with a
/// comma loses them. A new key goes behind a gap row: the array grows by two.
void PutProperty(const QString& name, const QString& value, ClockProperties& array,
                 const QString& category = {});

/// Replaces the whole Value, trimmed; a category that is given replaces the row's.
void PutPropertyRaw(const QString& name, const QString& rawValue, ClockProperties& array,
                    const QString& category = {});

/// Writes value + "," + the existing choices with `PutPropertyRaw`.
void PutPropertyKeepChoices(const QString& name, const QString& value, ClockProperties& array,
                            const QString& category = {});

/// Replaces a row's whole Value, untrimmed and without regard to commas, then writes the file.
/// @return what `WritePropertyFile` answers.
bool SavePropertyNow(platform::Files& files, const QString& name, const QString& value,
                     ClockProperties& array, const QString& path);

/// Adds a row at the end; a last row with an empty Name is reused.
void AppendProperty(const QString& category, const QString& name, const QString& value,
                    ClockProperties& array);

/// The row numbers in display order. @p column 1 Category, 2 Name, 3 Value; @p direction 1
/// ascending, 2 descending, any other file order. Rows with an empty Name are left out; comparison
/// is by character code; equal rows stay in file order.
std::vector<int> SortPropertyRows(const ClockProperties& array, int column, int direction);

}  // namespace mduLib
