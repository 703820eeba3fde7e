#pragma once

#include <QStringList>

namespace drawing {

/// Where a clock shows the flag of its zone.
enum class FlagPosition { TopRight, TopLeft, BottomRight, BottomLeft, Icon };

/// What a "Flag Position" says: its words are sought anywhere in the text, letter case aside, and
/// "Icon" first. A text without "Bottom" means the top, one without "left" the right: an empty or
/// unknown text is `TopRight`.
FlagPosition ReadFlagPosition(const QString& text);

/// The words of one of them, as they are stored.
QString FlagPositionName(FlagPosition position);

QStringList FlagPositionNames();  ///< in the order of a menu of them

}  // namespace drawing
