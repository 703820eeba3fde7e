#pragma once

#include <QString>

#include "editor/GridColumns.h"

/// The keys of the grid and its editors.
namespace editor {

/// Codes of the keys that type nothing.
namespace KeyCode {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
}  // namespace KeyCode

/// A key: what it types, or else its code.
struct EditKey {
    int Code = 0;
    QString Typed;  ///< one character, as the user sees it; empty for a key that types nothing
};

/// What a key means while an editor is open.
enum class EditorAction {
    Stays,         ///< it acts within the editor
    Ends,          ///< the edit ends, and its value goes to the cell
    Cancels,       ///< the cell's old text stays
    EndsAndPages,  ///< the edit ends, and the grid moves by a page
    ClearsChoice,  ///< nothing is chosen, or typed, any more
    None
};

EditorAction ActionOf(EditorKind kind, const EditKey& key);

}  // namespace editor
