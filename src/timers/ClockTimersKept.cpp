#include <utility>

#include "foundation/FileHelpers.h"
#include "timers/ClockTimers.h"
#include "timers/TimerTail.h"

using namespace Qt::StringLiterals;

/// What `ClockTimers` does for timers that are kept: lines for later days, saves that failed,
/// instants.
namespace timers {

namespace {

constexpr qint64 RetrySeconds = 10;

}  // namespace

void ClockTimers::DeferTimer(int slot, const QDate& date) {
    ClockTimer timer = Timer(slot);
    const std::optional<QTime> time = TimeOfText(timer.TimerTime, date.year());
    if (lateTimers_.IsOn() && time) {
        const QDateTime reading(date, *time, Qt::UTC);
        timer.Due = {InstantOf(reading, lateTimers_.Times().Offset()), true, false};
        DeferLine(KeptLineText(timer, reading), timer.Due.At);
    } else {
        DeferLine(DeferredLineText(timer, date), std::nullopt);
    }
    ClearTimerSlot(slot);
}

void ClockTimers::DeferLine(const QString& line, const std::optional<QDateTime>& due) {
    deferredTimerLines_ += line;
    if (due) {
        lateTimers_.Defer(*due);
    }
}

void ClockTimers::TakeDeferredLines() {
    for (const QString& line : std::exchange(deferredTimerLines_, {})) {
        LoadLine(line);
    }
    SaveTimer(path_);
}

void ClockTimers::SetMoment(int slot, const QDateTime& reading) {
    if (lateTimers_.IsOn()) {
        lateTimers_.FollowClock();
        ClockTimer timer = Timer(slot);
        timer.TimerTime = HourMinute(reading.time());
        timer.Due = {InstantOf(reading, lateTimers_.Times().Offset()), true, false};
        ChangeTimer(slot, timer);
    }
}

void ClockTimers::SpendTimer(int slot) {
    ClockTimer timer = Timer(slot);
    if (!timer.IsPermanent() || !timer.HasAction()) {
        ClearTimerSlot(slot);
        return;
    }
    const KeptTimes& times = lateTimers_.Times();
    timer.Due = times.NextDue(timer, times.Present().Instant.addSecs(SecondsOfMinute));
    ChangeTimer(slot, timer);
}

// What the rules of the dial have noted meanwhile does not count for instants, nor the reverse.
void ClockTimers::KeepAnew() {
    fired_.clear();
    late_.clear();
    for (int slot = 1; slot <= SlotCount(); ++slot) {
        ClockTimer timer = Timer(slot);
        if (timer.OnDial && !timer.Due.At.isValid()) {
            timer.TimerTime = PickedTime(timer.TimerTime);
        }
        ChangeTimer(slot, timer);
    }
    TakeDeferredLines();
}

void ClockTimers::NoteSaved(const QString& path, bool saved) {
    const bool wasUnsaved = std::exchange(unsaved_, !saved);
    const bool isKept = lateTimers_.IsOn();
    if (!saved) {
        triedAt_ = lateTimers_.Times().Present().Instant;
    }
    if (!saved && (!isKept || !wasUnsaved)) {
        context_.Host.ShowStatus(path + u" can't be written"_s);
    } else if (saved && wasUnsaved && isKept) {
        context_.Host.ShowStatus(path + u" is written again"_s);
    }
}

void ClockTimers::SaveAgain(const QDateTime& instant) {
    const qint64 waited = triedAt_.secsTo(instant);
    if (unsaved_ && (waited >= RetrySeconds || waited < 0)) {
        SaveTimer(path_);
    }
}

void ClockTimers::TellFiring(int slot, const ClockTimer& timer) const {
    if (watcher_) {
        watcher_(slot, timer);
    }
}

QString ClockTimers::ClockName() const {
    QString name = mduLib::FileBaseName(path_, false);
    if (name.endsWith("Timer"_L1)) {
        name.chop(5);
    }
    return name;
}

}  // namespace timers
