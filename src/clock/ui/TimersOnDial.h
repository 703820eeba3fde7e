#pragma once

#include "clock/DialTimers.h"
#include "clock/MarkDrag.h"
#include "clock/MessageTyping.h"
#include "clock/PartMenus.h"
#include "clock/TimerDialogs.h"
#include "clock/TimerMenus.h"
#include "clock/ui/MessageBoxes.h"
#include "clock/ui/TimerMouse.h"

namespace clockcore {

/// All that lets a user make and change timers on the face of a clock, put together: the box of a
/// message, the menus with what they ask, the dragging of marks. The clock's window owns it.
class TimersOnDial {
public:
    /// What it works on. All of it outlives it.
    struct Parts {
        QWidget& Form;  ///< the boxes lie on it
        mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        timers::TimerHost& Host;
        drawing::CalculatorClock& Calculator;
        timers::ClockTimers& Timers;
        timers::ActionList& Actions;
        PartMenus& Menus;  ///< takes the menus of spots and marks, and the times of other menus
    };

    TimersOnDial(ClockData& data, const Program& program, const Parts& parts);

    /// Closes an open box and saves what was typed.
    void FinishMessage() { typing_.FinishMessage(); }
    /// Brings an open box and a mark that is dragged to where they belong, after each tick and each
    /// change of size.
    void Follow();
    /// Asks, behind the first tick, for what the menus will have to know.
    void FillMenus() { menus_.CountSoundDevices(); }
    TimerDialogs& Dialogs() { return dialogs_; }
    /// What is to see the form's mouse and keys before the form itself does.
    QObject& EventFilter() { return mouse_; }

private:
    MessageBoxes boxes_;
    MessageTyping typing_;
    DialTimers dial_;
    TimerDialogs dialogs_;
    TimerMenus menus_;
    MarkDrag drag_;
    TimerMouse mouse_;
};

}  // namespace clockcore
