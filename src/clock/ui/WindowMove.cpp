#include "clock/ui/WindowMove.h"

#include <QWindow>
#include <algorithm>

namespace clockcore {

bool WindowMove::Begin() {
    const QWidget& outer = placement_.Outer();
    start_ = outer.pos();
    return area_ == nullptr && outer.windowHandle() != nullptr &&
           outer.windowHandle()->startSystemMove();
}

void WindowMove::Follow(const QPointF& way, const QPointF& pointer) {
    QPoint to = start_ + way.toPoint();
    if (area_ != nullptr) {
        const QWidget* view = area_->viewport();
        const QPoint at = view->mapFromGlobal(pointer.toPoint());
        const QPoint inside(std::clamp(at.x(), 0, std::max(view->width() - 1, 0)),
                            std::clamp(at.y(), 0, std::max(view->height() - 1, 0)));
        to += inside - at;
    }
    placement_.Outer().move(to);
}

void WindowMove::TakeBack() {
    placement_.Outer().move(start_);
}

}  // namespace clockcore
