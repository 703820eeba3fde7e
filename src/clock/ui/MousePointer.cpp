#include "clock/ui/MousePointer.h"

#include <QPixmap>

namespace clockcore {

namespace {

constexpr int Side = 16;  // logical pixels

QCursor MarkCursor(const QImage& mark) {
    return QCursor(
        QPixmap::fromImage(mark.scaled(Side, Side, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

}  // namespace

void MousePointer::ShowMark(const std::shared_ptr<const QImage>& mark) {
    if (mark && !mark->isNull()) {
        Show(Qt::BitmapCursor, mark);
    } else {
        ShowArrow();
    }
}

void MousePointer::Show(Qt::CursorShape shape, const std::shared_ptr<const QImage>& mark) {
    if (shape == shape_ && mark == mark_) {
        return;
    }
    shape_ = shape;
    mark_ = mark;
    if (mark) {
        form_.setCursor(MarkCursor(*mark));
    } else if (shape == Qt::ArrowCursor) {
        form_.unsetCursor();
    } else {
        form_.setCursor(shape);
    }
}

}  // namespace clockcore
