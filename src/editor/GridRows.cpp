#include "editor/GridRows.h"

#include <algorithm>

#include "editor/GridLines.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int ShownDigits = 15;

QString NextNumber(const QString& number) {
    return QString::number(mduAPILib::Val(number) + 1, 'g', ShownDigits);
}

/// The last row with any text in it, blanks too; -1 when there is none.
int LastUsedRow(const EditGridData& grid) {
    int row = grid.Rows() - 1;
    const auto isEmpty = [](const QString& cell) { return cell.isEmpty(); };
    while (row >= 0 &&
           std::all_of(grid.RowAt(row).Cells.begin(), grid.RowAt(row).Cells.end(), isEmpty)) {
        --row;
    }
    return row;
}

void PutTexts(EditGridData& grid, int row, const QString& text) {
    const QStringList cells = text.split(u'\t');
    for (int col = 0; col < cells.size(); ++col) {
        grid.SetTextMatrix(row, col, cells[col]);
    }
}

}  // namespace

bool RowHasText(const EditGridData& grid, int row) {
    const std::vector<QString>& cells = grid.RowAt(row).Cells;
    return std::any_of(cells.begin(), cells.end(),
                       [](const QString& cell) { return !QStringView(cell).trimmed().isEmpty(); });
}

bool ClearRow(EditGridData& grid, int row) {
    if (grid.HasRow(row) && grid.ClippedRow.Source == row) {
        grid.ClippedRow.Source = -1;
    }
    return grid.PutRow(row, {});
}

void GridClear(EditGridData& grid) {
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        ClearRow(grid, row);
    }
}

void Clear(EditGridData& grid) {
    for (int row = 0; row < grid.Rows(); ++row) {
        ClearRow(grid, row);
    }
}

bool CopyRow(EditGridData& grid, int from, int to) {
    if (!grid.HasRow(from) || to < 0 || (to >= grid.Rows() && !grid.SetRows(to + 1))) {
        return false;
    }
    grid.PutRow(to, grid.RowAt(from));
    const QString number = grid.TextMatrix(from, 0);
    if (mduAPILib::IsNumeric(number)) {
        grid.SetTextMatrix(to, 0, NextNumber(number));
    }
    return true;
}

std::optional<int> InsertOneLine(EditGridData& grid, bool moveDown) {
    const int place = moveDown ? grid.Row() : grid.Row() + 1;
    if (place < grid.FixedRows()) {
        return std::nullopt;
    }
    const int last = LastUsedRow(grid);
    const bool isFull = last == grid.Rows() - 1 || place == grid.Rows();
    if (isFull && !grid.SetRows(grid.Rows() + 1)) {
        return std::nullopt;
    }
    for (int row = last; row >= place; --row) {
        CopyRow(grid, row, row + 1);
        grid.FollowMove(row, row + 1);
    }
    ClearRow(grid, place);
    SetLineNumber(grid, place, QString::number(place));
    return place;
}

std::optional<int> Duplicate(EditGridData& grid) {
    if (grid.Row() < grid.FixedRows() || !grid.HasRow(grid.Row())) {
        return std::nullopt;
    }
    const std::optional<int> place = InsertOneLine(grid, false);
    if (place) {
        CopyRow(grid, grid.Row(), *place);
    }
    return place;
}

bool AddItem(EditGridData& grid, const QString& text, std::optional<int> place) {
    const int added = grid.Rows();
    const int row = place.value_or(added);
    if (row < grid.FixedRows() || row > added || !grid.SetRows(added + 1)) {
        return false;
    }
    std::vector<int> order = {added};
    for (int moved = row; moved < added; ++moved) {
        order.push_back(moved);
    }
    grid.Reorder(row, order);
    PutTexts(grid, row, text);
    return true;
}

bool AddRowDetail(EditGridData& grid, const QString& text) {
    int row = grid.FixedRows();
    while (row < grid.Rows() && RowHasText(grid, row)) {
        ++row;
    }
    if (row == grid.Rows() && !grid.SetRows(row + 1)) {
        return false;
    }
    PutTexts(grid, row, text);
    return true;
}

bool RemoveItemByName(EditGridData& grid, const QString& name) {
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        if (grid.TextMatrix(row, 0) == name) {
            return grid.RemoveItem(row);
        }
    }
    return false;
}

void DeleteGridRows(EditGridData& grid) {
    const CellBlock block = grid.Selection();
    const int rows = grid.Rows();
    const int first = std::max(block.Top, grid.FixedRows());
    for (int row = first; row <= block.Bottom; ++row) {
        grid.RemoveItem(first);
    }
    grid.SetRows(rows);
    grid.SetRow(block.Top);
}

}  // namespace editor
