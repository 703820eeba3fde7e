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
///
///     ColourValue(u"Red"_s, random)          // 0x0000FF
///     ColourValue(u"&HFF8000"_s, random)     // blue 255, green 128, red 0
///     ColourValue(u"Transparent"_s, random)  // TransparentKey
///
/// @param random is asked for "random" only: three numbers, after a fresh seed
int ColourValue(const QString& text, platform::RandomNumbers& random);

/// A colour's text as it is compared: without the blanks around it, in lower case.
QString ColourWord(const QString& text);

/// "Red", ... or the number in decimal. "White" is also the name of the transparent key.
QString ColourName(int colour);

/// The eight colours that every menu of colours offers, by name.
const QStringList& MenuColours();

bool IsCustomColour(const QString& text);  ///< exactly "Custom"

bool YesNoToBool(const QString& text);  ///< "no" is false; all else, the empty text too, is true
/// "Yes" or "No".
QString BoolToYesNo(bool flag);

bool IsNoneValue(const QString& text);  ///< "0", "None" or empty

/// 2 for "Maximized", 1 for "Minimized", letter case aside; 0 for any other text, also one with
/// blanks around it.
int WindowStateValue(const QString& text);
/// "Normal" for any other number.
QString WindowStateName(int state);

/// "Top", "Bottom", "Left" and "Right" for 1 to 4, "None" for any other code; ":Hide" is added for
/// a toolbar that is hidden, as in "Top:Hide".
QString ToolbarPositionName(int code, bool visible);
int ToolbarIconSize(const QString& text);  ///< 2 when the text holds "Large Size", else 1

bool IsPictureFile(const QString& name);  ///< ends in .jpg, .gif or .bmp, case ignored

QString FunctionKeyName(int code);  ///< 112 to 123 give "F1" to "F12"; else empty

}  // namespace mduUILib
