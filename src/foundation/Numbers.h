#pragma once

#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

/// Conversions between text and number, each named once.
namespace mduAPILib {

/// The leading number of a text, else 0: blanks are skipped, "&H" begins a hexadecimal number,
/// "12abc" gives 12, "abc" gives 0. Never infinite, never not-a-number.
///
///     Val(u" 1 2.5e1 %"_s)  // 125: blanks count nowhere, the rest is not read
///     Val(u"&HFF"_s)        // 255; "&HFFFFFFFF" is -1, and a larger one 0
///     Val(u"1e999"_s)       // 0: too large for a number
///
/// The decimal sign is a point, whatever the machine's language; "d" begins an exponent as "e"
/// does.
double Val(const QString& text);

/// Whether the whole trimmed text is one number, in a form that `Val` reads; blanks within it are
/// not let through. False for an empty text.
bool IsNumeric(const QString& text);

/// Nearest integer, half to even: 2.5 gives 2, and 3.5 gives 4. Not-a-number gives 0; the ends of
/// the 32-bit range where the value lies beyond.
inline int RoundToInteger(double value) {
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    if (std::isnan(value)) {
        return 0;
    }
    // At this size a double holds no fraction, so that the sum is rounded by the processor, half to
    // even. Drawing rounds every pixel; a call of the library would be most of its cost.
    constexpr double noFraction = 6755399441055744.0;  // 1.5 * 2^52
    return static_cast<int>((std::clamp(value, least, most) + noFraction) - noFraction);
}

/// `RoundToInteger` of `Val`: how an integer property reads.
int IntegerValue(const QString& text);

/// The value, rounded half to even, as a 16-bit number; @p fallback where it does not fit.
std::int16_t ToInt16(double value, std::int16_t fallback = 0);

/// A single-precision number in text form: the shortest text that reads back as the same number,
/// without an exponent. "0" for what is infinite or not a number.
QString SingleText(float value);

/// The same in seven digits at most: 33.333332 gives "33.33333".
QString ShortSingleText(float value);

}  // namespace mduAPILib
