#include "editor/ui/GridPlaces.h"

#include <QHeaderView>
#include <QScrollBar>

#include "foundation/Twips.h"

int GridPlaces::TopRow() const {
    return model_.RowOf(view_.rowAt(0));
}

void GridPlaces::SetTopRow(int row) {
    view_.scrollTo(model_.index(model_.LineOf(row), 0), QAbstractItemView::PositionAtTop);
}

int GridPlaces::LeftCol() const {
    const bool isMirrored = view_.layoutDirection() == Qt::RightToLeft;
    return view_.columnAt(isMirrored ? view_.viewport()->width() - 1 : 0);
}

void GridPlaces::SetLeftCol(int col) {
    if (parts_.Data.HasCol(col)) {
        view_.horizontalScrollBar()->setValue(view_.horizontalHeader()->sectionPosition(col));
    }
}

bool GridPlaces::RowIsVisible(int row) const {
    if (IsInHeader(row)) {
        return true;
    }
    const int line = model_.LineOf(row);
    const int top = view_.rowViewportPosition(line);
    return line >= 0 && top < view_.viewport()->height() && top + view_.rowHeight(line) > 0;
}

bool GridPlaces::ColIsVisible(int col) const {
    const int left = view_.columnViewportPosition(col);
    return parts_.Data.HasCol(col) && left < view_.viewport()->width() &&
           left + view_.columnWidth(col) > 0;
}

double GridPlaces::RowPos(int row) const {
    if (IsInHeader(row)) {
        return view_.horizontalHeader()->y() * TwipsPerPixel;
    }
    const int line = model_.LineOf(row);
    const int top = view_.viewport()->y() + view_.rowViewportPosition(line);
    return line < 0 ? -1 : top * TwipsPerPixel;
}

double GridPlaces::ColPos(int col) const {
    const int left = view_.viewport()->x() + view_.columnViewportPosition(col);
    return parts_.Data.HasCol(col) ? left * TwipsPerPixel : -1;
}

double GridPlaces::ColWidth(int col) const {
    return view_.columnWidth(col) * TwipsPerPixel;
}

double GridPlaces::RowHeight(int row) const {
    const int line = model_.LineOf(row);
    const int height = IsInHeader(row) ? view_.horizontalHeader()->height() : view_.rowHeight(line);
    return IsInHeader(row) || line >= 0 ? height * TwipsPerPixel : 0;
}

QRect GridPlaces::CellRect(int row, int col) const {
    if (IsInHeader(row)) {
        const QHeaderView* header = view_.horizontalHeader();
        return {header->sectionViewportPosition(col), 0, header->sectionSize(col),
                header->height()};
    }
    const int line = model_.LineOf(row);
    return line < 0 ? QRect() : view_.CellRect(model_.index(line, col));
}

QRect GridPlaces::HeadingRect(int col) const {
    QRect rect = CellRect(0, col);
    const QWidget* from = IsInHeader(0) ? view_.horizontalHeader()->viewport() : view_.viewport();
    rect.moveTopLeft(from->mapTo(view_.parentWidget(), rect.topLeft()));
    return rect;
}

QRectF GridPlaces::Cell() const {
    const QRect cell = CellRect(parts_.Data.Row(), parts_.Data.Col());
    const QPoint corner = view_.viewport()->pos() + cell.topLeft();
    return {corner.x() * TwipsPerPixel, corner.y() * TwipsPerPixel, cell.width() * TwipsPerPixel,
            cell.height() * TwipsPerPixel};
}

QPoint GridPlaces::InView(const QPoint& point) const {
    return view_.viewport()->mapFrom(view_.parentWidget(), point);
}

int GridPlaces::RowAt(const QPoint& point) const {
    const QPoint place = InView(point);
    return place.y() < 0 && model_.HeaderRows() > 0 ? 0 : model_.RowOf(view_.rowAt(place.y()));
}

int GridPlaces::ColAt(const QPoint& point) const {
    return view_.columnAt(InView(point).x());
}
