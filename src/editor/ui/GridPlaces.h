#pragma once

#include "editor/ui/GridView.h"

/// Where the rows and columns of a grid are on the screen. Measures are in twips from the grid's
/// left top, 15 to a pixel; rows and columns are those of the data.
class GridPlaces final {
public:
    GridPlaces(const GridParts& parts, GridModel& model, GridView& view)
        : parts_(parts), model_(model), view_(view) {}

    int TopRow() const;  ///< the first row that is seen below the headings; -1 for none
    void SetTopRow(int row);
    int LeftCol() const;
    void SetLeftCol(int col);
    /// Whether a row or a column is seen, be it in part.
    bool RowIsVisible(int row) const;
    bool ColIsVisible(int col) const;
    double RowPos(int row) const;  ///< the upper edge, which may lie out of sight; -1 where hidden
    double ColPos(int col) const;
    double ColWidth(int col) const;
    double RowHeight(int row) const;  ///< as it is shown; 0 where hidden

    /// The place of the current cell, without the heading of its row.
    double CellLeft() const { return Cell().x(); }
    double CellTop() const { return Cell().y(); }
    double CellWidth() const { return Cell().width(); }
    double CellHeight() const { return Cell().height(); }

    /// A cell without the heading of its row, in pixels of the view's viewport; a cell of row 0 in
    /// pixels of its header where it is one. Empty for what is hidden.
    QRect CellRect(int row, int col) const;
    /// A heading in pixels of the grid.
    QRect HeadingRect(int col) const;

    /// The cell under a point of the grid, in pixels; -1 for none.
    int RowAt(const QPoint& point) const;
    int ColAt(const QPoint& point) const;

private:
    QRectF Cell() const;
    QPoint InView(const QPoint& point) const;
    bool IsInHeader(int row) const { return row == 0 && model_.HeaderRows() > 0; }

    const GridParts& parts_;
    GridModel& model_;
    GridView& view_;
};
