#include "editor/GridColumns.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace editor {

void GridColumns::Setup(int cols) {
    columns_.resize(static_cast<std::size_t>(std::max(cols, 0)) + 1);
}

const GridColumns::Column& GridColumns::At(int col) const {
    static const Column none;
    return col >= 0 && col < Count() ? columns_[static_cast<std::size_t>(col)] : none;
}

GridColumns::Column* GridColumns::Find(int col) {
    return col >= 0 && col < Count() ? &columns_[static_cast<std::size_t>(col)] : nullptr;
}

bool GridColumns::SetCellCtlID(int col, int id) {
    Column* const column = Find(col);
    if (column == nullptr || id < 0 || id > static_cast<int>(EditorKind::ComboEdit)) {
        return false;
    }
    column->Ctl = {static_cast<EditorKind>(id), true};
    return true;
}

bool GridColumns::SetCellCtlVisible(int col, bool state) {
    Column* const column = Find(col);
    if (column != nullptr) {
        column->Ctl.Visible = state;
    }
    return column != nullptr;
}

bool GridColumns::IsEditable(int col) const {
    return Ctl(col).Visible && Ctl(col).Id != EditorKind::None;
}

void GridColumns::SetColFormat(const QString& formats) {
    const QStringList pieces = formats.split(u',');
    for (int col = 0; col < Count(); ++col) {
        columns_[static_cast<std::size_t>(col)].Format = pieces.value(col);
    }
}

bool GridColumns::HasNumberFormat(int col) const {
    const QString format = ColFormat(col);
    return format.contains(u'0') || format.contains(u'#');
}

QStringList GridColumns::Items(int col) const {
    const Column& column = At(col);
    return column.Ctl.Id == EditorKind::ComboEdit ? column.ComboEditItems : column.ComboItems;
}

bool GridColumns::AddCellComboItem(int col, const QString& text) {
    Column* const column = Find(col);
    if (column != nullptr) {
        column->ComboItems += text;
    }
    return column != nullptr;
}

bool GridColumns::AddCellComboEditItem(int col, const QString& text) {
    Column* const column = Find(col);
    if (column != nullptr) {
        column->ComboEditItems += text;
    }
    return column != nullptr;
}

bool GridColumns::RemoveComboEditItem(int col, const QString& text) {
    Column* const column = Find(col);
    return column != nullptr && column->ComboEditItems.removeOne(text);
}

bool GridColumns::ClearCellCombo(int col) {
    Column* const column = Find(col);
    if (column != nullptr) {
        column->ComboItems.clear();
    }
    return column != nullptr;
}

bool GridColumns::ClearCellComboEdit(int col) {
    Column* const column = Find(col);
    if (column != nullptr) {
        column->ComboEditItems.clear();
    }
    return column != nullptr;
}

}  // namespace editor
