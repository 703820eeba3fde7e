#include "timers/LateTimers.h"

#include <algorithm>

#include "platform/Dialogs.h"
#include "timers/ClockTimers.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

/// A timer's message with how late it is.
QString Marked(const ClockTimer& timer, qint64 late) {
    const QString text = LateText(late);
    if (text.isEmpty()) {
        return timer.Message;
    }
    const QString message = timer.Message.isEmpty() ? u"Timer "_s + timer.TimerTime : timer.Message;
    return u"%1 (%2)"_s.arg(message, text);
}

QString Question(const QStringList& lines) {
    constexpr qsizetype most = 10;  // lines of a box
    QString text = lines.size() == 1
                       ? u"A timer came while it could not be shown:"_s
                       : u"%1 timers came while they could not be shown:"_s.arg(lines.size());
    text += u"\n\n"_s + lines.mid(0, most).join(u'\n');
    if (lines.size() > most) {
        text += u"\nand %1 more"_s.arg(lines.size() - most);
    }
    return text + (lines.size() == 1 ? u"\n\nShow it now?"_s : u"\n\nShow them now?"_s);
}

}  // namespace

LateTimers::LateTimers(const TimerContext& context, ClockTimers& timers, ClockMessages& messages)
    : context_(context),
      timers_(timers),
      times_(context),
      effects_(context, messages),
      log_(context.Services.FileSystem,
           [&module = context.Module] { return TimerLog::PathIn(module.Paths); }),
      actions_(
          context, timers, messages, times_,
          [this](TimerHappening happening, const ClockTimer& timer) { Log(happening, timer); }) {}

void LateTimers::ReadKeys() {
    const bool wasOn = IsOn();
    const bool isNew = times_.ReadKeys();
    if (IsOn()) {
        FollowOffset(times_.Present());
    }
    if (isNew && IsOn() != wasOn) {
        timers_.KeepAnew();
    }
    mustLook_ = true;
}

void LateTimers::Check() {
    const ClockMoment now = times_.Present();
    FollowOffset(now);
    TakeDeferred(now.Instant);
    timers_.SaveAgain(now.Instant);
    FireDue(now);
    actions_.Check(now);
}

void LateTimers::Defer(const QDateTime& due) {
    deferred_ = deferred_.isValid() ? std::min(deferred_, due) : due;
}

void LateTimers::TakeDeferred(const QDateTime& instant) {
    if (deferred_.isValid() && instant.secsTo(deferred_) < KeptTimes::Near) {
        deferred_ = {};
        timers_.TakeDeferredLines();
    }
}

void LateTimers::FireDue(const ClockMoment& now) {
    if (!mustLook_ && (!next_.isValid() || now.Instant < next_)) {
        return;
    }
    Pass pass;
    for (const Due& due : DueTimers(now.Instant)) {
        Decide(due, now.Instant, pass);
    }
    if (!pass.Shown.empty() || !pass.Skipped.empty()) {
        timers_.SaveTimer(timers_.Path());
    }
    for (const Due& due : pass.Skipped) {
        Note(TimerHappening::Skipped, due.Timer, due.Late);
    }
    ShowAll(pass.Shown, now);
    log_.Write();
    if (!pass.Asked.empty()) {
        Ask(pass.Asked);
    }
}

// In the order in which they were due.
std::vector<LateTimers::Due> LateTimers::DueTimers(const QDateTime& instant) {
    std::vector<Due> due;
    mustLook_ = false;
    next_ = {};
    for (int slot = 1; slot <= timers_.SlotCount(); ++slot) {
        const ClockTimer& timer = timers_.Timer(slot);
        if (!timer.OnDial || !timer.Due.At.isValid() || timer.Due.Acting) {
            continue;
        }
        const auto asked = asked_.find(slot);
        if (asked != asked_.end() && asked->second == timer) {
            continue;
        }
        if (timer.Due.At <= instant && !timers_.IsHeld(slot)) {
            due.push_back({slot, timer, timer.Due.At.secsTo(instant)});
        } else {
            next_ = next_.isValid() ? std::min(next_, timer.Due.At) : timer.Due.At;
        }
    }
    std::stable_sort(due.begin(), due.end(),
                     [](const Due& a, const Due& b) { return a.Late > b.Late; });
    return due;
}

void LateTimers::Decide(const Due& due, const QDateTime& instant, Pass& pass) {
    const LateWay way = due.Late < SecondsOfMinute ? LateWay::Show : times_.Late();
    switch (way) {
        case LateWay::Show:
            Settle(due, instant);
            return pass.Shown.push_back(due);
        case LateWay::Ask:
            return pass.Asked.push_back(due);
        case LateWay::Skip:
            timers_.SpendTimer(due.Slot);
            return pass.Skipped.push_back(due);
        case LateWay::ByTheRules:
            return SetDue(due.Slot, times_.NextDue(due.Timer, instant).At);
    }
}

// The end of an action that comes late is the moment at which its timer was due.
void LateTimers::Settle(const Due& due, const QDateTime& instant) {
    if (!due.Timer.HasAction()) {
        timers_.SpendTimer(due.Slot);
        return;
    }
    const qint64 seconds = SecondsOfMinute * WholeNumber(due.Timer.DisplayMinutes);
    ClockTimer timer = due.Timer;
    timer.Due.Acting = true;
    if (due.Late < SecondsOfMinute) {
        timer.Due.At = instant.addSecs(std::max(qint64{0}, seconds));
    }
    timers_.ChangeTimer(due.Slot, timer);
}

// A clock that is closed meanwhile keeps what it has not shown.
void LateTimers::ShowAll(const std::vector<Due>& shown, const ClockMoment& now) {
    for (auto due = shown.begin(); due != shown.end(); ++due) {
        if (context_.Host.IsClosing()) {
            return PutBack(due, shown.end());
        }
        timers_.TellFiring(due->Slot, due->Timer);
        const bool isLate = due->Late >= SecondsOfMinute;
        ClockTimer marked = due->Timer;
        marked.Message = Marked(due->Timer, due->Late);
        effects_.Run(marked, now.Reading, [] {});
        Note(isLate ? TimerHappening::Late : TimerHappening::Fired, due->Timer, due->Late);
    }
}

void LateTimers::PutBack(std::vector<Due>::const_iterator from,
                         std::vector<Due>::const_iterator end) {
    for (; from != end; ++from) {
        timers_.ChangeTimer(from->Slot, from->Timer);
    }
    timers_.SaveTimer(timers_.Path());
}

// Until they are answered for, the timers stay where they are, in the file as well.
void LateTimers::Ask(const std::vector<Due>& asked) {
    QStringList lines;
    for (const Due& due : asked) {
        asked_[due.Slot] = due.Timer;
        lines += due.Timer.TimerTime + u' ' + Marked(due.Timer, due.Late);
    }
    context_.Services.Dialog.PostQuestion(
        Question(lines), u"Late Timers - "_s + timers_.ClockName(), 0,
        [this, asked, life = std::weak_ptr<bool>(life_)](bool yes) {
            if (!life.expired()) {
                Answer(asked, yes);
            }
        });
}

void LateTimers::Answer(const std::vector<Due>& asked, bool yes) {
    const ClockMoment now = times_.Present();
    std::vector<Due> shown;
    for (Due due : asked) {
        asked_.erase(due.Slot);
        if (timers_.Timer(due.Slot) != due.Timer || context_.Host.IsClosing()) {
            continue;
        }
        due.Late = due.Timer.Due.At.secsTo(now.Instant);
        if (yes) {
            Settle(due, now.Instant);
            shown.push_back(due);
        } else {
            timers_.SpendTimer(due.Slot);
            Note(TimerHappening::Skipped, due.Timer, due.Late);
        }
    }
    timers_.SaveTimer(timers_.Path());
    ShowAll(shown, now);
    log_.Write();
}

void LateTimers::Note(TimerHappening happening, const ClockTimer& timer, qint64 late) {
    log_.Add({times_.Present().Instant, timers_.ClockName(), happening, timer.TimerTime, late,
              timer.Message});
}

void LateTimers::Log(TimerHappening happening, const ClockTimer& timer) {
    if (IsOn()) {
        Note(happening, timer, 0);
        log_.Write();
    }
}

}  // namespace timers
