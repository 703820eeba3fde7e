#include "editor/GridFormat.h"
#include "editor/GridLines.h"
#include "editor/GridRows.h"
#include "editor/GridSort.h"
#include "editor/GridText.h"
#include "editor/RowOperation.h"
#include "fuzz/MemoryFiles.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;
using editor::GridLook;

namespace {

constexpr int MostRows = 200;

/// The first line is the operations, two bytes each; the rest is the texts.
struct Input {
    QByteArray Steps;
    QString Text;
};

Input Split(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    return {bytes.left(end), end < 0 ? QString() : QString::fromUtf8(bytes.mid(end + 1))};
}

/// What stands at the marks is in the grid, and no row holds more than the grid has columns.
void CheckMarks(const EditGridData& grid) {
    Require(grid.HasRow(grid.Row()) && grid.HasRow(grid.RowSel()));
    Require(grid.HasCol(grid.Col()) && grid.HasCol(grid.ColSel()));
    Require(grid.LastEditRow < grid.Rows());
    const int source = grid.ClippedRow.Source;
    Require(source < 1 || (source >= grid.FixedRows() && grid.HasRow(source)));
    for (int row = 0; row < grid.Rows(); ++row) {
        Require(static_cast<int>(grid.RowAt(row).Cells.size()) <= grid.Cols());
        Require(static_cast<int>(grid.RowAt(row).ForeColors.size()) <= grid.Cols());
    }
}

/// A row as text comes back into another row, but for column 0; the headings stay.
void CheckTexts(EditGridData& grid, const QString& text) {
    const int row = grid.Rows() - 1;
    const QString before = grid.TextMatrix(row, 0);
    if (editor::StrToRow(grid, text, row)) {
        const QStringList cells = text.split(u',');
        for (int col = 1; col < grid.Cols(); ++col) {
            Require(grid.TextMatrix(row, col) == cells[col]);
        }
    }
    Require(grid.TextMatrix(row, 0) == before);
    const int rows = grid.Rows();
    editor::Str2Gird(grid, text);
    editor::Grid2Str(grid, text.left(3));
    Require(grid.Rows() == rows);
}

void RunRowOperation(EditGridData& grid, int operation) {
    const int rows = grid.Rows();
    editor::RowOperation(grid, operation);
    Require(grid.Rows() == rows);
}

void Run(EditGridData& grid, GridLook& look, int step, int value, const QString& text) {
    const int row = value % 16;
    const int col = value / 16 % 8;
    switch (step % 24) {
        case 0:
            return void(grid.SetRow(row));
        case 1:
            return void(grid.SetRowSel(row));
        case 2:
            return void(grid.SetCol(col));
        case 3:
            return void(grid.SetColSel(col));
        case 4:
            return void(grid.SetRows(row));
        case 5:
            return void(grid.SetCols(col));
        case 6:
            return RunRowOperation(grid, value % 10 - 2);
        case 7:
            return void(editor::InsertOneLine(grid, value % 2 == 0));
        case 8:
            return void(editor::Duplicate(grid));
        case 9:
            return void(editor::CopyRow(grid, row, col));
        case 10:
            return void(editor::ClearRow(grid, row));
        case 11:
            return editor::DeleteGridRows(grid);
        case 12:
            return editor::CompactColumn(grid);
        case 13:
            return void(editor::SetRowPosition(grid, row, col));
        case 14:
            return void(editor::SetColPosition(grid, look, row, col));
        case 15:
            return void(editor::Sort(grid, value % 10));
        case 16:
            return void(editor::AddItem(grid, text.left(20), row));
        case 17:
            return void(editor::AddRowDetail(grid, text.left(20)));
        case 18:
            return void(editor::RemoveItemByName(grid, grid.TextMatrix(row, 0)));
        case 19:
            return editor::RefreshItemNumber(grid);
        case 20:
            return void(editor::SetRowStrikeThrough(grid, value % 2 == 0));
        case 21:
            return void(editor::SetRowForeColor(grid, row, value));
        case 22:
            grid.LastEditRow = grid.HasRow(row) ? row : 0;
            return;
        case 23:
            return CheckTexts(grid, text);
        default:
            return;
    }
}

}  // namespace

/// A grid of a few rows goes through any operations, with a cut and a last edit that follow, and is
/// written and read as text.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const Input input =
        Split(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    EditGridData grid({5, 3, 1, 0});
    GridLook look;
    editor::SelectGridAll(grid);
    grid.SetClip(input.Text);
    for (qsizetype step = 0; step + 1 < input.Steps.size() && grid.Rows() < MostRows; step += 2) {
        Run(grid, look, static_cast<unsigned char>(input.Steps[step]),
            static_cast<unsigned char>(input.Steps[step + 1]), input.Text);
        if (grid.Rows() < 2 || grid.Cols() < 1) {
            grid = EditGridData({5, 3, 1, 0});
        }
        CheckMarks(grid);
    }
    return 0;
}
