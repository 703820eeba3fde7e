#pragma once

#include <QString>

#include "foundation/ClockProperty.h"

/// Small text and number helpers that all parts share.
namespace mduLib {

QString FirstListField(const QString& text);  ///< up to the first comma
/// The same of the Value of a row.
QString RowFirstField(int row, const ClockProperties& array);

/// @p value, but not below @p limit.
double AtLeast(double value, double limit);
/// @p value, but not above @p limit.
double AtMost(double value, double limit);

double Fraction(const QString& value);  ///< value minus its integer part; 0 if not numeric

/// The first occurrence only; letter case counts, and an empty @p find changes nothing.
QString ReplaceFirst(const QString& text, const QString& find, const QString& replacement);
/// Each CR LF becomes a blank.
QString LineBreaksToSpaces(const QString& text);

/// Breaks a text that is longer than @p width: in each piece of @p width characters the last blank
/// becomes CR LF; a piece without a blank ends the wrapping.
QString WrapText(const QString& text, int width);

QString CutAtNul(const QString& text);  ///< up to the first NUL; empty when there is none

struct ColourParts {
    int Red = 0, Green = 0, Blue = 0;
    bool operator==(const ColourParts&) const = default;
};
/// Red is the low byte.
ColourParts SplitColour(int colour);

QString SystemFontList();  ///< the names of the screen's fonts, joined by ","
/// The number in decimal, without any grouping.
QString IntegerText(int value);

}  // namespace mduLib
