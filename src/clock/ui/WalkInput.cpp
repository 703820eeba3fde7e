#include "clock/ui/WalkInput.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include "clock/ui/KeyEvents.h"

namespace clockcore {

namespace {

// Logical pixels.
constexpr double RingGap = 3;
constexpr double RingRadius = 4;

constexpr struct {
    Qt::Key Key;
    int Across, Down;  // percent
} Arrows[] = {
    {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};

bool IsArrow(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

void DrawRing(QPainter& painter, const QRectF& ring) {
    const auto line = [&](double inset, const QColor& colour) {
        painter.setPen(QPen(colour, 1));
        painter.drawRoundedRect(ring.adjusted(inset, inset, -inset, -inset), RingRadius,
                                RingRadius);
    };
    line(0.5, QColor(16, 24, 48));
    line(1.5, Qt::white);
}

}  // namespace

bool WalkInput::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::EnabledChange:
        case QEvent::Hide:
        case QEvent::Close:
            Leave();
            return false;
        default:
            return parts_.Form.isEnabled() && Take(event);
    }
}

bool WalkInput::Take(QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            return PressKey(static_cast<QKeyEvent&>(*event));
        case QEvent::KeyRelease: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            if (Focus() && IsArrow(key.key()) && !key.isAutoRepeat()) {
                parts_.Nudge.Keep();
            }
            return false;
        }
        case QEvent::ContextMenu: {
            const auto& menu = static_cast<const QContextMenuEvent&>(*event);
            return menu.reason() == QContextMenuEvent::Keyboard && ShowMenu();
        }
        case QEvent::FocusIn:
            TakeFocus(static_cast<QFocusEvent&>(*event));
            return false;
        case QEvent::FocusOut:
            if (static_cast<QFocusEvent&>(*event).reason() != Qt::PopupFocusReason) {
                Leave();
            }
            return false;
        case QEvent::MouseButtonPress:
            Leave();
            return false;
        default:
            return false;
    }
}

bool WalkInput::PressKey(const QKeyEvent& event) {
    if (!parts_.Form.isEnabled()) {
        return false;
    }
    if (IsMenuKey(event)) {
        return ShowMenu();
    }
    if (!IsPlain(event)) {
        return false;
    }
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
        return !parts_.Data.IsCalculator() && Step(event.key() == Qt::Key_Tab);
    }
    const bool withShift = (event.modifiers() & Qt::ShiftModifier) != 0;
    return Focus() && !withShift && PressWalkKey(event.key());
}

bool WalkInput::PressWalkKey(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return ShowMenu();
        case Qt::Key_Escape:
            Leave();
            return true;
        default:
            return IsArrow(key) && Push(key);
    }
}

bool WalkInput::Step(bool forward) {
    parts_.Nudge.Keep();
    const bool stepped =
        parts_.Data.State.IsDrawn() &&
        walk_.Step(PartsInOrder(parts_.Data, parts_.Controls, Scale(), parts_.Timers), forward);
    ShowRing();
    return stepped;
}

bool WalkInput::Push(int key) {
    const DragObject object =
        PushedWith(Focus()->Part, ReadDragGround(parts_.Data, QSizeF(Scale())));
    if (object == DragObject::None) {
        return false;
    }
    for (const auto& arrow : Arrows) {
        if (arrow.Key == key) {
            parts_.Nudge.Nudge(object, {arrow.Across, arrow.Down});
        }
    }
    ShowRing();
    return true;
}

// Whoever comes by Tab walks on: from the front to the first part, from behind to the last.
void WalkInput::TakeFocus(const QFocusEvent& event) {
    const bool forward = event.reason() == Qt::TabFocusReason;
    if ((forward || event.reason() == Qt::BacktabFocusReason) && !parts_.Data.IsCalculator()) {
        walk_.Leave();
        Step(forward);
    }
}

void WalkInput::Leave() {
    if (Focus()) {
        parts_.Nudge.Keep();
        walk_.Leave();
        ShowRing();
    }
}

bool WalkInput::ShowMenu() {
    const QRectF ring = RingPlace();
    const bool isThere = Focus() && !ring.isEmpty();
    const QPointF at = isThere ? ring.center() : QRectF(parts_.Form.rect()).center();
    parts_.Nudge.Keep();
    parts_.Clicks.ShowMenu(isThere ? *Focus() : ClockHit(), parts_.Form.mapToGlobal(at).toPoint());
    return true;
}

void WalkInput::ShowRing() {
    const QRectF place = RingPlace();
    if (place != ring_) {
        const double ratio = parts_.Form.devicePixelRatioF();
        QRegion changed;
        for (const QRectF& ring : {ring_, place}) {
            changed += QRectF(ring.topLeft() * ratio, ring.size() * ratio).toAlignedRect();
        }
        ring_ = place;
        parts_.Canvas.Present(changed);
    }
    const QString name = Focus() ? PartName(parts_.Controls, *Focus()) : QString();
    if (parts_.Form.accessibleDescription() != name) {
        parts_.Form.setAccessibleDescription(name);
    }
}

QRectF WalkInput::RingPlace() const {
    if (!Focus()) {
        return {};
    }
    const double ratio = parts_.Form.devicePixelRatioF();
    const QRectF part = PlaceOfPart(parts_.Data, parts_.Controls, Scale(), *Focus());
    if (part.isEmpty()) {
        return {};
    }
    const QRectF logical(part.topLeft() / ratio, part.size() / ratio);
    const QRectF around(logical.adjusted(-RingGap, -RingGap, RingGap, RingGap).toAlignedRect());
    return around & QRectF(parts_.Form.rect());
}

// A part that has moved or gone by itself is found here, since that has painted its place anew.
void WalkInput::PaintRing(QPainter& painter) {
    ShowRing();
    if (ring_.isEmpty()) {
        return;
    }
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    DrawRing(painter, ring_);
    painter.restore();
}

QSize WalkInput::Scale() const {
    return (QSizeF(parts_.Form.size()) * parts_.Form.devicePixelRatioF()).toSize();
}

}  // namespace clockcore
