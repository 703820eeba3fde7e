#include "drawing/TitleEdit.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

enum Key { Backspace = 8, Enter = 13, FirstCharacter = 32, Left = 37, Right = 39, Insert = 45 };
constexpr int Delete = 46;
constexpr int LastCharacter = 0xFFFF;

/// The character of a code that is no control key; 0 for one that is not typed.
int CharacterOf(int keyCode) {
    const bool isTypedKey = (keyCode & ~LastCharacter) == TypedKey(u'\0');
    const int code = isTypedKey ? keyCode & LastCharacter : keyCode;
    const bool isTyped = code >= FirstCharacter && code <= LastCharacter &&
                         !QChar::isSurrogate(static_cast<char32_t>(code)) &&
                         QChar::isPrint(static_cast<char32_t>(code));
    return isTyped ? code : 0;
}

void Type(QString& text, QChar character, TitleCaret& caret) {
    const bool replaces = !caret.Insert && caret.Position < text.size();
    if (replaces) {
        text[caret.Position] = character;
    } else if (text.size() < caret.Longest) {
        text.insert(caret.Position, character);
    } else {
        return;
    }
    ++caret.Position;
}

void RemoveBefore(QString& text, TitleCaret& caret) {
    if (caret.Position > 0) {
        text.remove(--caret.Position, 1);
    }
}

/// @return whether the key means anything
bool Edit(QString& text, int keyCode, TitleCaret& caret) {
    switch (keyCode) {
        case Left:
            caret.Position = std::max(caret.Position - 1, 0);
            return true;
        case Right:
            caret.Position = std::min(caret.Position + 1, static_cast<int>(text.size()));
            return true;
        case HomeKey:
            caret.Position = 0;
            return true;
        case EndKey:
            caret.Position = static_cast<int>(text.size());
            return true;
        case Insert:
            caret.Insert = !caret.Insert;
            return true;
        case Delete:
            text.remove(caret.Position, 1);
            return true;
        case Backspace:
            RemoveBefore(text, caret);
            return true;
        default:
            break;
    }
    const int character = CharacterOf(keyCode);
    if (character != 0) {
        Type(text, QChar(character), caret);
    }
    return character != 0;
}

}  // namespace

QString TextWithCaret(const QString& text, int position) {
    if (position >= text.size()) {
        return text + u" _"_s;
    }
    QString shown = text;
    shown[std::max(position, 0)] = u'_';
    return shown;
}

bool EditTitleKey(QString& tag, QString& caption, const QString& prefix, int keyCode,
                  TitleCaret& caret) {
    caret.Position = std::clamp(caret.Position, 0, static_cast<int>(tag.size()));
    if (keyCode == Enter) {
        caption = prefix + (tag.isEmpty() ? TextWithCaret(tag, 0) : tag);
        return !tag.isEmpty();
    }
    if (Edit(tag, keyCode, caret)) {
        caption = prefix + TextWithCaret(tag, caret.Position);
    }
    return false;
}

}  // namespace drawing
