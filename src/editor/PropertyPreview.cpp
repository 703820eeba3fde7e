#include "editor/PropertyPreview.h"

#include "foundation/PropertyLookup.h"

namespace editor {

namespace {

/// The stored value of a record; most have kept their number.
QString StoredValue(const ClockProperty& record, int number, const ClockProperties& stored) {
    const bool isSame = HasRecord(stored, number) && stored[number].Name == record.Name;
    return isSame ? stored[number].Value
                  : mduLib::GetPropertyRawIn(record.Name, stored, record.Category);
}

}  // namespace

// What the clock is to show in the place of what it has stored. It goes by the first of two records
// of one name.
ClockProperties PropertyPreview::Values(int highlighted, const QString& value) const {
    const ClockProperties& now = records_.Now();
    ClockProperties values;
    for (int number = 1; number <= now.UpperBound(); ++number) {
        const ClockProperty& record = now[number];
        const QString cell = number == highlighted ? value : PropertyCell(record.Value);
        const bool isNews = cell != PropertyCell(StoredValue(record, number, records_.Written()));
        if (isNews && mduLib::FindPropertyRow(record.Name, now) == number) {
            mduLib::AppendProperty(record.Category, record.Name, cell, values);
        }
    }
    return values;
}

void PropertyPreview::Send(const ClockProperties& values) {
    const IClock* clock = owner_.Clock();
    const int handle = clock == nullptr ? 0 : clock->hwnd();
    if (handle != shownBy_) {
        shownBy_ = handle;
        shown_ = {};
    }
    if (clock != nullptr && values != shown_) {
        shown_ = values;
        owner_.Preview(values);
    }
}

}  // namespace editor
