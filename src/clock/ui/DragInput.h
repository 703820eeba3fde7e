#pragma once

#include <QObject>
#include <QWidget>

#include "clock/Dragging.h"
#include "clock/PartDrag.h"
#include "clock/PartNudge.h"
#include "clock/ui/MousePointer.h"
#include "clock/ui/WindowMove.h"

class QKeyEvent;
class QMouseEvent;

namespace clockcore {

/// The mouse that drags a clock's parts, and the clock by its ground. As a filter of the form's
/// events it takes those of a drag for itself; a press that comes to nothing is left to others as
/// the click that it is.
///
/// However many moves the mouse makes, the clock follows once before each time that it is painted.
/// While something is dragged, no key does anything but Escape, which takes the drag back. So does
/// whatever takes the window away from under it: another size, a change of state, a clock that is
/// disabled, hidden or closed. On a disabled clock nothing is dragged, and the mouse is the arrow.
///
/// The mouse shows a hand over what can be dragged, a closed one while that moves, and over an hour
/// number the number's own mark, 16 logical pixels large.
class DragInput final : public QObject {
public:
    /// What is dragged, and where. All of it outlives this.
    struct Parts {
        QWidget& Form;         ///< of the clock, whose events are watched
        const QMdiArea* Area;  ///< the shell's frame for its children; null for a clock alone
        MdiPlacement& Placement;
        const ClockData& Data;
        mduUILib::ClockControls& Controls;
        PartDrag& Drag;
        PartNudge& Nudge;  ///< what the keys have pushed is kept before a drag begins
    };

    explicit DragInput(const Parts& parts);

    /// The mouse over an object, as a script or another window tells it: with the left button it
    /// drags the object, as far as that can be dragged, until the button is let go; without, it
    /// shows whether there is something to drag. Nothing on a disabled clock.
    /// @param object a control of this clock; another than the draggable ones only shows the mouse
    /// @param button 1 left; 0 none
    /// @param shift keys held: 1 Shift, 2 Ctrl, 4 Alt, added up
    /// @param x, y from the object's left top, in device pixels of the surface
    void MouseMoveObj(const mduUILib::Control& object, int button, int shift, double x, double y);

    /// Whether something is following the mouse at this moment.
    bool IsDragging() const { return dragging_.IsUnderWay(); }

    bool event(QEvent* event) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Take(QEvent* event);
    bool Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Release(const QMouseEvent& event);
    bool TakeKey(QKeyEvent& event);
    /// The pointer, with the left button held, in logical pixels of the form and of the screen.
    void MoveTo(const QPointF& local, const QPointF& global);
    DragObject ObjectAt(const QPointF& local, bool withControl) const;
    void Begin();
    void Follow();
    void Drop();
    void TakeBack();
    void ShowPointerAt(const QPointF& local, bool withControl);

    Parts parts_;
    WindowMove window_;
    Dragging dragging_;
    MousePointer pointer_;
    bool followsSoon_ = false;
};

}  // namespace clockcore
