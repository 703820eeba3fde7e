#pragma once

#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/ClockData.h"
#include "drawing/FaceParts.h"
#include "foundation/Controls.h"

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace clockcore {

/// What keys and clicks mean to a clock. Each handler tells whether the event was the clock's;
/// what was not is the window's own. Drags are `DragInput`'s.
class ClockInput {
public:
    /// @param form the window that the events come from, which shows cursors and hints
    ClockInput(QWidget& form, ClockData& data, const mduUILib::ClockControls& controls,
               drawing::CalculatorClock& calculator, ClockClicks& clicks)
        : form_(form), data_(data), controls_(controls), calculator_(calculator), clicks_(clicks) {}

    /// Tab on a calculator begins the typing of a time; from then on keys edit its lines, until one
    /// ends it (Esc). The menu key and Shift+F10 open the menu of the clock; all other keys are
    /// those of `ClockKeys`. A disabled clock has its own menu and types nothing.
    bool PressKey(const QKeyEvent& event);
    /// Tab belongs to the calculator; elsewhere it moves the focus.
    bool TakesTab() const { return data_.IsCalculator(); }

    /// The left button on the speaker or on an action. With Ctrl held a press on the speaker is
    /// left to those who drag it.
    bool PressMouse(const QMouseEvent& event);
    /// The left button on nothing but the ground toggles between maximised and normal.
    bool DoubleClickMouse(const QMouseEvent& event);
    /// Shows the menu of the part that was clicked, or that of a disabled clock.
    void ShowMenu(const QContextMenuEvent& event);

private:
    void ShowMenuInTheMiddle();
    bool PressCalculatorKey(const QKeyEvent& event);
    /// From logical pixels of the form to device pixels of the surface.
    QPointF SurfacePoint(const QPoint& position) const;

    QWidget& form_;
    ClockData& data_;
    const mduUILib::ClockControls& controls_;
    drawing::CalculatorClock& calculator_;
    ClockClicks& clicks_;
};

}  // namespace clockcore
