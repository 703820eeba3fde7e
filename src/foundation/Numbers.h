#pragma once

#include <QString>
#include <cstdint>

/// Conversions between text and number, each named once.
namespace mduAPILib {

/// The leading number of a text, else 0: blanks are skipped, "&H" begins a hexadecimal number,
/// "12abc" gives 12, "abc" gives 0. Never infinite, never not-a-number.
double Val(const QString& text);

/// Whether the whole trimmed text is one number.
bool IsNumeric(const QString& text);

/// Nearest integer, half to even; the ends of the 32-bit range where the value lies beyond.
int RoundToInteger(double value);

/// `RoundToInteger` of `Val`: how an integer property reads.
int IntegerValue(const QString& text);

/// The value as a 16-bit number; @p fallback where it does not fit.
std::int16_t ToInt16(double value, std::int16_t fallback = 0);

/// A single-precision number in text form: the shortest text that reads back as the same number.
QString SingleText(float value);

}  // namespace mduAPILib
