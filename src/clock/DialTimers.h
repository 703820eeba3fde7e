#pragma once

#include <functional>

#include "clock/ClockData.h"
#include "clock/MessageTyping.h"
#include "drawing/Canvas.h"
#include "timers/ClockTimers.h"

namespace clockcore {

/// A timer as it was when the menu on its mark opened. While the menu or a picker is open the timer
/// may fire or be removed, and its slot may be another's.
struct ChosenTimer {
    int Slot = 0;
    timers::ClockTimer Timer;
};

/// What is done to the timers of a clock on its dial. Each change is saved and shown at once, and
/// the status bar tells what of it the timer file can't keep. What was chosen for a timer that is
/// no longer what it was does nothing.
class DialTimers {
public:
    /// What is changed. All of it outlives this.
    struct Parts {
        timers::ClockTimers& Timers;
        MessageTyping& Typing;
        drawing::Canvas& Canvas;
        timers::TimerHost& Host;
    };

    DialTimers(const ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// The timer of a slot, for `IsThere` later. Slot 0, and any other that there is not, gives a
    /// timer that never is there.
    ChosenTimer Choose(int slot) const;
    /// Whether the slot still has that timer on the dial, with nothing changed.
    bool IsThere(const ChosenTimer& chosen) const;

    /// Makes a new timer and opens its box.
    /// @param time "hh:mm"
    void SetNewTimer(const QString& time);
    void EditMessage(const ChosenTimer& chosen);
    /// Gives a timer other fields than its time.
    void Change(const ChosenTimer& chosen,
                const std::function<void(timers::ClockTimer& timer)>& change);
    /// A sound, an action: a text that would break the timer's line is refused, and the status bar
    /// tells so.
    void ChangeText(const ChosenTimer& chosen, QString timers::ClockTimer::*field,
                    const QString& text);
    /// Gives a timer another time, "hh:mm", and moves its mark.
    void ChangeTime(const ChosenTimer& chosen, const QString& time);
    /// The same with a time of the dial's twelve hours, for which `ClockTimers::PickedTime` tells
    /// the half.
    void ChangeDialTime(const ChosenTimer& chosen, const QString& time);
    /// What a time of the dial means that is picked now.
    QString PickedTime(const QString& time) const { return parts_.Timers.PickedTime(time); }
    /// Empties the slot. A permanent one stays reserved.
    void Remove(const ChosenTimer& chosen);

private:
    void Save();

    const ClockData& data_;
    Parts parts_;
};

}  // namespace clockcore
