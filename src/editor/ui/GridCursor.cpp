#include "editor/ui/GridCursor.h"

#include <QScopedValueRollback>

namespace {

/// The end of a range that lies across from the current place.
int Across(int first, int last, int current) {
    return current == first ? last : first;
}

QItemSelectionModel::SelectionFlag WholeOf(editor::SelectionMode mode) {
    switch (mode) {
        case editor::SelectionMode::ByRow:
            return QItemSelectionModel::Rows;
        case editor::SelectionMode::ByColumn:
            return QItemSelectionModel::Columns;
        case editor::SelectionMode::Free:
            break;
    }
    return QItemSelectionModel::NoUpdate;
}

}  // namespace

GridCursor::Place GridCursor::InData() const {
    const editor::EditGridData& data = parts_.Data;
    return {data.Row(), data.Col(), data.RowSel(), data.ColSel()};
}

// The cell of the view is the moving end; the data's own stays where the selection began.
GridCursor::Place GridCursor::InView(GridView& view) const {
    const QModelIndex current = view.currentIndex();
    const int row = model_.RowOf(current.row());
    Place place{row, current.column(), row, current.column()};
    const QItemSelection selection = view.selectionModel()->selection();
    if (selection.size() != 1 || !selection.contains(current)) {
        return place;
    }
    const QItemSelectionRange& range = selection.first();
    if (parts_.Data.Mode != editor::SelectionMode::ByColumn) {
        place.Row = model_.RowOf(Across(range.top(), range.bottom(), current.row()));
    }
    if (parts_.Data.Mode != editor::SelectionMode::ByRow) {
        place.Col = Across(range.left(), range.right(), current.column());
    }
    return place;
}

void GridCursor::Put(const Place& place) {
    editor::EditGridData& data = parts_.Data;
    data.SetRow(place.Row);
    data.SetCol(place.Col);
    data.SetRowSel(place.RowSel);
    data.SetColSel(place.ColSel);
}

void GridCursor::TakeFrom(GridView& view) {
    if (moves_ || !view.currentIndex().isValid()) {
        return;
    }
    const Place place = InView(view);
    if (place == InData()) {
        return;
    }
    const bool isOtherCell = !place.IsSameCell(InData());
    if (isOtherCell) {
        endEdit_();
        parts_.Host.LeaveCell();
    }
    Put(place);
    told_ = place;
    if (isOtherCell) {
        parts_.Host.EnterCell();
        parts_.Host.RowColChange();
    }
    parts_.Host.SelChange();
}

void GridCursor::ShowIn(GridView& view) {
    const Place place = InData();
    {
        const QScopedValueRollback<bool> moving(moves_, true);
        const QModelIndex cell = model_.index(model_.LineOf(place.Row), place.Col);
        const QModelIndex end = model_.index(model_.LineOf(place.RowSel), place.ColSel);
        view.selectionModel()->setCurrentIndex(
            cell, QItemSelectionModel::ClearAndSelect | WholeOf(parts_.Data.Mode));
        if (cell.isValid() && end.isValid() && end != cell) {
            view.selectionModel()->select(
                QItemSelection(cell, end),
                QItemSelectionModel::ClearAndSelect | WholeOf(parts_.Data.Mode));
            view.selectionModel()->setCurrentIndex(end, QItemSelectionModel::NoUpdate);
        }
    }
    const Place before = std::exchange(told_, place);
    if (before.Row >= 0 && before != place) {
        Tell(before);
    }
}

void GridCursor::Tell(const Place& before) {
    if (!told_.IsSameCell(before)) {
        parts_.Host.LeaveCell();
        parts_.Host.EnterCell();
        parts_.Host.RowColChange();
    }
    parts_.Host.SelChange();
}
