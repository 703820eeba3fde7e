#pragma once

#include <QStringList>

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

/// The captions of a menu of colours, from "Black" to "Yellow" in the order of the alphabet.
QStringList FillColourMenu();

}  // namespace mduUILib
