#pragma once

#include <QDateTime>
#include <functional>

/// From a time of day to the instant at which a timer is due. A reading is what a clock shows, an
/// instant a moment in GMT; both carry `Qt::UTC` and are told in whole seconds.
namespace timers {

inline constexpr qint64 SecondsOfMinute = 60;

/// How many seconds a clock is ahead of GMT at an instant; behind it they are negative.
using ClockOffset = std::function<int(const QDateTime& instant)>;

/// What the time of a timer means.
enum class TimerDay {
    Half,  ///< a minute of the dial, in either half of the day
    Whole  ///< that time of day and no other
};

/// A moment of a clock: what it shows, and when.
struct ClockMoment {
    QDateTime Reading;
    QDateTime Instant;
    bool operator==(const ClockMoment&) const = default;
};

/// The first instant at which the clock shows @p reading or a later time. Of a reading that comes
/// twice it is the first; where the clock is put forward over the reading, the moment of that.
QDateTime InstantOf(const QDateTime& reading, const ClockOffset& offset);

/// When a clock shows that time next, seen from @p instant. The minute that has begun still counts:
/// seen from 15:30:59 the next 15:30 began 59 seconds ago. A reading whose first coming has gone
/// does not come again in the hour that is lived through twice.
/// @param time a valid time of day; its seconds do not count
ClockMoment NextComing(const QTime& time, TimerDay day, const QDateTime& instant,
                       const ClockOffset& offset);

/// The reading that @p due stands for: the one nearest to what a clock shows then that has this
/// time, in the meaning of @p day. So it finds 2:30 for a moment at which the clock jumps from 2:00
/// to 3:00.
/// @param ahead the clock's offset at that moment, in seconds
QDateTime ReadingOf(const QDateTime& due, const QTime& time, TimerDay day, int ahead);

/// "12 minutes late", "2 h 5 min late", "3 days 4 h late"; empty below one minute, for which nobody
/// is late.
QString LateText(qint64 seconds);

}  // namespace timers
