#pragma once

#include <QObject>

#include "clock/DialTimers.h"
#include "foundation/Program.h"
#include "timers/ActionList.h"

namespace clockcore {

/// What is asked before a timer changes: a colour, a sound, a program. The clock may be closed, and
/// gone, when the answer comes, and the timer may have fired; then nothing is done. Cancelled,
/// nothing changes. A tick must not come here.
class TimerDialogs {
public:
    /// @param clock goes when the clock goes
    TimerDialogs(const QObject& clock, const Program& program, DialTimers& timers,
                 timers::ActionList& actions)
        : clock_(clock), program_(program), timers_(timers), actions_(actions) {}

    /// Asks for the colour of a timer's message, with the present one to begin with.
    void PickColour(const ChosenTimer& chosen);
    /// Asks for a timer's sound.
    void PickSound(const ChosenTimer& chosen);
    /// Asks for a program as a timer's action. One that is there comes into the menu of actions.
    void PickProgram(const ChosenTimer& chosen);
    /// Asks whether a clock may close whose timers could not be saved.
    /// @param path of their file
    /// @param caption of the clock
    bool MayLoseTimers(const QString& path, const QString& caption) const;

private:
    const QObject& clock_;
    Program program_;
    DialTimers& timers_;
    timers::ActionList& actions_;
};

}  // namespace clockcore
