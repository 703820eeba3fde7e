// What the window system tells a clock's window.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "clock/ui/DisabledVeil.h"
#include "clock/ui/KeyEvents.h"
#include "clock/ui/frmTempolark.h"

using clockcore::ClockState;

void frmTempolark::resizeEvent(QResizeEvent*) {
    TakeSurface();
}

void frmTempolark::TakeSurface() {
    canvas_.TakeSurface();
    look_.FitSurface();
    timersOnDial_.Follow();
}

// The surface holds the whole picture. A part that we did not change ourselves has come to light:
// the clock is asked to redraw itself at its next tick.
void frmTempolark::paintEvent(QPaintEvent* event) {
    if (!canvas_.FitsTheScreen()) {
        TakeSurface();  // the window has come to another screen
    }
    if (!canvas_.Exposed(event->region()).isEmpty() && data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QImage shown = canvas_.ShownPicture();
    const double ratio = devicePixelRatioF();
    for (const QRect& part : event->region()) {
        const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        painter.drawImage(QRectF(part), shown, source);
    }
    walk_.PaintRing(painter);
    if (!isEnabled()) {
        clockcore::DrawDisabledVeil(painter, event->region());
    }
}

bool frmTempolark::event(QEvent* event) {
    if (event->type() == QEvent::ContextMenu && !isEnabled()) {
        input_.ShowMenu(*static_cast<QContextMenuEvent*>(event));
        event->accept();
        return true;
    }
    // In a shell the frame tells of it.
    if (event->type() == QEvent::WindowActivate && area_ == nullptr && data_.State.HasBegun()) {
        Activate();
    }
    if (event->type() == QEvent::ShortcutOverride && IsBound(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    // A disabled clock's come from the shell.
    if (event->type() == QEvent::KeyPress && input_.PressKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick &&
        input_.DoubleClickMouse(*static_cast<QMouseEvent*>(event))) {
        return true;
    }
    return QWidget::event(event);
}

// A key that the user has put on a command of the clock goes before the menus of the shell.
bool frmTempolark::IsBound(const QKeyEvent& event) const {
    return keys_.IsBound(clockcore::KeyCodeOf(event.key()), clockcore::ShiftState(event));
}

void frmTempolark::mousePressEvent(QMouseEvent* event) {
    if (!input_.PressMouse(*event)) {
        QWidget::mousePressEvent(event);
    }
}

void frmTempolark::contextMenuEvent(QContextMenuEvent* event) {
    input_.ShowMenu(*event);
}

bool frmTempolark::focusNextPrevChild(bool next) {
    return !input_.TakesTab() && QWidget::focusNextPrevChild(next);
}
