#pragma once

#include "timers/ClockMessages.h"
#include "timers/ClockTimer.h"
#include "timers/TimerContext.h"

namespace timers {

/// What is seen and heard of a timer that fires: its message, its voice, its sound and its volume.
/// What becomes of its slot and of its action is for others.
class TimerEffects {
public:
    /// @param messages shows the message; it outlives the effects
    TimerEffects(const TimerContext& context, ClockMessages& messages)
        : context_(context), messages_(messages) {}

    /// Shows the timer's message. A step may close the clock: then it is the last one.
    /// @param clockTime the clock's present time, from which the message's minutes count
    /// @param takeAction called between the message and what is heard: the action is now the one
    /// that is pending, where it is to be so
    void Run(const ClockTimer& timer, const QDateTime& clockTime,
             const std::function<void()>& takeAction) const;

private:
    void AnnounceAction(const QString& action) const;
    void Announce(const QString& key, const QString& text) const;
    void PlayTimerSound(const QString& file) const;
    void SetMusicVolume(const QString& volume) const;
    QString Property(const QString& name) const;

    TimerContext context_;
    ClockMessages& messages_;
};

}  // namespace timers
