#include "clock/ui/DragInput.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>

#include "clock/ClockHit.h"

namespace clockcore {

namespace {

constexpr int LeftButton = 1;  // as scripts count them
constexpr int ControlKey = 2;

const QEvent::Type FollowEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

bool WithControl(const QMouseEvent& event) {
    return (event.modifiers() & Qt::ControlModifier) != 0;
}

/// Events that take the window away from under a drag.
bool EndsDrags(QEvent::Type type) {
    switch (type) {
        case QEvent::Resize:
        case QEvent::Hide:
        case QEvent::Close:
        case QEvent::EnabledChange:
        case QEvent::WindowStateChange:
        case QEvent::WindowDeactivate:
            return true;
        default:
            return false;
    }
}

}  // namespace

DragInput::DragInput(QWidget& form, const QMdiArea* area, MdiPlacement& placement,
                     const ClockData& data, mduUILib::ClockControls& controls, PartDrag& part)
    : form_(form),
      data_(data),
      controls_(controls),
      part_(part),
      window_(placement, area),
      pointer_(form) {
    form.installEventFilter(this);
}

bool DragInput::eventFilter(QObject*, QEvent* event) {
    if (EndsDrags(event->type())) {
        TakeBack();
    }
    if (form_.isEnabled()) {
        return Take(event);
    }
    pointer_.ShowArrow();
    return false;
}

bool DragInput::Take(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            return Press(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseMove:
            return Move(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return Release(static_cast<QMouseEvent&>(*event));
        case QEvent::ContextMenu:
            return IsDragging();
        case QEvent::KeyPress:
            if (IsDragging() && static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape) {
                TakeBack();
                return true;
            }
            return false;
        default:
            return false;
    }
}

// Behind all moves that wait already, and before the window is painted with them.
bool DragInput::event(QEvent* event) {
    if (event->type() == FollowEvent) {
        followsSoon_ = false;
        Follow();
        return true;
    }
    return QObject::event(event);
}

bool DragInput::Press(const QMouseEvent& event) {
    if (IsDragging()) {
        return true;
    }
    if (event.button() == Qt::LeftButton) {
        const DragObject object = ObjectAt(event.position(), WithControl(event));
        dragging_.Press(object,
                        object == DragObject::Window ? event.globalPosition() : event.position());
    }
    return false;
}

bool DragInput::Move(const QMouseEvent& event) {
    if ((event.buttons() & Qt::LeftButton) != 0) {
        MoveTo(event.position(), event.globalPosition());
        return IsDragging();
    }
    TakeBack();  // the button was let go where nobody saw it
    ShowPointerAt(event.position(), WithControl(event));
    return false;
}

bool DragInput::Release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return IsDragging();
    }
    MoveTo(event.position(), event.globalPosition());
    const bool wasDrag = IsDragging();
    Drop();
    ShowPointerAt(event.position(), WithControl(event));
    return wasDrag;
}

void DragInput::MouseMoveObj(const mduUILib::Control& object, int button, int shift, double x,
                             double y) {
    if (!form_.isEnabled()) {
        return;
    }
    const QRectF rect = object.Rect();
    const DragObject what = ObjectOf(object, controls_);
    const QPointF at = rect.topLeft() + QPointF(x, y);
    const QPointF local = at / form_.devicePixelRatioF();
    if (button == LeftButton) {
        if (dragging_.Object() == DragObject::None) {
            dragging_.Press(what, local);
        }
        MoveTo(local, form_.mapToGlobal(local));
        return;
    }
    Drop();
    if (what != DragObject::None && object.Visible && rect.contains(at)) {
        pointer_.ShowHand(false);
    } else {
        ShowPointerAt(local, (shift & ControlKey) != 0);
    }
}

void DragInput::MoveTo(const QPointF& local, const QPointF& global) {
    const bool wasDrag = IsDragging();
    const QPointF& point = dragging_.Object() == DragObject::Window ? global : local;
    if (!dragging_.Move(point, QGuiApplication::styleHints()->startDragDistance())) {
        return;
    }
    if (!wasDrag) {
        Begin();
    }
    if (IsDragging() && !followsSoon_) {
        followsSoon_ = true;
        QCoreApplication::postEvent(this, new QEvent(FollowEvent), Qt::LowEventPriority);
    }
}

DragObject DragInput::ObjectAt(const QPointF& local, bool withControl) const {
    if (!data_.State.IsDrawn()) {
        return DragObject::None;
    }
    const double ratio = form_.devicePixelRatioF();
    const DragObject object = DragObjectAt(
        controls_, local * ratio, ReadDragGround(data_, QSizeF(form_.size()) * ratio), withControl);
    return object == DragObject::Window && !window_.CanMove() ? DragObject::None : object;
}

void DragInput::Begin() {
    pointer_.ShowHand(true);
    if (dragging_.Object() != DragObject::Window) {
        part_.Begin(dragging_.Object());
    } else if (window_.Begin()) {
        dragging_.End();
        pointer_.ShowArrow();
    }
}

void DragInput::Follow() {
    if (!IsDragging()) {
        return;
    }
    if (dragging_.Object() == DragObject::Window) {
        window_.Follow(dragging_.Way(), dragging_.Pointer());
    } else if (!part_.Follow(dragging_.Pointer(), dragging_.Way())) {
        dragging_.End();
        pointer_.ShowArrow();
    }
}

void DragInput::Drop() {
    Follow();
    const bool wasPart = IsDragging() && dragging_.Object() != DragObject::Window;
    dragging_.End();
    if (wasPart) {
        part_.Drop();
    }
}

void DragInput::TakeBack() {
    const DragObject object = IsDragging() ? dragging_.Object() : DragObject::None;
    dragging_.End();
    if (object == DragObject::Window) {
        window_.TakeBack();
    } else if (object != DragObject::None) {
        part_.TakeBack();
    }
    if (object != DragObject::None) {
        pointer_.ShowArrow();
    }
}

// A hand all over the ground would say little: there it shows once something moves.
void DragInput::ShowPointerAt(const QPointF& local, bool withControl) {
    const QPointF point = local * form_.devicePixelRatioF();
    const ClockHit hit = PartAt(controls_, point);
    if (hit.Part == ClockPart::HourNumber) {
        pointer_.ShowMark(controls_.lblHour(hit.Index).Picture);
        return;
    }
    const DragObject object = ObjectAt(local, withControl);
    const bool isGround = object == DragObject::Dial || object == DragObject::Window;
    if (object == DragObject::None || isGround) {
        pointer_.ShowArrow();
    } else {
        pointer_.ShowHand(false);
    }
}

}  // namespace clockcore
