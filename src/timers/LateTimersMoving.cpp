#include <algorithm>
#include <cstdlib>

#include "timers/ClockTimers.h"
#include "timers/LateTimers.h"

/// How the timers of `LateTimers` follow their clock: another offset, another zone, another time.
namespace timers {

namespace {

/// Seconds that a zone's own clock is ever changed by. A larger change is the machine's, which has
/// come to another zone; the instants of its timers stay.
constexpr int LargestChange = 10'800;

}  // namespace

void LateTimers::FollowClock() {
    if (IsOn() && last_.isValid()) {
        FollowOffset(times_.Present());
    }
}

// The order matters: what has moved is looked at by the moment of the last check.
void LateTimers::FollowOffset(const ClockMoment& now) {
    const int ahead = static_cast<int>(now.Instant.secsTo(now.Reading));
    const QString& zone = context_.Zone.StandardName;
    if (last_.isValid() && ahead != ahead_) {
        const bool isOtherZone = zone != zone_;
        const bool isItsOwn = !times_.KnowsItsZone() && std::abs(ahead - ahead_) <= LargestChange;
        if (isOtherZone || isItsOwn) {
            MoveAll(now, isOtherZone);
        }
        actions_.FollowOffset();
    }
    if (last_.isValid() && now.Instant < last_) {
        BringNear(now.Instant);
    }
    last_ = now.Instant;
    ahead_ = ahead;
    zone_ = zone;
}

void LateTimers::MoveAll(const ClockMoment& now, bool isOtherZone) {
    for (int slot = 1; slot <= timers_.SlotCount(); ++slot) {
        const ClockTimer& timer = timers_.Timer(slot);
        if (timer.OnDial && timer.Due.At.isValid() && !timer.Due.Acting) {
            SetDue(slot, Moved(timer, now, isOtherZone));
        }
    }
    timers_.SaveTimer(timers_.Path());
}

// What was due by the last check stays so, and what was not is due behind it: where the clock is
// put forward over a timer, that is the moment of the change.
QDateTime LateTimers::Moved(const ClockTimer& timer, const ClockMoment& now,
                            bool isOtherZone) const {
    const QDateTime lived = std::min(last_, now.Instant);
    if (timer.Due.At <= lived) {
        return timer.Due.At;
    }
    const qint64 ahead = now.Instant.secsTo(now.Reading);
    const QDateTime at = timer.Due.At.addSecs(ahead_ - ahead);
    if (isOtherZone && at < now.Instant) {
        return times_.NextDue(timer, now.Instant).At;
    }
    return std::max(at, lived);
}

// The clock was set back. A permanent timer comes each day (or each half of it), so one that would
// be further away comes the time after next: the next one may have been before.
void LateTimers::BringNear(const QDateTime& instant) {
    for (int slot = 1; slot <= timers_.SlotCount(); ++slot) {
        const ClockTimer& timer = timers_.Timer(slot);
        if (!timer.OnDial || !timer.IsPermanent() || !timer.Due.At.isValid() || timer.Due.Acting) {
            continue;
        }
        const QDateTime next = times_.NextDue(timer, instant).At;
        const QDateTime second = times_.NextDue(timer, next.addSecs(SecondsOfMinute)).At;
        SetDue(slot, std::min(timer.Due.At, second));
    }
}

void LateTimers::SetDue(int slot, const QDateTime& at) {
    ClockTimer timer = timers_.Timer(slot);
    timer.Due.At = at;
    timers_.ChangeTimer(slot, timer);
}

}  // namespace timers
