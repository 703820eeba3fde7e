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

void PropertyPreview::Highlight(int record, const QString& value) {
    highlighted_ = record;
    highlightedValue_ = value;
    Show();
}

ClockProperties PropertyPreview::Values() const {
    const ClockProperties& now = records_.Now();
    ClockProperties values;
    for (int number = 1; number <= now.UpperBound(); ++number) {
        const ClockProperty& record = now[number];
        const bool isHighlighted = number == highlighted_;
        const QString cell = isHighlighted ? highlightedValue_ : PropertyCell(record.Value);
        if (isHighlighted ||
            cell != PropertyCell(StoredValue(record, number, records_.Written()))) {
            mduLib::AppendProperty(record.Category, record.Name, cell, values);
        }
    }
    return values;
}

void PropertyPreview::Show() {
    Send(owner_.IsShell() ? ClockProperties() : Values());
}

void PropertyPreview::End() {
    highlighted_ = 0;
    Send({});
}

void PropertyPreview::Send(const ClockProperties& values) {
    if (values != shown_) {
        shown_ = values;
        owner_.Preview(values);
    }
}

}  // namespace editor
