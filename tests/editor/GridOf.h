#pragma once

#include "editor/EditGridData.h"

/// A grid from its rows, whose cells "|" parts. The first is a heading, and no column is fixed.
inline editor::EditGridData GridOf(const QStringList& rows, int cols) {
    editor::EditGridData grid({static_cast<int>(rows.size()), cols, 1, 0});
    for (int row = 0; row < rows.size(); ++row) {
        const QStringList cells = rows[row].split(u'|');
        for (int col = 0; col < cells.size(); ++col) {
            grid.SetTextMatrix(row, col, cells[col]);
        }
    }
    return grid;
}

/// The rows behind the heading in the same form.
inline QStringList RowsOf(const editor::EditGridData& grid) {
    QStringList rows;
    for (int row = 1; row < grid.Rows(); ++row) {
        rows += grid.RowClipText(row).replace(u'\t', u'|');
    }
    return rows;
}
