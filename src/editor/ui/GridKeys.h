#pragma once

#include <QKeyEvent>

#include "editor/EditorKeys.h"

/// Keys of Qt as the grid and its hosts count them.
namespace editor {

/// The code of a key for a host, see `EditGridHost`; 0 for a key that has none, such as Shift.
int HostCode(const QKeyEvent& event);
/// The modifiers as bits of `mduUILib::KeyShift`.
int HostShift(Qt::KeyboardModifiers modifiers);
/// The number of a button: 1 left, 2 right, 4 middle, 0 none.
int HostButton(Qt::MouseButton button);

/// Whether neither Ctrl nor Alt is held. AltGr, which types characters, is no Alt.
bool IsPlainKey(const QKeyEvent& event);
/// The character that a key types, as a code point; 0 for one that types nothing.
int TypedCode(const QKeyEvent& event);
/// A key as the editing of a cell takes it: what it types, or its code. Nothing of both for a key
/// that has no part in it, as those with Ctrl and Alt.
EditKey EditKeyOf(const QKeyEvent& event);
/// One character as a text.
QString TextOf(int codePoint);

}  // namespace editor
