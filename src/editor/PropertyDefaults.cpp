#include "editor/PropertyDefaults.h"

#include "editor/PropertyRows.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ExactKeys.h"
#include "timezones/ZoneKeys.h"

namespace editor {

namespace {

QString Folded(const QString& text) {
    return text.trimmed().toLower();
}

QString WithoutMark(const QString& value) {
    return value.startsWith(u'^') ? value.mid(1) : value;
}

bool IsEmptyZoneKey(const ClockProperty& record) {
    return PropertyCell(record.Value).trimmed().isEmpty() &&
           (mduTimeZones::ZoneKeys() + QStringList(mduTimeZones::ZoneIdKey))
               .contains(record.Name.trimmed(), Qt::CaseInsensitive);
}

}  // namespace

PropertyDefaults::PropertyDefaults(const ClockProperties& defaults) : defaults_(defaults) {
    for (int row = defaults.UpperBound(); row >= 1; --row) {
        const QString name = Folded(defaults[row].Name);
        rows_[{Folded(defaults[row].Category), name}] = row;
        rowsOfName_[name] = row;
    }
}

int PropertyDefaults::RowOf(const ClockProperty& record) const {
    const QString name = Folded(record.Name);
    if (name.isEmpty()) {
        return 0;
    }
    const int row = rows_.value({Folded(record.Category), name});
    return row != 0 ? row : rowsOfName_.value(name);
}

QString PropertyDefaults::ValueOf(const ClockProperty& record) const {
    return WithoutMark(defaults_[RowOf(record)].Value);
}

bool PropertyDefaults::Gives(const ClockProperty& record) const {
    const int row = RowOf(record);
    return row != 0 && !IsEmptyZoneKey(defaults_[row]);
}

bool PropertyDefaults::Differs(const ClockProperty& record) const {
    return Gives(record) &&
           PropertyCell(WithoutMark(record.Value)) != PropertyCell(ValueOf(record));
}

ClockProperties PropertyDefaults::MergedOver(const ClockProperties& properties) const {
    ClockProperties merged = properties;
    std::vector<bool> taken(static_cast<std::size_t>(defaults_.UpperBound()) + 1);
    for (int record = 1; record <= merged.UpperBound(); ++record) {
        taken[static_cast<std::size_t>(RowOf(merged[record]))] = true;
        if (Gives(merged[record])) {
            merged[record].Value = ValueOf(merged[record]);
        }
    }
    for (int row = 1; row <= defaults_.UpperBound(); ++row) {
        const ClockProperty& missing = defaults_[row];
        if (!taken[static_cast<std::size_t>(row)] && !missing.Name.trimmed().isEmpty()) {
            mduLib::AppendProperty(missing.Category, missing.Name, WithoutMark(missing.Value),
                                   merged);
        }
    }
    return merged;
}

}  // namespace editor
