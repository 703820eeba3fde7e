#pragma once

#include <QStringList>

namespace platform {
class RandomNumbers;
}

/// The captions of menus that offer the values of something, and which of them is ticked.
namespace mduUILib {

/// Whether the entry of that caption is ticked while @p value is in force: where both are the same
/// but for blanks around them, letter case told. A separator ("-") never is.
///
///     CheckMenuItem(u" Blue"_s, u"Blue "_s)  // true
///     CheckMenuItem(u"blue"_s, u"Blue"_s)    // false
bool CheckMenuItem(const QString& caption, const QString& value);

/// The captions of a menu that a comma list fills: its parts in their order, without the blanks
/// around them. Empty parts give no entry, and an empty list gives no captions.
/// @param list choices such as `mduLib::GetPropertyChoices` tells: "10, 20,30" gives three captions
QStringList FillMenuFromList(const QString& list);

/// The caption under which menus of colours have a value: its name in their letter case, also where
/// it is held as a number. Any other value is its own.
///
///     ColourCaption(u"255"_s, random)      // "Red"
///     ColourCaption(u"random "_s, random)  // "Random"
///     ColourCaption(u"4711"_s, random)     // "4711"
///
/// @param random what `ColourValue` needs; it is asked for nothing
QString ColourCaption(const QString& value, platform::RandomNumbers& random);

/// The captions of a menu of colours, from "Black" to "Yellow" in the order of the alphabet.
QStringList FillColourMenu();

}  // namespace mduUILib
