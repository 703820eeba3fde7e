#pragma once

#include "foundation/ClockProperty.h"
#include "platform/Files.h"

/// Reading and writing of property files: lines of `Category:Name=value,choice,choice`.
///
/// Files are read as UTF-8, with or without a mark, and where that fails as Windows-1252; a line
/// ends with CR LF or LF alone. They are written as UTF-8 with CR LF.
namespace mduLib {

/// Splits a file's bytes into lines, without their ends. No line is added behind the last line end.
QStringList FileLines(const QByteArray& content);

/// Reads a line into @p row: "Zone:Name=a=b" gives Category "Zone", Name "Name", Value "a=b". A
/// line without "=" becomes the Name with an empty Value; Category then stays what the row held,
/// as it does when the key has no ":".
void ParsePropertyLine(const QString& line, ClockProperty& row);

/// Fills @p array from a file, line n into row n, extending it as needed. It is not cleared first:
/// a caller that reuses an array resets it beforehand.
/// @return true when at least one line was read; false when the file is missing (the array is then
/// untouched), unreadable, empty, or has more lines than a 16-bit counter holds (the first 32,767
/// lines are then in the array).
bool ReadPropertyFile(const platform::Files& files, const QString& path, ClockProperties& array);

/// Whether a file may be written anew without losing what a reader does not take in: it is missing,
/// or it can be read, is a text (no NUL in it) and has no more lines than a 16-bit counter holds.
bool MayRewrite(const platform::Files& files, const QString& path);

/// The text that `WritePropertyFile` writes: rows with an empty Name are skipped, one leading "^"
/// of a Value is dropped.
QByteArray PropertyFileContent(const ClockProperties& array);

/// Replaces a file with the array's rows. @return false if it can't be written; the old file is
/// then whole.
bool WritePropertyFile(platform::Files& files, const ClockProperties& array, const QString& path);

/// `WritePropertyFile`, unless the file holds what a reader does not take in (`MayRewrite`).
bool RewritePropertyFile(platform::Files& files, const ClockProperties& array, const QString& path);

}  // namespace mduLib
