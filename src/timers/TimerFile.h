#pragma once

#include <QDateTime>
#include <QStringList>
#include <optional>

#include "timers/ClockTimer.h"

namespace platform {
class RandomNumbers;
}

/// The lines of a timer file, one timer each:
///
///     5,Red,,None,0#15:5@Call home                 permanent
///     5,Red,,None,0#16/11/2026 15:5=Call home      one-shot
///     16/11/2026 09:30=Call home                   one-shot, for a later half-day
///
/// The hour of a written line has 12 added, and a reader takes 12 off again: date and hour tell
/// only for how long a timer lives, never which half of the day it means. Nothing is quoted, so a
/// path with ",", "#" or "=" breaks its own line, and one with "@" that of a permanent timer. What
/// a line tells of the half that is meant stands behind its five values: see `TimerTail.h`.
namespace timers {

/// What one line says, its pieces still as they stand.
struct TimerLine {
    bool OneShot = false;
    QString Head;           ///< the time, or date and time
    QString Message;        ///< the text behind the mark, up to the next mark of its kind
    QStringList Meta;       ///< one empty value where there is no "#"
    bool TimeAlone = true;  ///< the head is too short for a date and time
    QDateTime When;         ///< of the head; without a valid date where it has none

    /// The time of the head on a dial, 0:00 to 11:59.
    QTime DialTime() const;

    bool operator==(const TimerLine&) const = default;
};

/// Reads a trimmed line. Nothing for one without a mark, or whose head is no date or time.
/// @param presentYear the year of a date that has none
std::optional<TimerLine> ParseTimerLine(const QString& line, int presentYear);

/// What a reader does with a line.
struct TimerLineUse {
    bool Load = false;   ///< into a slot
    bool Defer = false;  ///< keep it for another half-day
    bool operator==(const TimerLineUse&) const = default;
};

/// In the morning the timers of that day are loaded, from noon those dated tomorrow. A past day is
/// dropped. A one-shot time without a date is loaded and deferred both.
TimerLineUse UseOf(const TimerLine& line, const QDateTime& clockTime);

/// Takes over what the line gives; a value that it does not give stays as it is. `OnDial` is set.
void FillTimer(const TimerLine& line, platform::RandomNumbers& random, ClockTimer& timer);

/// The meta part of a timer's line, up to its "#", with what `TailText` adds.
QString MetaText(const ClockTimer& timer);

/// The line that keeps a timer beyond this run, at the clock's time @p clockTime. Where `TimerTime`
/// can't be read the line has no time, and a reader skips it: so a permanent timer that has fired
/// ends. A permanent "12:30" becomes hour 24 and does not come back either, unless the timer is
/// kept as an instant (`ClockTimer::Due`): what is written then is its time on the dial.
QString TimerLineText(const ClockTimer& timer, const QDateTime& clockTime);

/// The line that keeps a timer for a later day: it has the time and the message alone.
QString DeferredLineText(const ClockTimer& timer, const QDate& date);

/// What of a timer does not come back from its line, in words for the user: an hour of twelve that
/// no reader takes, a message that ends at its mark. Empty where all of it comes back.
/// @param line from `TimerLineText` or `DeferredLineText`
QString WhatIsLost(const ClockTimer& timer, const QString& line, int presentYear);

/// Whether a path or an action can stand in a line without breaking it: it has none of , # @ =.
bool CanBeKept(const QString& meta);
/// Tells the user that it can't be kept.
QString NotKept(const QString& meta);

/// A text without the ends of its lines, each of which becomes a blank.
QString OnOneLine(QString text);

/// The whole part of a number in text form, between -1e9 and 1e9: how `DisplayMinutes` reads.
int WholeNumber(const QString& text);

/// The time of a text that is a time, or a date and time; a date alone is midnight.
std::optional<QTime> TimeOfText(const QString& text, int presentYear);

QString HourMinute(const QTime& time);  ///< "03:05"

}  // namespace timers
