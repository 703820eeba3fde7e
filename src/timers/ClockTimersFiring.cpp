#include <algorithm>
#include <cstdlib>

#include "foundation/Dates.h"
#include "timers/ClockTimers.h"
#include "timers/DialSpot.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

/// How the timers of `ClockTimers` fire.
namespace timers {

namespace {

/// Each timer that fires is saved with all others. Where thousands are due together that would take
/// minutes, so beyond these only the last one's save is made, which leaves the same file.
constexpr int MostSaves = 20;

}  // namespace

void ClockTimers::CheckTimers(const QString& clockTime) {
    if (lateTimers_.IsOn()) {
        lateTimers_.Check();
        return;
    }
    const auto parsed = mduAPILib::ParseMoment(clockTime, 0);
    if (!parsed || !parsed->HasDate || !parsed->HasTime) {
        return;
    }
    const int minute = DialMinute(parsed->Moment.time());
    ForgetFired(minute);
    NoteHeld(minute);
    int saves = 0;
    for (int slot = 1; slot <= SlotCount() && MayFire(); ++slot) {
        if (!IsDue(slot, minute)) {
            continue;
        }
        if (watcher_) {
            watcher_(slot, Timer(slot));
        }
        if (saves < MostSaves || IsLastOfPass(slot, minute)) {
            ++saves;
            SaveTimer(path_);
        }
        Fire(slot, parsed->Moment);
    }
}

bool ClockTimers::MayFire() const {
    return messages_.PendingAction().isEmpty() && !context_.Host.IsClosing();
}

bool ClockTimers::IsDue(int slot, int dialMinute) const {
    return (ComesAt(slot, dialMinute) || late_.contains(slot)) && !IsHeld(slot);
}

bool ClockTimers::ComesAt(int slot, int dialMinute) const {
    return dueMinutes_[Index(slot)] == dialMinute && !HasFired(slot);
}

bool ClockTimers::IsHeld(int slot) const {
    return isHeld_ && isHeld_(slot);
}

void ClockTimers::NoteHeld(int dialMinute) {
    const int last = MayFire() ? SlotCount() : 0;
    for (int slot = 1; slot <= last; ++slot) {
        if (ComesAt(slot, dialMinute) && IsHeld(slot)) {
            late_.insert(slot);
        }
    }
}

// An action ends the pass.
bool ClockTimers::IsLastOfPass(int slot, int dialMinute) const {
    if (!Timer(slot).TimerAction.isEmpty()) {
        return true;
    }
    for (int next = slot + 1; next <= SlotCount(); ++next) {
        if (IsDue(next, dialMinute)) {
            return false;
        }
    }
    return true;
}

// A timer whose action has run stays on the dial; it may not fire again in the same minute, nor
// when the clock is set back a little. The next minute but one ends that.
void ClockTimers::ForgetFired(int dialMinute) {
    std::erase_if(fired_, [dialMinute](const Fired& fired) {
        const int distance = std::abs(dialMinute - fired.DialMinute);
        return std::min(distance, DialMinutes - distance) > 1;
    });
}

bool ClockTimers::HasFired(int slot) const {
    return std::any_of(fired_.begin(), fired_.end(),
                       [slot](const Fired& fired) { return fired.Slot == slot; });
}

void ClockTimers::Fire(int slot, const QDateTime& clockTime) {
    const ClockTimer timer = Timer(slot);  // a copy: a step may change the slot
    late_.erase(slot);
    fired_.push_back({slot, DialMinute(clockTime.time())});
    const auto takeAction = [&] { messages_.SetPendingAction(timer.TimerAction); };
    effects_.Run(timer, clockTime, takeAction);
    if (!context_.Host.IsClosing()) {
        EndFiring(slot, clockTime, WholeNumber(timer.DisplayMinutes));
    }
}

void ClockTimers::EndFiring(int slot, const QDateTime& clockTime, int minutes) {
    if (!messages_.StartCountdown(clockTime, minutes)) {
        ClearTimerSlot(slot);
    }
}

}  // namespace timers
