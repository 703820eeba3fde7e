#pragma once

#include <QString>

/// Typing into a line that is no text box: an object with a `Tag`, the plain text, and a `Caption`
/// that shows the same text with a caret.
namespace drawing {

/// Where the next character goes.
struct TitleCaret {
    int Position = 0;    ///< from 0 to the length of the text
    bool Insert = true;  ///< characters move what is behind them on, else they replace it
    int Longest = 40;    ///< characters; what is typed beyond is lost
};

/// The text with the caret: "_" in place of the character at the position, " _" behind the end.
/// "12:30" gives "1_:30" at 1 and "12:30 _" at 5.
QString TextWithCaret(const QString& text, int position);

/// The code of a character that is typed, whatever keys share its number: "%" is 37, as is the key
/// that moves the caret to the left.
constexpr int TypedKey(QChar character) {
    return 0x1000000 | character.unicode();
}
/// The codes of Home and End, whose numbers are those of "$" and "#".
inline constexpr int HomeKey = 0x2000024;
inline constexpr int EndKey = 0x2000023;

/// One key of an edit. 13 ends it, 37 and 39 move the caret within the text, `HomeKey` and `EndKey`
/// to its ends, 45 turns inserting over, 46 removes the character at the caret and 8 the one before
/// it; any other code is a character that is typed at the caret, as is a `TypedKey`. Other codes
/// below 32 and those that print nothing are ignored.
/// @param tag the plain text
/// @param caption the text as it is shown, behind @p prefix
/// @return true when the key ended the edit of a text that is not empty; the caption then shows no
/// caret
bool EditTitleKey(QString& tag, QString& caption, const QString& prefix, int keyCode,
                  TitleCaret& caret);

}  // namespace drawing
