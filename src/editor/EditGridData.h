#pragma once

#include <span>

#include "editor/GridRow.h"

namespace editor {

/// What a grid is made with. Fixed rows and columns lie at the top and at the left; they hold
/// headings, and no operation removes or sorts them.
struct GridSize {
    int Rows = 2;
    int Cols = 2;
    int FixedRows = 1;
    int FixedCols = 1;

    static constexpr int MostRows = 1'000'000;
    static constexpr int MostCols = 1'000;

    /// Nothing is negative or above the most, and what is fixed fits in. A grid may be empty.
    bool IsPossible() const;
};

/// A block of cells, ends included. An empty one ends before it begins.
struct CellBlock {
    int Top = 0;
    int Left = 0;
    int Bottom = -1;
    int Right = -1;
};

/// How a press and a move select: cells, whole rows, whole columns. Here it is only kept.
enum class SelectionMode { Free = 0, ByRow = 1, ByColumn = 2 };

/// The data of a grid: texts and what else a row holds, the current cell, and the selection from
/// there to another cell. Rows and columns count from 0. Each setter refuses what is out of its
/// range, changes nothing then, and answers false.
///
///     EditGridData grid({4, 3, 1, 0});   // a heading, three rows of data, three columns
///     grid.SetTextMatrix(1, 2, "Red");
///     grid.SetRow(1);                    // selects that one cell
///     grid.SetColSel(2);
///     grid.Clip();                       // "\t\tRed"
class EditGridData {
public:
    /// A size that is not possible gives the default one. The current cell is the first that is
    /// not fixed.
    explicit EditGridData(GridSize size = {});

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return cols_; }
    int FixedRows() const { return fixedRows_; }
    int FixedCols() const { return fixedCols_; }
    /// What is added is empty; what is taken away goes from the end. The current cell stays within.
    bool SetRows(int rows);
    bool SetCols(int cols);
    bool SetFixedRows(int rows);
    bool SetFixedCols(int cols);

    bool HasRow(int row) const { return row >= 0 && row < Rows(); }
    bool HasCol(int col) const { return col >= 0 && col < cols_; }

    /// The text of a cell; empty where there is none.
    QString TextMatrix(int row, int col) const;
    bool SetTextMatrix(int row, int col, const QString& text);
    /// The same by one number, which counts along the rows.
    QString TextArray(int index) const;
    bool SetTextArray(int index, const QString& text);

    /// A whole row; an empty one where there is none.
    const GridRow& RowAt(int row) const;
    /// Gives a row what another one holds. Its height stays.
    bool PutRow(int row, const GridRow& content);
    int RowData(int row) const { return RowAt(row).Data; }
    bool SetRowData(int row, int data);
    int RowHeight(int row) const { return RowAt(row).Height; }  ///< twips
    bool SetRowHeight(int row, int height);                     ///< 0 hides the row
    bool IsStruckThrough(int row) const { return RowAt(row).StrikeThrough; }
    bool SetStruckThrough(int row, bool state);
    /// Whether a row takes an editor, as far as the row is concerned.
    bool IsRowEditable(int row) const { return !RowAt(row).StrikeThrough && !RowAt(row).Locked; }
    bool SetEditableRow(int row, bool state);
    int CellForeColor(int row, int col) const;  ///< red in the low byte, or `NoForeColor`
    bool SetCellForeColor(int row, int col, int color);

    /// The current cell, and the other end of the selection. A new current row or column ends the
    /// selection: it is then that one cell.
    int Row() const { return row_; }
    int Col() const { return col_; }
    int RowSel() const { return rowSel_; }
    int ColSel() const { return colSel_; }
    bool SetRow(int row);
    bool SetCol(int col);
    bool SetRowSel(int row);
    bool SetColSel(int col);
    CellBlock Selection() const;

    /// Clip text: a tab between the columns of a row, a carriage return between rows. Nothing is
    /// escaped, so that a cell that holds one of these reads as two.
    QString Clip() const;
    QString RowClipText(int row) const;  ///< the same of all columns of one row
    /// Fills the selection from its top left: pieces beyond it are dropped, and cells that get
    /// none keep their text. A line feed behind a carriage return belongs to it.
    void SetClip(const QString& text);

    /// Takes a row away. The current row, the last edit and a pending cut stay with the rows that
    /// they stood at. A fixed row is refused.
    bool RemoveItem(int row);
    /// Puts rows in another order: the row @p first + i becomes what @p order [i] was, the numbers
    /// of the same rows in any order. The last edit and a pending cut go along, the current row
    /// keeps its place.
    void Reorder(int first, std::span<const int> order);
    /// Tells that what stood in a row has moved to another one and has taken its place, so that the
    /// last edit and a pending cut go along.
    void FollowMove(int from, int to);

    int LastEditRow = 0;  ///< the row of the last edit; below 1 for none, -1 once it is gone
    RowClip ClippedRow;
    SelectionMode Mode = SelectionMode::Free;

private:
    GridRow& At(int row) { return rows_[static_cast<std::size_t>(row)]; }
    void KeepCursorWithin();
    void ForgetMarks(int first, int last);

    std::vector<GridRow> rows_;
    int cols_ = 0;
    int fixedRows_ = 0;
    int fixedCols_ = 0;
    int row_ = 0;
    int col_ = 0;
    int rowSel_ = 0;
    int colSel_ = 0;
};

}  // namespace editor
