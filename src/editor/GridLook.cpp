#include "editor/GridLook.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int MostColumns = 1'000;

QVariantList ColumnToBag(const ColumnLook& column) {
    return QVariantList{column.Width, static_cast<int>(column.Alignment),
                        static_cast<int>(column.FixedAlignment), column.Merge, column.Data};
}

ColumnLook ColumnFromBag(const QVariantList& bag) {
    ColumnLook column;
    column.Width = bag.value(0).toInt();
    column.Alignment = static_cast<ColAlign>(bag.value(1, 1).toInt());
    column.FixedAlignment = static_cast<ColAlign>(bag.value(2, 1).toInt());
    column.Merge = bag.value(3).toBool();
    column.Data = bag.value(4).toInt();
    return column;
}

/// Calls @p visit with the name of each plain property and the property itself.
template <typename Look, typename Visit>
void VisitProperties(Look& look, const Visit& visit) {
    visit(u"ForeColor"_s, look.ForeColor);
    visit(u"BackColor"_s, look.BackColor);
    visit(u"ForeColorSel"_s, look.ForeColorSel);
    visit(u"BackColorSel"_s, look.BackColorSel);
    visit(u"ForeColorFixed"_s, look.ForeColorFixed);
    visit(u"BackColorFixed"_s, look.BackColorFixed);
    visit(u"GridColor"_s, look.GridColor);
    visit(u"GridColorFixed"_s, look.GridColorFixed);
    visit(u"Font"_s, look.Font);
    visit(u"HasFont"_s, look.HasFont);
    visit(u"BorderStyle"_s, look.BorderStyle);
    visit(u"Appearance"_s, look.Appearance);
    visit(u"GridLines"_s, look.GridLines);
    visit(u"GridLinesFixed"_s, look.GridLinesFixed);
    visit(u"GridLineWidth"_s, look.GridLineWidth);
    visit(u"HighLight"_s, look.HighLight);
    visit(u"FocusRect"_s, look.FocusRect);
    visit(u"ScrollBars"_s, look.ScrollBars);
    visit(u"AllowUserResizing"_s, look.AllowUserResizing);
    visit(u"ScrollTrack"_s, look.ScrollTrack);
    visit(u"WordWrap"_s, look.WordWrap);
    visit(u"RightToLeft"_s, look.RightToLeft);
    visit(u"RowHeightMin"_s, look.RowHeightMin);
    visit(u"TextStyle"_s, look.TextStyle);
    visit(u"TextStyleFixed"_s, look.TextStyleFixed);
    visit(u"MergeCells"_s, look.MergeCells);
    visit(u"FormatString"_s, look.FormatString);
    visit(u"Enabled"_s, look.Enabled);
    visit(u"Redraw"_s, look.Redraw);
    visit(u"CausesValidation"_s, look.CausesValidation);
    visit(u"MousePointer"_s, look.MousePointer);
    visit(u"ToolTipText"_s, look.ToolTipText);
    visit(u"Index"_s, look.Index);
    visit(u"WhatsThisHelpID"_s, look.WhatsThisHelpID);
    visit(u"OLEDropMode"_s, look.OLEDropMode);
    visit(u"PictureType"_s, look.PictureType);
}

template <typename T>
QVariant ToBag(const T& value) {
    if constexpr (std::is_enum_v<T>) {
        return static_cast<int>(value);
    } else {
        return QVariant::fromValue(value);
    }
}

template <typename T>
void TakeFromBag(T& value, const QVariant& stored) {
    if constexpr (std::is_enum_v<T>) {
        if (stored.metaType() == QMetaType::fromType<int>()) {
            value = static_cast<T>(stored.toInt());
        }
    } else if (stored.metaType() == QMetaType::fromType<T>()) {
        value = stored.value<T>();
    }
}

}  // namespace

ColumnLook& GridLook::Column(int col) {
    const auto index = static_cast<std::size_t>(std::clamp(col, 0, MostColumns - 1));
    if (index >= Columns.size()) {
        Columns.resize(index + 1);
    }
    return Columns[index];
}

ColumnLook GridLook::ColumnAt(int col) const {
    const bool isThere = col >= 0 && col < static_cast<int>(Columns.size());
    return isThere ? Columns[static_cast<std::size_t>(col)] : ColumnLook();
}

QVariantMap GridLook::ToMap() const {
    QVariantMap bag;
    VisitProperties(
        *this, [&bag](const QString& name, const auto& value) { bag.insert(name, ToBag(value)); });
    QVariantList columns;
    for (const ColumnLook& column : Columns) {
        columns.append(QVariant(ColumnToBag(column)));
    }
    bag.insert(u"Columns"_s, columns);
    return bag;
}

void GridLook::FromMap(const QVariantMap& bag) {
    VisitProperties(
        *this, [&bag](const QString& name, auto& value) { TakeFromBag(value, bag.value(name)); });
    if (!bag.contains(u"Columns"_s)) {
        return;
    }
    Columns.clear();
    for (const QVariant& column : bag.value(u"Columns"_s).toList().mid(0, MostColumns)) {
        Columns.push_back(ColumnFromBag(column.toList()));
    }
}

}  // namespace editor
