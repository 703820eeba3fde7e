#include "drawing/TitleEdit.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

enum Key { Backspace = 8, Enter = 13, FirstCharacter = 32, Left = 37, Right = 39, Insert = 45 };
constexpr int Delete = 46;
constexpr int LastCharacter = 0xFFFF;

bool IsTyped(int keyCode) {
    return keyCode >= FirstCharacter && keyCode <= LastCharacter &&
           !QChar::isSurrogate(static_cast<char32_t>(keyCode)) &&
           QChar::isPrint(static_cast<char32_t>(keyCode));
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
    if (!IsTyped(keyCode)) {
        return false;
    }
    Type(text, QChar(keyCode), caret);
    return true;
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
