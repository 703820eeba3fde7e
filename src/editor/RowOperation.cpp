#include "editor/RowOperation.h"

#include "editor/GridLines.h"
#include "editor/GridRows.h"

namespace editor {

namespace {

constexpr int NoSource = -1;
constexpr int PastedData = -1;

bool IsDataRow(const EditGridData& grid, int row) {
    return grid.HasRow(row) && row >= grid.FixedRows();
}

void Clip(EditGridData& grid, int source) {
    const int row = grid.Row();
    RowClip& clip = grid.ClippedRow;
    clip = {{}, grid.RowData(row), grid.IsStruckThrough(row), source};
    for (int col = 0; col < grid.Cols(); ++col) {
        clip.Cells += grid.TextMatrix(row, col);
    }
}

void PutCells(EditGridData& grid, int row, int col, int lastCol, const QStringList& cells) {
    for (const QString& cell : cells) {
        if (col <= lastCol) {
            grid.SetTextMatrix(row, col++, cell);
        }
    }
}

// The selection's first row alone gets texts: a clip is one row.
void PasteCopy(EditGridData& grid) {
    const CellBlock block = grid.Selection();
    PutCells(grid, block.Top, block.Left, block.Right, grid.ClippedRow.Cells);
    grid.SetRowData(grid.Row(), PastedData);
}

/// Takes a row away and opens an empty one at the end. It comes first, so that the current row does
/// not slip when it is the last.
bool ReplaceByLast(EditGridData& grid, int row) {
    const bool replaced = grid.SetRows(grid.Rows() + 1) && grid.RemoveItem(row);
    return replaced && grid.SetRowHeight(grid.Rows() - 1, OpenedRowHeight);
}

void PasteCut(EditGridData& grid) {
    const RowClip clip = grid.ClippedRow;
    if (!ReplaceByLast(grid, clip.Source)) {
        return;
    }
    const std::optional<int> row = InsertOneLine(grid, true);
    if (row) {
        PutCells(grid, *row, 0, grid.Cols() - 1, clip.Cells);
        grid.SetRowData(*row, clip.Data);
        grid.SetStruckThrough(*row, clip.StrikeThrough);
        RefreshItemNumber(grid);
    }
}

void Paste(EditGridData& grid) {
    if (!IsDataRow(grid, grid.Row())) {
        return;
    }
    if (grid.ClippedRow.Source >= 1) {
        PasteCut(grid);
    } else if (!grid.ClippedRow.Text().isEmpty()) {
        PasteCopy(grid);
    }
}

void Delete(EditGridData& grid) {
    if (IsDataRow(grid, grid.Row())) {
        ReplaceByLast(grid, grid.Row());
    }
}

}  // namespace

std::optional<bool> RowOperation(EditGridData& grid, int operation) {
    switch (static_cast<RowOp>(operation)) {
        case RowOp::EmptyClip:
            grid.ClippedRow.Cells.clear();
            grid.ClippedRow.Source = NoSource;
            return true;
        case RowOp::HasClip:
            return !grid.ClippedRow.Text().isEmpty();
        case RowOp::Cut:
            Clip(grid, IsDataRow(grid, grid.Row()) ? grid.Row() : NoSource);
            break;
        case RowOp::Copy:
            Clip(grid, NoSource);
            break;
        case RowOp::Paste:
            Paste(grid);
            break;
        case RowOp::Delete:
            Delete(grid);
            break;
    }
    return std::nullopt;
}

}  // namespace editor
