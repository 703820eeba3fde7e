#pragma once

#include <QString>

namespace timers {

/// The timers of one clock: their slots, their file and their firing, as the tick sees them.
class TimerSlots {
public:
    virtual ~TimerSlots() = default;

    /// Reads the properties that timers are kept by; called whenever one has changed.
    virtual void ReadKeys() {}
    /// Gives slot 1 the colour of "Message Colour" and the sound of "Timer Sound File", as the
    /// template of new timers.
    virtual void SetTemplate() {}
    /// @param path the full path of the timer file; a missing one has no timers
    virtual void LoadTimers(const QString& /*path*/) {}
    /// @param path the same; an empty one saves nothing
    virtual void SaveTimer(const QString& /*path*/) {}
    /// Places all marks on the dial anew.
    virtual void PlaceTimerMarks() {}
    /// Fires what is due at the clock's time, given as date and time text.
    virtual void CheckTimers(const QString& /*clockTime*/) {}
};

}  // namespace timers
