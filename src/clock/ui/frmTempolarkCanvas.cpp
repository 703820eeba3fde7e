// What is painted in the clock's window, and when it is laid out anew.
#include <QPaintEvent>
#include <QPainter>

#include "clock/ui/DisabledVeil.h"
#include "clock/ui/frmTempolark.h"
#include "drawing/TimerMarks.h"

using clockcore::ClockState;

void frmTempolark::resizeEvent(QResizeEvent*) {
    TakeSurface();
}

void frmTempolark::TakeSurface() {
    canvas_.TakeSurface();
    mduUILib::Control& action = controls_.imgAction(1);
    action.Width = action.Height = static_cast<float>(drawing::TimerMarkSide(canvas_.Painted()));
    if (data_.State.IsDrawn()) {
        LayOutFace();
        tick_.RequestRedraw();
        overlays_.LayOutOverlays();
        face_.DrawClockFace();
    }
}

// So that the face follows the mouse that drags the window's edge; the redraw at the next tick
// comes all the same.
void frmTempolark::LayOutFace() {
    background_.ApplySurface();
    dial_.DrawDialNumbers(data_.IsAnalogue() ? drawing::DialParts::All : drawing::DialParts::None);
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
    if (!isEnabled()) {
        clockcore::DrawDisabledVeil(painter, event->region());
    }
}

void frmTempolark::Refresh() {
    face_.StillChanged();
    face_.DrawClockFace();
}

void frmTempolark::LayOutAgain() {
    if (data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
}

void frmTempolark::FinishMotions() {
    digital_.FinishMotion();
    background_.FinishWipe();
}
