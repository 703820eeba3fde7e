#include "editor/GridLines.h"

#include <algorithm>

#include "editor/GridRows.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

bool IsBlank(const EditGridData& grid, int row, int col) {
    return grid.TextMatrix(row, col).trimmed().isEmpty();
}

}  // namespace

void RefreshItemNumber(EditGridData& grid) {
    for (int row = 1; row < grid.Rows() && RowHasText(grid, row); ++row) {
        SetLineNumber(grid, row, QString::number(row));
    }
}

bool SetLineNumber(EditGridData& grid, int row, const QString& text) {
    return grid.SetTextMatrix(row, 0, text);
}

bool SetLastLineNumber(EditGridData& grid, const QString& text) {
    return grid.LastEditRow > 0 && SetLineNumber(grid, grid.LastEditRow, text);
}

QString LastLineNumber(const EditGridData& grid) {
    return grid.LastEditRow > 0 ? grid.TextMatrix(grid.LastEditRow, 0) : QString();
}

bool SetRowStrikeThrough(EditGridData& grid, bool state) {
    SelectOneRow(grid, grid.Row());
    return grid.SetStruckThrough(grid.Row(), state);
}

bool ToggleRowStrikeThrough(EditGridData& grid) {
    return SetRowStrikeThrough(grid, !IsRowStrikeThrough(grid));
}

bool IsRowStrikeThrough(const EditGridData& grid) {
    return grid.IsStruckThrough(grid.Row());
}

void CompactColumn(EditGridData& grid) {
    if (grid.Row() != grid.RowSel()) {
        return;
    }
    const int col = grid.Col();
    int place = std::max(1, grid.FixedRows());
    for (int row = place; row < grid.Rows(); ++row) {
        if (IsBlank(grid, row, col)) {
            continue;
        }
        if (row != place) {
            grid.PutRow(place, grid.RowAt(row));
            grid.FollowMove(row, place);
            ClearRow(grid, row);
        }
        ++place;
    }
}

QString GetHightLightValue(const EditGridData& grid) {
    return grid.TextMatrix(grid.RowSel(), grid.ColSel());
}

double ColTotal(const EditGridData& grid, int col) {
    double total = 0;
    for (int row = 1; row < grid.Rows(); ++row) {
        const QString text = grid.TextMatrix(row, col);
        total += mduAPILib::IsNumeric(text) ? mduAPILib::Val(text) : 0;
    }
    return total;
}

bool SelectOneRow(EditGridData& grid, int row) {
    return grid.SetRow(row) && grid.SetCol(0) && grid.SetColSel(grid.Cols() - 1);
}

void SelectGridAll(EditGridData& grid) {
    grid.SetRow(grid.FixedRows());
    grid.SetCol(grid.FixedCols());
    grid.SetRowSel(grid.Rows() - 1);
    grid.SetColSel(grid.Cols() - 1);
}

void SelectGridNone(EditGridData& grid) {
    grid.SetRow(grid.Row());
}

bool SetRowForeColor(EditGridData& grid, int row, int color) {
    for (int col = 0; col < grid.Cols(); ++col) {
        grid.SetCellForeColor(row, col, color);
    }
    return grid.HasRow(row);
}

void SetSelectionForeColor(EditGridData& grid, int color) {
    const CellBlock block = grid.Selection();
    for (int row = std::max(block.Top, grid.FixedRows()); row <= block.Bottom; ++row) {
        for (int col = block.Left; col <= block.Right; ++col) {
            grid.SetCellForeColor(row, col, color);
        }
    }
}

void SetCellDefault(EditGridData& grid) {
    SetSelectionForeColor(grid, NoForeColor);
}

}  // namespace editor
