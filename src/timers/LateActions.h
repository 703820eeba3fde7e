#pragma once

#include <functional>
#include <memory>

#include "timers/ClockMessages.h"
#include "timers/KeptTimes.h"
#include "timers/TimerLog.h"

namespace timers {

class ClockTimers;

/// The actions of timers that are kept as instants. A timer that has fired stays on the dial until
/// its action is done, so that a program that was killed knows of it; the slot is then cleared and
/// the file saved before the action runs. One at a time counts down, in the order of their ends.
///
/// An action whose end was not lived through is never run by itself: a question asks for it, and
/// its own countdown ends with No.
class LateActions {
public:
    using Teller = std::function<void(TimerHappening happening, const ClockTimer& timer)>;

    /// @param tell writes the log. All that is given outlives this
    LateActions(const TimerContext& context, ClockTimers& timers, ClockMessages& messages,
                const KeptTimes& times, Teller tell);

    /// Brings the countdown up to the present, and begins the next one where none runs.
    void Check(const ClockMoment& now);
    /// The clock's offset has changed: the countdown ends at the same instant as before.
    void FollowOffset();

    /// How long the question for a late action stands, in seconds.
    static constexpr int AskingTime = 60;

private:
    bool IsActing(int slot) const;
    int NextSlot() const;
    void Follow();
    void Start(int slot);
    void Ask(int slot, const ClockMoment& now);
    void Answer(int slot, const ClockTimer& timer, bool yes);
    bool SeeToTheEnd();
    void End(int slot, bool runs);
    QDateTime ReadingAt(const QDateTime& instant) const;

    TimerContext context_;
    ClockTimers& timers_;
    ClockMessages& messages_;
    const KeptTimes& times_;
    Teller tell_;
    int counting_ = 0;  ///< the slot whose action counts down; 0 for none
    QString deadline_;  ///< of that, as it was set
    int askedFor_ = 0;  ///< the slot that a question stands for; 0 for none
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  ///< watched by who answers late
};

}  // namespace timers
