#pragma once

#include <QStringList>
#include <functional>
#include <set>
#include <vector>

#include "timers/ClockMessages.h"
#include "timers/ClockTimer.h"
#include "timers/LateTimers.h"
#include "timers/TimerContext.h"
#include "timers/TimerEffects.h"
#include "timers/TimerSlots.h"

namespace timers {

/// The timers of one clock, in slots numbered from 1. There are 100 to begin with; more appear when
/// they are needed. A slot is a record and its pair of controls, which follow the record:
/// `imgTimer(n)` is visible while the timer is on the dial, `txtMsg(n)` holds the message.
///
/// A timer fires in the minute that its time names, in either half of the day, and is then cleared,
/// unless an action counts down for it. Permanent does not mean repeating: a permanent timer is
/// kept across runs until it has fired. A timer that comes due while it is held fires as soon as it
/// is not, be it minutes later.
///
/// With the keys "Late Timers" and "Timer Clock" timers are kept as instants instead, and
/// `LateTimers` fires them.
///
/// A slot's number that is asked for lies between 1 and `SlotCount`; nothing checks it.
class ClockTimers final : public TimerSlots {
public:
    using Watcher = std::function<void(int slot, const ClockTimer& timer)>;
    using Holder = std::function<bool(int slot)>;

    /// @param messages shows what fires; it outlives the timers
    ClockTimers(const TimerContext& context, ClockMessages& messages);

    void ReadKeys() override { lateTimers_.ReadKeys(); }
    void SetTemplate() override;

    /// Fills slots and `DeferredTimerLines`, and keeps the path for the saves of firing timers. A
    /// file that is no text loads no timers.
    void LoadTimers(const QString& path) override;

    /// Rewrites the file from the slots and the deferred lines, in one step. A file that could not
    /// be read whole is left as it is; the status bar tells so once. Before `LoadTimers` an
    /// existing file is left alone.
    void SaveTimer(const QString& path) override;

    void PlaceTimerMarks() override;

    /// @p clockTime is a date and time, "25/03/2008 2:05:09"; all else fires nothing.
    void CheckTimers(const QString& clockTime) override;

    int SlotCount() const { return static_cast<int>(timers_.size()); }
    const ClockTimer& Timer(int slot) const { return timers_[Index(slot)]; }
    /// Replaces the record and brings the two controls up to it. A timer that is given another time
    /// may fire again in the same minute.
    void ChangeTimer(int slot, const ClockTimer& timer);

    /// The first free slot; a new one when none is. The slot stays free until it is changed.
    int GetFreeTimerSlot();
    /// Empties a slot. `Permanent`, `MessageColour` and `MusicVolume` stay as they are.
    void ClearTimerSlot(int slot);
    /// Gives a slot the time, as "hh:mm", and moves its mark; nothing for a text that is no time.
    void PlaceTimerMark(int slot, const QString& time);
    /// Makes a timer on the dial with the defaults of the properties; a text that is no time makes
    /// one that never comes due. Nothing stays of the timer that had the slot before. @return its
    /// slot
    int SetNewTimer(const QString& time);
    /// What a time means that was picked on the dial: see `KeptTimes::PickedTime`.
    QString PickedTime(const QString& time) const { return lateTimers_.Times().PickedTime(time); }
    /// Makes a date and time of the clock the moment of a timer that is kept as an instant; any
    /// other timer stays.
    void SetMoment(int slot, const QDateTime& reading);
    /// A timer has done what it had to do: it leaves the dial, or, permanent and with an action,
    /// waits for its next coming as an instant.
    void SpendTimer(int slot);
    /// Takes a timer off the dial and keeps it for its day, with its time and its message alone;
    /// one that is kept as an instant with all that it has.
    void DeferTimer(int slot, const QDate& date);

    /// Lines of the file that belong to another half-day. They are written back at each save.
    const QStringList& DeferredTimerLines() const { return deferredTimerLines_; }

    QStringList TimerLines() const;  ///< all lines that `SaveTimer` would write at present
    QString Path() const { return path_; }
    QString ClockName() const;  ///< as the timer file is named; empty without one
    /// Whether the last save failed, so that the file tells of other timers than these.
    bool IsUnsaved() const { return unsaved_; }
    /// Whether that is to be asked about before they are lost: of timers that are kept as instants.
    bool AsksBeforeItLoses() const { return unsaved_ && lateTimers_.IsOn(); }
    /// False when `LoadTimers` found a file that it could not read as a text.
    bool FileWasRead() const { return unreadPath_.isEmpty(); }

    /// Tells of each timer that fires, before anything is done for it.
    void WatchFiring(Watcher watcher) { watcher_ = std::move(watcher); }
    /// Asks, at each check, whether a timer must wait.
    void HoldWhile(Holder isHeld) { isHeld_ = std::move(isHeld); }

    // What `LateTimers` asks for.
    bool IsHeld(int slot) const;
    void TellFiring(int slot, const ClockTimer& timer) const;
    /// Loads the deferred lines again; those that are not due yet come back.
    void TakeDeferredLines();
    /// Saves what could not be saved, ten seconds after the last time.
    void SaveAgain(const QDateTime& instant);
    /// All timers on the dial get their instants, or lose them.
    void KeepAnew();
    /// Tells the log of a timer that the user has set or removed.
    void Log(TimerHappening happening, int slot) { lateTimers_.Log(happening, Timer(slot)); }

private:
    static std::size_t Index(int slot) { return static_cast<std::size_t>(slot) - 1; }
    void LoadLine(const QString& line);
    void DeferLine(const QString& line, const std::optional<QDateTime>& due);
    bool MayWrite(const QString& path);
    void NoteSaved(const QString& path, bool saved);
    void AddSlot();
    QString NewTimersSound() const;
    QString Property(const QString& name) const;

    void ForgetFired(int dialMinute);
    bool HasFired(int slot) const;
    bool IsDue(int slot, int dialMinute) const;
    bool ComesAt(int slot, int dialMinute) const;
    void NoteHeld(int dialMinute);
    bool IsLastOfPass(int slot, int dialMinute) const;
    void Fire(int slot, const QDateTime& clockTime);
    bool MayFire() const;
    void EndFiring(int slot, const QDateTime& clockTime, int minutes);

    TimerContext context_;
    ClockMessages& messages_;
    TimerEffects effects_;
    std::vector<ClockTimer> timers_;
    /// For each slot the minute of the dial (0 to 719) at which it is due; -1 for never. Each tick
    /// looks through these.
    std::vector<int> dueMinutes_;
    std::size_t firstMaybeFree_ = 0;  ///< no slot below this index is free
    QStringList deferredTimerLines_;
    QString path_;
    QString unreadPath_;  ///< a file that could not be read whole
    QString toldPath_;    ///< of which the status bar has told
    bool loaded_ = false;
    bool unsaved_ = false;
    QDateTime triedAt_;  ///< the last save that failed; an instant
    /// A slot that has fired and the minute of the dial at which it did.
    struct Fired {
        int Slot = 0;
        int DialMinute = 0;
    };
    std::vector<Fired> fired_;  ///< those that may not fire again in this minute
    std::set<int> late_;        ///< slots that have come due while they were held
    Watcher watcher_;
    Holder isHeld_;
    LateTimers lateTimers_;
};

}  // namespace timers
