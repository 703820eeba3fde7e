#include "clock/ui/TimerMouse.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <utility>

#include "clock/Dragging.h"
#include "clock/ui/DragEvents.h"

namespace clockcore {

TimerMouse::TimerMouse(QWidget& form, const ClockData& data,
                       const mduUILib::ClockControls& controls, MarkDrag& marks, Commands commands)
    : form_(form),
      data_(data),
      controls_(controls),
      marks_(marks),
      commands_(std::move(commands)) {}

bool TimerMouse::eventFilter(QObject*, QEvent* event) {
    // A menu that pops up takes the focus.
    if (EndsDrags(event->type()) || event->type() == QEvent::FocusOut) {
        TakeBack();
    }
    return form_.isEnabled() && Take(event);
}

bool TimerMouse::Take(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            return Press(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseMove:
            return Move(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return Release(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonDblClick:
            return DoubleClick(static_cast<QMouseEvent&>(*event));
        case QEvent::KeyPress:
            return static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape && TakeBack();
        case QEvent::ContextMenu:
            return TakeBack();
        default:
            return false;
    }
}

bool TimerMouse::Press(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return marks_.IsDragging();
    }
    const ClockHit hit = HitAt(event);
    pressedSpot_.reset();
    holdsMark_ = hit.Part == ClockPart::TimerMark;
    if (holdsMark_) {
        marks_.Press(hit.Index, SurfacePoint(event));
    } else if (hit.Part == ClockPart::Spot) {
        pressedSpot_ = {hit, event.position()};
    }
    return false;
}

bool TimerMouse::Move(const QMouseEvent& event) {
    if (!holdsMark_) {
        return false;
    }
    if ((event.buttons() & Qt::LeftButton) == 0) {
        TakeBack();  // the button was let go where nobody saw it
        return false;
    }
    const bool wasDragging = marks_.IsDragging();
    const double threshold = DragThreshold() * form_.devicePixelRatioF();
    if (const auto time = marks_.Move(SurfacePoint(event), threshold)) {
        QToolTip::showText(event.globalPosition().toPoint(), *time, &form_);
    } else if (wasDragging) {
        QToolTip::hideText();
    }
    return true;
}

void TimerMouse::Follow() {
    const bool wasDragging = marks_.IsDragging();
    if (!marks_.Follow() && wasDragging) {
        QToolTip::hideText();
    }
}

bool TimerMouse::Release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return marks_.IsDragging();
    }
    if (std::exchange(holdsMark_, false)) {
        if (marks_.Drop()) {
            QToolTip::hideText();
        }
        return true;
    }
    const std::optional<PressedSpot> pressed = std::exchange(pressedSpot_, std::nullopt);
    if (pressed && !IsDrag(pressed->At, event.position(), DragThreshold())) {
        commands_.ShowMenu(pressed->Spot, event.globalPosition().toPoint());
    }
    return false;
}

bool TimerMouse::DoubleClick(const QMouseEvent& event) {
    const ClockHit hit = HitAt(event);
    if (event.button() != Qt::LeftButton || hit.Part != ClockPart::TimerMark) {
        return false;
    }
    commands_.OpenMessageBox(hit.Index);
    return true;
}

bool TimerMouse::TakeBack() {
    holdsMark_ = false;
    pressedSpot_.reset();
    if (!marks_.Cancel()) {
        return false;
    }
    QToolTip::hideText();
    return true;
}

QPointF TimerMouse::SurfacePoint(const QMouseEvent& event) const {
    return event.position() * form_.devicePixelRatioF();
}

ClockHit TimerMouse::HitAt(const QMouseEvent& event) const {
    return data_.State.IsDrawn() ? PartAt(controls_, SurfacePoint(event)) : ClockHit{};
}

}  // namespace clockcore
