#pragma once

#include <QString>
#include <optional>

#include "editor/GridColumns.h"

namespace editor {

/// What a value is, so that its cell can look like it.
enum class ValueSort {
    Text,    ///< anything: a name, a pattern, a list
    Number,  ///< one number
    YesNo,   ///< "Yes" or "No"
    Choice,  ///< one of some words
    Colour,  ///< a name, a number, or a word such as "Random"
    Font,    ///< the name of a font's family
    File,    ///< a path, or "None"
    Date     ///< a date, with or without a time
};

/// What a value is, and what it is edited with.
struct ValueForm {
    ValueSort Sort = ValueSort::Text;
    EditorKind Kind = EditorKind::Text;  ///< never `None`
    bool HasList() const { return Kind == EditorKind::Combo || Kind == EditorKind::ComboEdit; }
    bool operator==(const ValueForm&) const = default;
};

/// The form of a property's value: its own text and its choices tell it, and for a colour, a font
/// and a file the key's name. More than one choice gives a list: one to pick from for words and
/// colours, a line with a list where another text makes sense as well, as for numbers, fonts,
/// files and what is spoken. A plain number and a date have spin buttons, all else a line.
///
///     FormOf("Second Hand Length(%)", "85,80,85,90")  // Number, ComboEdit
///     FormOf("Window Title Bar", "Yes,Yes,No")        // YesNo, Combo
///     FormOf("Stay Time", "0")                        // Number, UpDown
///     FormOf("Hour Number Colour", "Red")             // Colour, Text
///
/// @param name of the key, letter case and blanks around it aside
/// @param value raw, with its choices
ValueForm FormOf(const QString& name, const QString& value);

/// A text that was not picked from the list, such as one that is pasted, as the value can take it.
/// One of words and colours takes its choices alone, letter case and blanks around them aside, a
/// colour other names and numbers as well; anything else takes any text. Nothing where it can't.
///
///     FittingText("Clocks", "Analogue,Analogue,Digital", " digital")  // "Digital"
std::optional<QString> FittingText(const QString& name, const QString& value, const QString& text);

/// Whether a text is a colour's name or number; "Random" and its like are none.
bool IsColourText(const QString& text);

}  // namespace editor
