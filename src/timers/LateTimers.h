#pragma once

#include <map>
#include <memory>
#include <vector>

#include "timers/KeptTimes.h"
#include "timers/LateActions.h"
#include "timers/TimerEffects.h"
#include "timers/TimerLog.h"

namespace timers {

class ClockTimers;

/// Fires the timers of a clock that keeps them as instants (`KeptTimes`), each of them once: in its
/// minute where that was lived through, else at the first moment behind it, as "Late Timers" says.
/// What kept it from its minute makes no difference: the machine slept, its clock was set, the
/// program was closed or killed.
///
/// A timer's slot is cleared and the file is saved before anything is seen of the timer. So a
/// program that is killed finds it either waiting or gone, never half done.
class LateTimers {
public:
    /// @param timers has the slots and the file; it outlives this, and so does @p messages
    LateTimers(const TimerContext& context, ClockTimers& timers, ClockMessages& messages);

    const KeptTimes& Times() const { return times_; }
    bool IsOn() const { return times_.IsOn(); }
    /// Reads the keys. Timers on the dial get their instants, or lose them.
    void ReadKeys();

    /// Fires what has come due by now, and looks after the actions.
    void Check();
    /// Brings all timers up to the clock's present offset, before one is given another time.
    void FollowClock();
    /// A timer has been changed: the next check looks at all of them.
    void Changed() { mustLook_ = true; }
    /// A line is kept for a later day, which is due then.
    void Defer(const QDateTime& due);
    /// Writes a line into the log, at once.
    void Log(TimerHappening happening, const ClockTimer& timer);

private:
    /// A timer that has left its slot and is to be shown.
    struct Due {
        int Slot = 0;
        ClockTimer Timer;
        qint64 Late = 0;  ///< seconds
    };

    /// What a check has found.
    struct Pass {
        std::vector<Due> Shown, Asked, Skipped;
    };

    void FollowOffset(const ClockMoment& now);
    void MoveAll(const ClockMoment& now, bool isOtherZone);
    QDateTime Moved(const ClockTimer& timer, const ClockMoment& now, bool isOtherZone) const;
    void BringNear(const QDateTime& instant);
    void SetDue(int slot, const QDateTime& at);
    void TakeDeferred(const QDateTime& instant);

    void FireDue(const ClockMoment& now);
    std::vector<Due> DueTimers(const QDateTime& instant);
    void Decide(const Due& due, const QDateTime& instant, Pass& pass);
    void Settle(const Due& due, const QDateTime& instant);
    void ShowAll(const std::vector<Due>& shown, const ClockMoment& now);
    void PutBack(std::vector<Due>::const_iterator from, std::vector<Due>::const_iterator end);
    void Ask(const std::vector<Due>& asked);
    void Answer(const std::vector<Due>& asked, bool yes);
    void Note(TimerHappening happening, const ClockTimer& timer, qint64 late);

    TimerContext context_;
    ClockTimers& timers_;
    KeptTimes times_;
    TimerEffects effects_;
    TimerLog log_;
    LateActions actions_;

    bool mustLook_ = true;
    QDateTime next_;      ///< no timer on the dial is due before; invalid when none is on it
    QDateTime deferred_;  ///< the first of the lines for later days is due; invalid without one
    QDateTime last_;      ///< of the last check
    int ahead_ = 0;       ///< of GMT, at the last check
    QString zone_;        ///< shown at the last check
    std::map<int, ClockTimer> asked_;  ///< those of a question that stands, by their slots
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  ///< watched by who answers late
};

}  // namespace timers
