#include "editor/PropertyRows.h"

#include <QRegularExpression>

#include "foundation/PropertyLookup.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

// A record is one line of its file, and a tab parts the cells of what is copied.
QString OnOneLine(QString text) {
    static const QRegularExpression lineEnds(u"\\r\\n|[\\r\\n\\t\\x00]"_s);
    return text.replace(lineEnds, u" "_s);
}

// Another record of the same name may stand before this one, so it is looked up alone.
QString ValueWith(const ClockProperty& record, const QString& cell) {
    ClockProperties alone;
    alone[1] = record;
    mduLib::PutProperty(record.Name.trimmed(), cell, alone);
    return alone[1].Value;
}

}  // namespace

QString PropertyCell(const QString& value) {
    return mduLib::FirstListField(value);
}

QStringList ValueChoices(const QString& value) {
    return value.split(u',').mid(1);
}

bool IsPicked(const QString& value) {
    return ValueChoices(value).size() > 1;
}

bool HasRecord(const ClockProperties& properties, int record) {
    return record >= 1 && record <= properties.UpperBound();
}

RowCommit CommitRow(ClockProperties& properties, int record, const QString& cell) {
    if (!HasRecord(properties, record)) {
        return {cell, false};
    }
    ClockProperty& property = properties[record];
    const QString text = OnOneLine(cell);
    const QString shown = PropertyCell(property.Value);
    const bool keepsChoice = text.trimmed().isEmpty() && property.Value.contains(u',') &&
                             !property.Name.contains(u"File"_s);
    if (keepsChoice || text == shown) {
        return {shown, false};
    }
    const QString value = ValueWith(property, text);
    const bool changed = value != property.Value;
    property.Value = value;
    return {PropertyCell(value), changed};
}

}  // namespace editor
