#include "foundation/PropertyLookup.h"

#include <algorithm>

#include "foundation/PropertyFile.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace mduLib {

namespace {

bool EqualStoredField(const QString& stored, const QString& askedFor) {
    return QStringView(stored).trimmed().compare(askedFor, Qt::CaseInsensitive) == 0;
}

const QString& ValueAt(int row, const ClockProperties& array) {
    static const QString none;
    return row == 0 ? none : array[row].Value;
}

// The row before the new one stays a gap.
int AddRow(ClockProperties& array) {
    array.Resize(array.UpperBound() + 2);
    return array.UpperBound();
}

QString WithChoicesOf(const QString& rawValue, const QString& value) {
    const qsizetype comma = rawValue.indexOf(u',');
    return comma > 0 ? value.trimmed() + rawValue.mid(comma) : value.trimmed();
}

}  // namespace

int FindPropertyRow(const QString& name, const ClockProperties& array, const QString& category) {
    for (int row = 1; row <= array.UpperBound(); ++row) {
        if (EqualStoredField(array[row].Name, name) &&
            (category.isEmpty() || EqualStoredField(array[row].Category, category))) {
            return row;
        }
    }
    return 0;
}

QString GetPropertyRaw(const QString& name, const ClockProperties& array) {
    array.NoteAsked(name);
    return ValueAt(FindPropertyRow(name, array), array);
}

QString GetPropertyRawIn(const QString& name, const ClockProperties& array,
                         const QString& category) {
    array.NoteAsked(name);
    return ValueAt(FindPropertyRow(name, array, category), array);
}

QString GetProperty(const QString& name, const ClockProperties& array, const QString& category) {
    array.NoteAsked(name);
    const int row = FindPropertyRow(name, array, category);
    return row == 0 ? u"0"_s : RowFirstField(row, array);
}

QString GetPropertyChoices(const QString& name, const ClockProperties& array) {
    const QString raw = GetPropertyRaw(name, array);
    return raw.mid(raw.indexOf(u',') + 1);
}

void PutProperty(const QString& name, const QString& value, ClockProperties& array,
                 const QString& category) {
    int row = FindPropertyRow(name, array, category);
    if (row == 0) {
        row = AddRow(array);
        array[row].Category = category;
        array[row].Name = name;
    }
    array[row].Value = WithChoicesOf(array[row].Value, value);
}

void PutPropertyRaw(const QString& name, const QString& rawValue, ClockProperties& array,
                    const QString& category) {
    int row = FindPropertyRow(name, array, category);
    if (row == 0) {
        row = AddRow(array);
        array[row].Name = name.trimmed();
    }
    if (!category.isEmpty()) {
        array[row].Category = category;
    }
    array[row].Value = rawValue.trimmed();
}

void PutPropertyKeepChoices(const QString& name, const QString& value, ClockProperties& array,
                            const QString& category) {
    PutPropertyRaw(name, value + u',' + GetPropertyChoices(name, array), array, category);
}

bool SavePropertyNow(platform::Files& files, const QString& name, const QString& value,
                     ClockProperties& array, const QString& path) {
    int row = FindPropertyRow(name, array);
    if (row == 0) {
        row = AddRow(array);
        array[row].Name = name;
    }
    array[row].Value = value;
    return WritePropertyFile(files, array, path);
}

void AppendProperty(const QString& category, const QString& name, const QString& value,
                    ClockProperties& array) {
    const int last = array.UpperBound();
    if (last == 0 || !array[last].Name.isEmpty()) {
        array.Resize(last + 1);
    }
    array[array.UpperBound()] = {category, name, value};
}

std::vector<int> SortPropertyRows(const ClockProperties& array, int column, int direction) {
    std::vector<int> rows;
    for (int row = 1; row <= array.UpperBound(); ++row) {
        if (!array[row].Name.isEmpty()) {
            rows.push_back(row);
        }
    }
    if (column < 1 || column > 3 || (direction != 1 && direction != 2)) {
        return rows;
    }
    constexpr QString ClockProperty::*Columns[] = {&ClockProperty::Category, &ClockProperty::Name,
                                                   &ClockProperty::Value};
    const auto field = Columns[column - 1];
    std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
        const QString& first = array[direction == 1 ? left : right].*field;
        const QString& second = array[direction == 1 ? right : left].*field;
        return first < second;
    });
    return rows;
}

}  // namespace mduLib
