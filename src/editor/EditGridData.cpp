#include "editor/EditGridData.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

bool IsWithin(int value, int most) {
    return value >= 0 && value <= most;
}

}  // namespace

bool GridSize::IsPossible() const {
    return IsWithin(Rows, MostRows) && IsWithin(Cols, MostCols) && IsWithin(FixedRows, Rows) &&
           IsWithin(FixedCols, Cols);
}

EditGridData::EditGridData(GridSize size) {
    if (!size.IsPossible()) {
        size = {};
    }
    rows_.resize(static_cast<std::size_t>(size.Rows));
    cols_ = size.Cols;
    fixedRows_ = size.FixedRows;
    fixedCols_ = size.FixedCols;
    row_ = rowSel_ = fixedRows_;
    col_ = colSel_ = fixedCols_;
    KeepCursorWithin();
}

void EditGridData::KeepCursorWithin() {
    const int lastRow = std::max(Rows() - 1, 0);
    const int lastCol = std::max(cols_ - 1, 0);
    row_ = std::min(row_, lastRow);
    rowSel_ = std::min(rowSel_, lastRow);
    col_ = std::min(col_, lastCol);
    colSel_ = std::min(colSel_, lastCol);
}

bool EditGridData::SetRows(int rows) {
    if (rows < fixedRows_ || rows > GridSize::MostRows) {
        return false;
    }
    rows_.resize(static_cast<std::size_t>(rows));
    KeepCursorWithin();
    ForgetMarks(rows, GridSize::MostRows);
    return true;
}

bool EditGridData::SetCols(int cols) {
    if (cols < fixedCols_ || cols > GridSize::MostCols) {
        return false;
    }
    const auto count = static_cast<std::size_t>(cols);
    for (GridRow& row : rows_) {
        row.Cells.resize(std::min(row.Cells.size(), count));
        row.ForeColors.resize(std::min(row.ForeColors.size(), count));
    }
    cols_ = cols;
    KeepCursorWithin();
    return true;
}

bool EditGridData::SetFixedRows(int rows) {
    if (!IsWithin(rows, Rows())) {
        return false;
    }
    fixedRows_ = rows;
    return true;
}

bool EditGridData::SetFixedCols(int cols) {
    if (!IsWithin(cols, cols_)) {
        return false;
    }
    fixedCols_ = cols;
    return true;
}

QString EditGridData::TextMatrix(int row, int col) const {
    const std::vector<QString>& cells = RowAt(row).Cells;
    const bool isWritten = col >= 0 && col < static_cast<int>(cells.size());
    return isWritten ? cells[static_cast<std::size_t>(col)] : QString();
}

bool EditGridData::SetTextMatrix(int row, int col, const QString& text) {
    if (!HasRow(row) || !HasCol(col)) {
        return false;
    }
    std::vector<QString>& cells = At(row).Cells;
    const auto index = static_cast<std::size_t>(col);
    if (index >= cells.size()) {
        cells.resize(index + 1);
    }
    cells[index] = text;
    return true;
}

QString EditGridData::TextArray(int index) const {
    return index < 0 || cols_ == 0 ? QString() : TextMatrix(index / cols_, index % cols_);
}

bool EditGridData::SetTextArray(int index, const QString& text) {
    return index >= 0 && cols_ > 0 && SetTextMatrix(index / cols_, index % cols_, text);
}

const GridRow& EditGridData::RowAt(int row) const {
    static const GridRow none;
    return HasRow(row) ? rows_[static_cast<std::size_t>(row)] : none;
}

bool EditGridData::PutRow(int row, const GridRow& content) {
    if (!HasRow(row)) {
        return false;
    }
    const int height = At(row).Height;
    At(row) = content;
    At(row).Height = height;
    std::vector<QString>& cells = At(row).Cells;
    cells.resize(std::min(cells.size(), static_cast<std::size_t>(cols_)));
    return true;
}

bool EditGridData::SetRowData(int row, int data) {
    if (!HasRow(row)) {
        return false;
    }
    At(row).Data = data;
    return true;
}

bool EditGridData::SetRowHeight(int row, int height) {
    if (!HasRow(row) || height < 0) {
        return false;
    }
    At(row).Height = height;
    return true;
}

bool EditGridData::SetStruckThrough(int row, bool state) {
    if (!HasRow(row)) {
        return false;
    }
    At(row).StrikeThrough = state;
    return true;
}

bool EditGridData::SetEditableRow(int row, bool state) {
    if (!HasRow(row)) {
        return false;
    }
    At(row).Locked = !state;
    return true;
}

int EditGridData::CellForeColor(int row, int col) const {
    const std::vector<int>& colors = RowAt(row).ForeColors;
    const bool isGiven = col >= 0 && col < static_cast<int>(colors.size());
    return isGiven ? colors[static_cast<std::size_t>(col)] : NoForeColor;
}

bool EditGridData::SetCellForeColor(int row, int col, int color) {
    if (!HasRow(row) || !HasCol(col)) {
        return false;
    }
    std::vector<int>& colors = At(row).ForeColors;
    const auto index = static_cast<std::size_t>(col);
    colors.resize(std::max(colors.size(), index + 1), NoForeColor);
    colors[index] = color;
    return true;
}

bool EditGridData::RemoveItem(int row) {
    if (!HasRow(row) || row < fixedRows_) {
        return false;
    }
    rows_.erase(rows_.begin() + row);
    ForgetMarks(row, row);
    for (int* mark : {&row_, &rowSel_, &LastEditRow, &ClippedRow.Source}) {
        if (*mark > row) {
            --*mark;
        }
    }
    KeepCursorWithin();
    return true;
}

void EditGridData::Reorder(int first, std::span<const int> order) {
    std::vector<GridRow> moved;
    moved.reserve(order.size());
    for (const int row : order) {
        moved.push_back(std::move(At(row)));
    }
    std::move(moved.begin(), moved.end(), rows_.begin() + first);
    for (int* mark : {&LastEditRow, &ClippedRow.Source}) {
        const auto found = std::find(order.begin(), order.end(), *mark);
        if (found != order.end()) {
            *mark = first + static_cast<int>(found - order.begin());
        }
    }
}

void EditGridData::FollowMove(int from, int to) {
    ForgetMarks(to, to);
    for (int* mark : {&LastEditRow, &ClippedRow.Source}) {
        if (*mark == from) {
            *mark = to;
        }
    }
}

void EditGridData::ForgetMarks(int first, int last) {
    if (LastEditRow >= first && LastEditRow <= last) {
        LastEditRow = -1;
    }
    if (ClippedRow.Source >= first && ClippedRow.Source <= last) {
        ClippedRow.Source = -1;
    }
}

}  // namespace editor
