#pragma once

#include <QString>
#include <optional>

/// What becomes of a cell's text when its edit ends, and when it is spun.
namespace editor {

/// A number in the form of its text: two digits behind a point where the text has a point, else a
/// whole number. The trimmed text where it is no number, or one of more than 15 digits.
///
///     FormattedNumber(" 3.5 ")  // "3.50"
///     FormattedNumber("1e3")    // "1000"
///     FormattedNumber("abc")    // "abc"
QString FormattedNumber(const QString& text);

/// A number one higher or lower, in the form of `FormattedNumber`, or a date, with its time if it
/// has one, by so many days. @p step is 1 or -1; a date without a year is in @p presentYear.
/// Nothing for any other text, and at the ends of the calendar.
///
///     SpunText("1.50", 1, 2026)        // "2.50"
///     SpunText("28/02/2024", 1, 2026)  // "29/02/2024"
std::optional<QString> SpunText(const QString& text, int step, int presentYear);

}  // namespace editor
