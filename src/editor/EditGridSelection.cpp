// The current cell, the selection and its clip text.
#include <algorithm>

#include "editor/EditGridData.h"

using namespace Qt::StringLiterals;

namespace editor {

bool EditGridData::SetRow(int row) {
    if (!HasRow(row)) {
        return false;
    }
    row_ = rowSel_ = row;
    colSel_ = col_;
    return true;
}

bool EditGridData::SetCol(int col) {
    if (!HasCol(col)) {
        return false;
    }
    col_ = colSel_ = col;
    rowSel_ = row_;
    return true;
}

bool EditGridData::SetRowSel(int row) {
    if (!HasRow(row)) {
        return false;
    }
    rowSel_ = row;
    return true;
}

bool EditGridData::SetColSel(int col) {
    if (!HasCol(col)) {
        return false;
    }
    colSel_ = col;
    return true;
}

CellBlock EditGridData::Selection() const {
    if (Rows() == 0 || cols_ == 0) {
        return {};
    }
    return {std::min(row_, rowSel_), std::min(col_, colSel_), std::max(row_, rowSel_),
            std::max(col_, colSel_)};
}

QString EditGridData::Clip() const {
    const CellBlock block = Selection();
    QStringList rows;
    for (int row = block.Top; row <= block.Bottom; ++row) {
        QStringList cells;
        for (int col = block.Left; col <= block.Right; ++col) {
            cells += TextMatrix(row, col);
        }
        rows += cells.join(u'\t');
    }
    return rows.join(u'\r');
}

QString EditGridData::RowClipText(int row) const {
    QStringList cells;
    for (int col = 0; col < cols_; ++col) {
        cells += TextMatrix(row, col);
    }
    return cells.join(u'\t');
}

void EditGridData::SetClip(const QString& text) {
    const CellBlock block = Selection();
    const QStringList rows = QString(text).replace(u"\r\n"_s, u"\r"_s).split(u'\r');
    const int lastRow = std::min(block.Bottom, block.Top + static_cast<int>(rows.size()) - 1);
    for (int row = block.Top; row <= lastRow; ++row) {
        const QStringList cells = rows[row - block.Top].split(u'\t');
        const int lastCol = std::min(block.Right, block.Left + static_cast<int>(cells.size()) - 1);
        for (int col = block.Left; col <= lastCol; ++col) {
            SetTextMatrix(row, col, cells[col - block.Left]);
        }
    }
}

}  // namespace editor
