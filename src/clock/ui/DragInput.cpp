#include "clock/ui/DragInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "clock/ClockHit.h"
#include "clock/ui/DragEvents.h"

namespace clockcore {

namespace {

constexpr int LeftButton = 1;  // as scripts count them
constexpr int ControlKey = 2;

const QEvent::Type FollowEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

bool WithControl(const QMouseEvent& event) {
    return (event.modifiers() & Qt::ControlModifier) != 0;
}

}  // namespace

DragInput::DragInput(const Parts& parts)
    : parts_(parts), window_(parts.Placement, parts.Area), pointer_(parts.Form) {}

bool DragInput::eventFilter(QObject*, QEvent* event) {
    if (EndsDrags(event->type())) {
        TakeBack();
    }
    if (parts_.Form.isEnabled()) {
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
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            return TakeKey(static_cast<QKeyEvent&>(*event));
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

// A key that is overridden comes back as a press, and is no shortcut of the shell.
bool DragInput::TakeKey(QKeyEvent& event) {
    if (!IsDragging()) {
        return false;
    }
    event.accept();
    if (event.type() == QEvent::KeyPress && event.key() == Qt::Key_Escape) {
        TakeBack();
    }
    return true;
}

void DragInput::MouseMoveObj(const mduUILib::Control& object, int button, int shift, double x,
                             double y) {
    if (!parts_.Form.isEnabled()) {
        return;
    }
    const QRectF rect = object.Rect();
    const DragObject what = ObjectOf(object, parts_.Controls);
    const QPointF at = rect.topLeft() + QPointF(x, y);
    const QPointF local = at / parts_.Form.devicePixelRatioF();
    if (button == LeftButton) {
        if (dragging_.Object() == DragObject::None) {
            dragging_.Press(what, local);
        }
        MoveTo(local, parts_.Form.mapToGlobal(local));
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
    if (!dragging_.Move(point, DragThreshold())) {
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
    if (!parts_.Data.State.IsDrawn()) {
        return DragObject::None;
    }
    const double ratio = parts_.Form.devicePixelRatioF();
    const DragObject object =
        DragObjectAt(parts_.Controls, local * ratio,
                     ReadDragGround(parts_.Data, QSizeF(parts_.Form.size()) * ratio), withControl);
    return object == DragObject::Window && !window_.CanMove() ? DragObject::None : object;
}

void DragInput::Begin() {
    parts_.Nudge.Keep();
    pointer_.ShowHand(true);
    if (dragging_.Object() != DragObject::Window) {
        parts_.Drag.Begin(dragging_.Object());
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
    } else if (!parts_.Drag.Follow(dragging_.Pointer(), dragging_.Way())) {
        dragging_.End();
        pointer_.ShowArrow();
    }
}

void DragInput::Drop() {
    Follow();
    const bool wasPart = IsDragging() && dragging_.Object() != DragObject::Window;
    dragging_.End();
    if (wasPart) {
        parts_.Drag.Drop();
    }
}

void DragInput::TakeBack() {
    const DragObject object = IsDragging() ? dragging_.Object() : DragObject::None;
    dragging_.End();
    if (object == DragObject::Window) {
        window_.TakeBack();
    } else if (object != DragObject::None) {
        parts_.Drag.TakeBack();
    }
    if (object != DragObject::None) {
        pointer_.ShowArrow();
    }
}

// A hand all over the ground would say little: there it shows once something moves.
void DragInput::ShowPointerAt(const QPointF& local, bool withControl) {
    const QPointF point = local * parts_.Form.devicePixelRatioF();
    const ClockHit hit = PartAt(parts_.Controls, point);
    if (hit.Part == ClockPart::HourNumber) {
        pointer_.ShowMark(parts_.Controls.lblHour(hit.Index).Picture);
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
