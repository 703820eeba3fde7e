#include "editor/ValueForm.h"

#include <algorithm>

#include "editor/CellText.h"
#include "editor/PropertyRows.h"
#include "foundation/FilePickers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int AnyYear = 2000;  // for a date that is only looked at

bool EndsIn(const QString& name, QLatin1StringView end) {
    return name.trimmed().endsWith(end, Qt::CaseInsensitive);
}

bool IsColourName(const QString& text) {
    return mduUILib::MenuColours().contains(text.trimmed(), Qt::CaseInsensitive);
}

bool IsYesOrNo(const QString& text) {
    const QString word = text.trimmed().toLower();
    return word == "yes"_L1 || word == "no"_L1;
}

bool IsNumber(const QString& text) {
    return mduAPILib::IsNumeric(text);
}

/// What is spoken: words in angle brackets stand for the time or the place.
bool IsPattern(const QString& text) {
    return text.contains(u'<');
}

/// A list of pairs, such as "Log Off:Magenta", is no list of choices: each may be typed.
bool IsPair(const QString& text) {
    const qsizetype colon = text.lastIndexOf(u':');
    return colon > 0 && IsColourName(text.mid(colon + 1));
}

bool IsDate(const QString& text) {
    return !IsNumber(text) && SpunText(text, 1, AnyYear).has_value();
}

using Test = bool (*)(const QString&);

bool AllAre(const QStringList& texts, Test test) {
    return !texts.isEmpty() && std::all_of(texts.begin(), texts.end(), test);
}

bool AnyIs(const QStringList& texts, Test test) {
    return std::any_of(texts.begin(), texts.end(), test);
}

/// A colour by its key alone holds a text that can be one: nothing, a name or a number.
bool IsColour(const QString& name, const QString& cell, const QStringList& choices) {
    const bool isNamed = EndsIn(name, "Colour"_L1) && !IsPair(cell);
    return isNamed || AnyIs(choices, IsColourName);
}

ValueSort SortOf(const QString& name, const QString& cell, const QStringList& choices) {
    if (mduUILib::IsFileKey(name)) {
        return ValueSort::File;
    }
    if (IsColour(name, cell, choices)) {
        return ValueSort::Colour;
    }
    if (EndsIn(name, "Font"_L1)) {
        return ValueSort::Font;
    }
    if (AllAre(choices, IsYesOrNo) && IsYesOrNo(cell)) {
        return ValueSort::YesNo;
    }
    if (IsNumber(cell) && std::all_of(choices.begin(), choices.end(), IsNumber)) {
        return ValueSort::Number;
    }
    if (choices.size() > 1 && !AnyIs(choices, IsPattern) && !AnyIs(choices, IsPair)) {
        return ValueSort::Choice;
    }
    return IsDate(cell) ? ValueSort::Date : ValueSort::Text;
}

bool IsPickedOnly(ValueSort sort) {
    return sort == ValueSort::YesNo || sort == ValueSort::Choice || sort == ValueSort::Colour;
}

bool IsSpun(ValueSort sort) {
    return sort == ValueSort::Number || sort == ValueSort::Date;
}

}  // namespace

bool IsColourText(const QString& text) {
    return IsColourName(text) || IsNumber(text);
}

std::optional<QString> FittingText(const QString& name, const QString& value, const QString& text) {
    const ValueForm form = FormOf(name, value);
    if (form.Kind != EditorKind::Combo) {
        return text;
    }
    const QString wanted = text.trimmed();
    for (const QString& choice : ValueChoices(value)) {
        if (choice.trimmed().compare(wanted, Qt::CaseInsensitive) == 0) {
            return choice;
        }
    }
    const bool isColour = form.Sort == ValueSort::Colour && IsColourText(wanted);
    return isColour ? std::optional(wanted) : std::nullopt;
}

ValueForm FormOf(const QString& name, const QString& value) {
    const ValueSort sort = SortOf(name, PropertyCell(value), ValueChoices(value));
    if (IsPicked(value)) {
        return {sort, IsPickedOnly(sort) ? EditorKind::Combo : EditorKind::ComboEdit};
    }
    return {sort, IsSpun(sort) ? EditorKind::UpDown : EditorKind::Text};
}

}  // namespace editor
