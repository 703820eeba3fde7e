#include "editor/GridFormat.h"

#include <algorithm>
#include <numeric>

namespace editor {

namespace {

std::optional<ColAlign> AlignOf(QChar mark) {
    switch (mark.unicode()) {
        case u'<':
            return ColAlign::Left;
        case u'^':
            return ColAlign::Centre;
        case u'>':
            return ColAlign::Right;
        default:
            return std::nullopt;
    }
}

FormatPiece PieceOf(const QString& text) {
    const std::optional<ColAlign> align = text.isEmpty() ? std::nullopt : AlignOf(text[0]);
    return {align ? text.mid(1) : text, align.value_or(ColAlign::Left)};
}

/// The numbers from @p first to @p last with one of them moved.
std::vector<int> OrderWithMove(int first, int last, int from, int to) {
    std::vector<int> order(static_cast<std::size_t>(last - first + 1));
    std::iota(order.begin(), order.end(), first);
    order.erase(order.begin() + (from - first));
    order.insert(order.begin() + (to - first), from);
    return order;
}

}  // namespace

std::vector<FormatPiece> FormatOf(const QString& format) {
    std::vector<FormatPiece> pieces;
    if (!format.isEmpty()) {
        for (const QString& text : format.split(u'|')) {
            pieces.push_back(PieceOf(text));
        }
    }
    return pieces;
}

void SetupColHeaders(EditGridData& grid, GridLook& look) {
    int col = 0;
    for (const FormatPiece& piece : FormatOf(look.FormatString)) {
        if (!grid.HasCol(col)) {
            return;
        }
        if (!piece.Caption.isEmpty()) {
            grid.SetTextMatrix(0, col, piece.Caption);
        }
        look.Column(col).Alignment = piece.Alignment;
        look.Column(col).FixedAlignment = piece.Alignment;
        ++col;
    }
}

bool SetRowPosition(EditGridData& grid, int row, int place) {
    const auto isFree = [&](int which) { return grid.HasRow(which) && which >= grid.FixedRows(); };
    if (!isFree(row) || !isFree(place) || row == place) {
        return false;
    }
    grid.Reorder(grid.FixedRows(), OrderWithMove(grid.FixedRows(), grid.Rows() - 1, row, place));
    return true;
}

bool SetColPosition(EditGridData& grid, GridLook& look, int col, int place) {
    const auto isFree = [&](int which) { return grid.HasCol(which) && which >= grid.FixedCols(); };
    if (!isFree(col) || !isFree(place) || col == place) {
        return false;
    }
    const std::vector<int> order = OrderWithMove(0, grid.Cols() - 1, col, place);
    for (int row = 0; row < grid.Rows(); ++row) {
        GridRow moved = grid.RowAt(row);
        moved.Cells.clear();
        moved.ForeColors.clear();
        for (const int from : order) {
            moved.Cells.push_back(grid.TextMatrix(row, from));
            moved.ForeColors.push_back(grid.CellForeColor(row, from));
        }
        grid.PutRow(row, moved);
    }
    std::vector<ColumnLook> looks;
    looks.reserve(order.size());
    for (const int from : order) {
        looks.push_back(look.ColumnAt(from));
    }
    look.Columns = looks;
    return true;
}

}  // namespace editor
