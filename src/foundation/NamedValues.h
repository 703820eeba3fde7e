#pragma once

#include <QString>
#include <QStringList>

#include "foundation/ClockProperty.h"

namespace platform {
class RandomNumbers;
}

/// The words of property values and what they mean.
namespace mduUILib {

inline constexpr int TransparentKey = 0xFFFFFF;      ///< the colour key of transparency
inline constexpr int TransparentWindow = 0x1000002;  ///< a window's colour while it is transparent

/// A colour number from a text: red in the low byte, then green, then blue. Names, "random", or any
/// number; all else is black. "white" is 0xFFFFFD, since 0xFFFFFF is the transparent key. Blanks
/// around the text and letter case don't count.
int ColourValue(const QString& text, platform::RandomNumbers& random);

/// A colour's text as it is compared: without the blanks around it, in lower case.
QString ColourWord(const QString& text);

QString ColourName(int colour);  ///< "Red", ... or the number in decimal

/// The eight colours that every menu of colours offers, by name.
const QStringList& MenuColours();

bool IsCustomColour(const QString& text);  ///< exactly "Custom"

bool YesNoToBool(const QString& text);  ///< "no" is false; all else, the empty text too, is true
/// "Yes" or "No".
QString BoolToYesNo(bool flag);

bool IsNoneValue(const QString& text);  ///< "0", "None" or empty

int WindowStateValue(const QString& text);  ///< 2 maximized, 1 minimized, else 0
/// "Normal" for any other number.
QString WindowStateName(int state);

QString ToolbarPositionName(int code, bool visible);
int ToolbarIconSize(const QString& text);  ///< 2 when the text holds "Large Size", else 1

bool IsPictureFile(const QString& name);  ///< ends in .jpg, .gif or .bmp, case ignored

QString FunctionKeyName(int code);  ///< 112 to 123 give "F1" to "F12"; else empty

}  // namespace mduUILib
