#pragma once

#include <QString>

namespace timers {

inline constexpr int HalfDay = 12;  ///< hours; the dial has no more

/// One timer of a clock. The dial has twelve hours, so a time stands for both halves of the day.
struct ClockTimer {
    QString TimerTime;       ///< "hh:mm", such as "03:05"; empty in a cleared slot
    QString Permanent;       ///< "P" for a permanent timer, else empty
    bool OnDial = false;     ///< the mark is visible; a live timer is on the dial
    QString DisplayMinutes;  ///< how long the message stays; 0 or less: until it is hidden
    QString Message;
    int MessageColour = 0;  ///< red in the low byte
    QString SoundFile;      ///< as stored, "\" and a leading ".\" included; empty for none
    QString TimerAction;    ///< "None", an entry of the action menu, or a program's path
    QString MusicVolume;    ///< a number above 0 becomes "Music Volume" when the timer fires

    bool IsPermanent() const { return Permanent == QLatin1StringView("P"); }
    bool IsFree() const { return !OnDial && !IsPermanent(); }

    bool operator==(const ClockTimer&) const = default;
};

}  // namespace timers
