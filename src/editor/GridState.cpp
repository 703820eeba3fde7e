#include "editor/GridState.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

/// The editor of a column: its kind and whether it is shown.
QVariantList ColumnsToBag(const GridColumns& columns) {
    QVariantList bag;
    for (int col = 0; col < columns.Count(); ++col) {
        bag.append(QVariant(QVariantList{static_cast<int>(columns.Ctl(col).Id),
                                         columns.Ctl(col).Visible, columns.ColFormat(col)}));
    }
    return bag;
}

void ColumnsFromBag(const QVariantList& bag, GridColumns& columns) {
    QStringList formats;
    for (int col = 0; col < columns.Count(); ++col) {
        const QVariantList column = bag.value(col).toList();
        columns.SetCellCtlID(col, column.value(0).toInt());
        columns.SetCellCtlVisible(col, column.value(1).toBool());
        formats += column.value(2).toString();
    }
    columns.SetColFormat(formats.join(u','));
}

SelectionMode ModeOf(const QVariant& stored, SelectionMode present) {
    const int mode = stored.toInt();
    const bool isMode = stored.isValid() && mode >= 0 && mode <= 2;
    return isMode ? static_cast<SelectionMode>(mode) : present;
}

}  // namespace

QVariantMap GridState::Save() const {
    QVariantMap bag = Look.ToMap();
    bag.insert(u"Rows"_s, Data.Rows());
    bag.insert(u"Cols"_s, Data.Cols());
    bag.insert(u"FixedRows"_s, Data.FixedRows());
    bag.insert(u"FixedCols"_s, Data.FixedCols());
    bag.insert(u"SelectionMode"_s, static_cast<int>(Data.Mode));
    bag.insert(u"Editable"_s, Editing.Editable);
    bag.insert(u"MoveToNextOnEnter"_s, Editing.MoveToNextOnEnter);
    bag.insert(u"CellCtl"_s, ColumnsToBag(Columns));
    return bag;
}

void GridState::Load(const QVariantMap& bag) {
    const GridSize size{bag.value(u"Rows"_s, Data.Rows()).toInt(),
                        bag.value(u"Cols"_s, Data.Cols()).toInt(),
                        bag.value(u"FixedRows"_s, Data.FixedRows()).toInt(),
                        bag.value(u"FixedCols"_s, Data.FixedCols()).toInt()};
    const bool isOther = size.Rows != Data.Rows() || size.Cols != Data.Cols() ||
                         size.FixedRows != Data.FixedRows() || size.FixedCols != Data.FixedCols();
    if (isOther && size.IsPossible()) {
        Data = EditGridData(size);
    }
    Data.Mode = ModeOf(bag.value(u"SelectionMode"_s), Data.Mode);
    Editing.Editable = bag.value(u"Editable"_s, Editing.Editable).toBool();
    Editing.MoveToNextOnEnter =
        bag.value(u"MoveToNextOnEnter"_s, Editing.MoveToNextOnEnter).toBool();
    if (bag.contains(u"CellCtl"_s)) {
        Columns.Setup(Data.Cols());
        ColumnsFromBag(bag.value(u"CellCtl"_s).toList(), Columns);
    }
    Look.FromMap(bag);
}

}  // namespace editor
