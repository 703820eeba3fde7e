#pragma once

#include <QDateTime>
#include <QString>

namespace timers {

inline constexpr int HalfDay = 12;  ///< hours; the dial has no more

/// When a timer comes, where its clock keeps it as an instant ("Late Timers", "Timer Clock").
struct TimerDue {
    /// In GMT, to the second; invalid for a timer that goes by the rules of the dial alone. Of a
    /// timer whose action counts down it is the end of that.
    QDateTime At = {};
    bool WholeDay = false;  ///< the time is that time of day, not either half
    bool Acting = false;    ///< the timer has fired; what is left of it is its action

    bool operator==(const TimerDue&) const = default;
};

/// One timer of a clock. The dial has twelve hours, so a time stands for both halves of the day,
/// unless `Due` says that it does not.
///
/// A slot that has been cleared keeps some of the fields: see `ClockTimers::ClearTimerSlot`.
struct ClockTimer {
    /// "hh:mm", such as "03:05"; empty in a cleared slot. Any other text never comes due.
    QString TimerTime;
    /// "P" for a permanent timer, else empty. Permanent means kept in the file, not repeating.
    QString Permanent;
    bool OnDial = false;  ///< the mark is visible; a live timer is on the dial
    /// How long the message stays, in minutes, and how long an action counts down; 0 or less: the
    /// message stays until it is hidden.
    QString DisplayMinutes;
    /// What is shown and spoken; empty for a timer that only sounds or acts.
    QString Message;
    int MessageColour = 0;  ///< red in the low byte
    QString SoundFile;      ///< as stored, "\" and a leading ".\" included; empty for none
    /// "None", an entry of the action menu, or a program's path. Empty as well means no action.
    QString TimerAction;
    /// A number above 0, in percent, becomes "Music Volume" when the timer fires; any other text
    /// leaves it.
    QString MusicVolume;
    TimerDue Due = {};

    bool IsPermanent() const { return Permanent == QLatin1StringView("P"); }
    bool HasAction() const {
        return !TimerAction.isEmpty() && TimerAction != QLatin1StringView("None");
    }
    /// Whether a new timer may take the slot.
    bool IsFree() const { return !OnDial && !IsPermanent(); }

    bool operator==(const ClockTimer&) const = default;
};

}  // namespace timers
