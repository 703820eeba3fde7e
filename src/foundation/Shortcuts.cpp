#include "foundation/Shortcuts.h"

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

namespace {

constexpr int BeforeF1 = 111;

bool IsCharacter(int code) {
    return code > 0 && code <= 0xFFFF;
}

/// Whether the second part of a text such as "Ctrl+K" means a key.
bool IsKey(const QString& part, int code) {
    if (!FunctionKeyName(code).isEmpty()) {
        return KeyNameCode(part) == code;
    }
    const QString character = part.trimmed();
    return !character.isEmpty() && character[0].unicode() == code;
}

bool Fits(const QString& text, int code, const QString& modifier) {
    const qsizetype plus = text.indexOf(u'+');
    if (plus < 0) {
        return modifier.isEmpty() && code != 0 && KeyNameCode(text) == code;
    }
    // What stands behind another "+" is not looked at; in "Ctrl++" that leaves nothing.
    return text.left(plus).trimmed() == modifier && IsKey(text.section(u'+', 1, 1), code);
}

}  // namespace

QString ModifierName(int shift) {
    if ((shift & KeyShift::Alt) != 0) {
        return u"Alt"_s;
    }
    return (shift & KeyShift::Ctrl) != 0 ? u"Ctrl"_s : QString();
}

int KeyNameCode(const QString& text) {
    const QString name = text.trimmed();
    const QString number = name.mid(1);
    const bool isName = name.startsWith(u'F') && mduAPILib::IsNumeric(number);
    return isName ? mduAPILib::ToInt16(mduAPILib::Val(number) + BeforeF1) : 0;
}

QString KeyText(int code, int shift) {
    const QString name = FunctionKeyName(code);
    const QString modifier = ModifierName(shift);
    if (name.isEmpty()) {
        return modifier + u'+' + (IsCharacter(code) ? QString(QChar(code)) : QString());
    }
    return modifier.isEmpty() ? name : modifier + u'+' + name;
}

QString MatchShortcut(const ClockProperties& shortcuts, int code, int shift) {
    const QString modifier = ModifierName(shift);
    for (int row = 1; row <= shortcuts.UpperBound(); ++row) {
        if (Fits(mduLib::RowFirstField(row, shortcuts), code, modifier)) {
            return shortcuts[row].Name;
        }
    }
    return {};
}

}  // namespace mduUILib
