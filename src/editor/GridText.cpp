#include "editor/GridText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace editor {

QString Grid2Str(EditGridData& grid, const QString& delimiter) {
    grid.Mode = SelectionMode::Free;
    const QString trimmed = delimiter.trimmed();
    const QString rowEnd = trimmed.isEmpty() ? u"\r\n"_s : trimmed;
    const int endColumn = std::min(1, grid.Cols() - 1);
    QString text;
    for (int row = 1; row < grid.Rows(); ++row) {
        grid.SetRow(row);
        text += CurrentRowStr(grid) + rowEnd;
        if (grid.TextMatrix(row, endColumn).isEmpty()) {
            break;
        }
    }
    grid.Mode = SelectionMode::ByColumn;
    return text;
}

void Str2Gird(EditGridData& grid, const QString& text) {
    grid.SetClip(text);
}

QString CurrentRowStr(EditGridData& grid) {
    grid.SetCol(0);
    grid.SetColSel(grid.Cols() - 1);
    return grid.Clip();
}

std::optional<QString> RowToStr(const EditGridData& grid, int row, int stopCol) {
    if (!grid.HasRow(row)) {
        return std::nullopt;
    }
    QString text = grid.TextMatrix(row, 0);
    for (int col = 1; col < grid.Cols() && (stopCol <= 0 || col != stopCol); ++col) {
        text += u',' + grid.TextMatrix(row, col);
    }
    return text;
}

bool StrToRow(EditGridData& grid, const QString& text, int row) {
    const QStringList elements = text.split(u',');
    for (int col = 1; col < grid.Cols(); ++col) {
        if (col >= elements.size() || !grid.SetTextMatrix(row, col, elements[col])) {
            return false;
        }
    }
    return grid.HasRow(row);
}

}  // namespace editor
