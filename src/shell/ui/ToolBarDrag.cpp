// How hidden buttons come into view: the mouse, the wheel and the arrow keys on the toolbar.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolButton>

#include "shell/ui/ToolBar.h"

int ToolBar::Along(const QPoint& place) const {
    return IsVertical() ? place.y() : place.x();
}

// A fast hand is over the buttons again at its first move, so that the press counts, too.
void ToolBar::mousePressEvent(QMouseEvent* event) {
    hooks_.Hover(0);
    if (event->button() == Qt::LeftButton) {
        BeginDrag(Along(event->pos()));
    }
}

void ToolBar::BeginDrag(int along) {
    if (along > LastEdge()) {
        dragLast_ = along;
        dragStep_ = ExtentOf(slots_.front());
    }
}

void ToolBar::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) {
        return;
    }
    if (dragLast_ == 0) {
        BeginDrag(Along(event->pos()));
        return;
    }
    dragNow_ = Along(event->pos());
    UseCursor(true);
    ScrollToolButtons();
}

void ToolBar::ScrollToolButtons() {
    while (std::abs(dragNow_ - dragLast_) >= dragStep_) {
        const bool forward = dragNow_ < dragLast_;
        if (!Scroll(forward)) {
            dragLast_ = dragNow_;
            return;
        }
        dragLast_ += forward ? -dragStep_ : dragStep_;
    }
}

bool ToolBar::Scroll(bool forward) {
    const bool moved = row_.Scroll(forward);
    if (moved) {
        PlaceButtons();
    }
    return moved;
}

void ToolBar::mouseReleaseEvent(QMouseEvent*) {
    dragLast_ = 0;
    UseCursor(false);
}

void ToolBar::wheelEvent(QWheelEvent* event) {
    const QPoint turn = event->angleDelta();
    const int delta = turn.y() != 0 ? turn.y() : turn.x();
    if (delta != 0 && Scroll(delta < 0)) {
        hooks_.Hover(ButtonAt(event->position().toPoint()));  // it rests on another button now
    }
    event->accept();
}

void ToolBar::contextMenuEvent(QContextMenuEvent* event) {
    hooks_.Hover(0);
    hooks_.Menu(event->globalPos());
}

bool ToolBar::eventFilter(QObject* watched, QEvent* event) {
    const auto slot = std::find_if(slots_.begin(), slots_.end(),
                                   [watched](const Slot& each) { return each.Button == watched; });
    const int index = slot == slots_.end() ? 0 : static_cast<int>(slot - slots_.begin()) + 1;
    if (index == 0) {
        return QFrame::eventFilter(watched, event);
    }
    switch (event->type()) {
        case QEvent::Enter:
            hooks_.Hover(index);
            break;
        case QEvent::Leave:
        case QEvent::MouseButtonPress:
            hooks_.Hover(0);
            break;
        case QEvent::KeyPress: {
            const int key = static_cast<QKeyEvent*>(event)->key();
            const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
            if (forward || key == Qt::Key_Left || key == Qt::Key_Up) {
                MoveFocus(index, forward);
                return true;
            }
            break;
        }
        default:
            break;
    }
    return QFrame::eventFilter(watched, event);
}

// To the next button; one that is hidden is brought into view first.
void ToolBar::MoveFocus(int from, bool forward) {
    const int step = forward ? 1 : -1;
    for (int i = from + step; i >= 1 && i <= row_.Count(); i += step) {
        if (Button(i) == nullptr || !IsOffered(i)) {
            continue;
        }
        while (!row_.IsVisible(i) && Scroll(forward)) {
        }
        Button(i)->setFocus(Qt::TabFocusReason);
        return;
    }
}
