#pragma once

#include <QString>

#include "foundation/ClockProperty.h"

/// The keys that a user binds to the commands of a clock, and their texts: "Ctrl+F3", "F3",
/// "Ctrl+K", and "+K" for a character alone.
///
/// A key is told by its code: 112 to 123 for F1 to F12, else that of its character, in capitals.
/// Its modifiers are the bits of `KeyShift`.
namespace mduUILib {

/// Bits of the modifiers that are held.
namespace KeyShift {
inline constexpr int Shift = 1;  ///< has no name: it counts in no shortcut
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
}  // namespace KeyShift

/// "Alt", else "Ctrl", else empty: Alt wins where both are held.
QString ModifierName(int shift);

/// The code of a function key by its name: "F3" gives 114, and "F20" gives 131. Blanks around it
/// don't count; any other text gives 0.
int KeyNameCode(const QString& text);

/// The text of a key, as the list of shortcuts holds it: (114, Ctrl) gives "Ctrl+F3", (75, 0) gives
/// "+K". A code that is no character leaves that part empty.
QString KeyText(int code, int shift);

/// The command that a key is bound to.
/// @param shortcuts rows of a command's name and a key's text; the first that fits counts. Letter
/// case counts: "Ctrl+k" fits no key.
/// @return the name of the row; empty where none fits
QString MatchShortcut(const ClockProperties& shortcuts, int code, int shift);

}  // namespace mduUILib
