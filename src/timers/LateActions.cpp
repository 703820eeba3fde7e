#include "timers/LateActions.h"

#include <utility>

#include "foundation/Dates.h"
#include "platform/Dialogs.h"
#include "timers/ClockTimers.h"

using namespace Qt::StringLiterals;

namespace timers {

LateActions::LateActions(const TimerContext& context, ClockTimers& timers, ClockMessages& messages,
                         const KeptTimes& times, Teller tell)
    : context_(context),
      timers_(timers),
      messages_(messages),
      times_(times),
      tell_(std::move(tell)) {
    messages_.HandEndsTo([this] { return SeeToTheEnd(); });
}

void LateActions::Check(const ClockMoment& now) {
    Follow();
    const int slot = counting_ == 0 && !context_.Host.IsClosing() ? NextSlot() : 0;
    if (slot == 0) {
        return;
    }
    if (timers_.Timer(slot).Due.At.secsTo(now.Instant) < SecondsOfMinute) {
        Start(slot);
    } else if (askedFor_ == 0) {
        Ask(slot, now);
    }
}

bool LateActions::IsActing(int slot) const {
    const ClockTimer& timer = timers_.Timer(slot);
    return timer.OnDial && timer.Due.Acting;
}

int LateActions::NextSlot() const {
    int next = 0;
    for (int slot = 1; slot <= timers_.SlotCount(); ++slot) {
        if (IsActing(slot) && slot != askedFor_ &&
            (next == 0 || timers_.Timer(slot).Due.At < timers_.Timer(next).Due.At)) {
            next = slot;
        }
    }
    return next;
}

// The user may have removed the timer, ended its countdown or moved the end of that.
void LateActions::Follow() {
    if (counting_ == 0) {
        return;
    }
    if (!IsActing(counting_)) {
        counting_ = 0;
        messages_.CancelAction();
    } else if (messages_.PendingAction().isEmpty()) {
        End(std::exchange(counting_, 0), false);
    } else if (messages_.ActionDeadline() != deadline_) {
        deadline_ = messages_.ActionDeadline();
        const auto end = mduAPILib::ParseMoment(deadline_, 0);
        ClockTimer timer = timers_.Timer(counting_);
        timer.Due.At = InstantOf(end->Moment, times_.Offset());
        timers_.ChangeTimer(counting_, timer);
        timers_.SaveTimer(timers_.Path());
    }
}

void LateActions::FollowOffset() {
    if (counting_ != 0 && IsActing(counting_)) {
        messages_.MoveDeadline(ReadingAt(timers_.Timer(counting_).Due.At));
        deadline_ = messages_.ActionDeadline();
    }
}

void LateActions::Start(int slot) {
    messages_.SetPendingAction(timers_.Timer(slot).TimerAction);
    if (messages_.CountDownTo(ReadingAt(timers_.Timer(slot).Due.At))) {
        counting_ = slot;
        deadline_ = messages_.ActionDeadline();
    }
}

// The end was lived through, or it was not: then the next check asks.
bool LateActions::SeeToTheEnd() {
    const int slot = std::exchange(counting_, 0);
    if (slot == 0) {
        return false;
    }
    if (timers_.Timer(slot).Due.At.secsTo(times_.Present().Instant) < SecondsOfMinute) {
        End(slot, true);
    }
    return true;
}

void LateActions::Ask(int slot, const ClockMoment& now) {
    askedFor_ = slot;
    const ClockTimer timer = timers_.Timer(slot);
    tell_(TimerHappening::ActionAsked, timer);
    const QString text = u"The action \"%1\" of the timer %2 is %3.\n\nRun it now?"_s.arg(
        timer.TimerAction, timer.TimerTime, LateText(timer.Due.At.secsTo(now.Instant)));
    context_.Services.Dialog.PostQuestion(
        text, u"Late Timers - "_s + timers_.ClockName(), AskingTime,
        [this, slot, timer, life = std::weak_ptr<bool>(life_)](bool yes) {
            if (!life.expired()) {
                Answer(slot, timer, yes);
            }
        });
}

void LateActions::Answer(int slot, const ClockTimer& timer, bool yes) {
    askedFor_ = 0;
    if (timers_.Timer(slot) != timer || context_.Host.IsClosing()) {
        return;
    }
    End(slot, yes);
}

// Nothing is written between the save and the action, so that a program that is killed has done
// both or will do both.
void LateActions::End(int slot, bool runs) {
    const ClockTimer timer = timers_.Timer(slot);
    timers_.SpendTimer(slot);
    timers_.SaveTimer(timers_.Path());
    if (runs) {
        messages_.RunAction(timer.TimerAction);
    }
    tell_(runs ? TimerHappening::ActionRun : TimerHappening::ActionRefused, timer);
}

QDateTime LateActions::ReadingAt(const QDateTime& instant) const {
    return instant.addSecs(times_.Offset()(instant));
}

}  // namespace timers
