#include "timers/DueTime.h"

#include <algorithm>
#include <cstdlib>

#include "timers/ClockTimer.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr qint64 SecondsOfDay = 86'400;
constexpr qint64 SecondsOfHalf = SecondsOfDay / 2;

// The first instant behind @p before, and up to @p end, at which the clock shows the reading.
QDateTime MomentOfJump(const QDateTime& reading, QDateTime before, QDateTime end,
                       const ClockOffset& offset) {
    while (before.secsTo(end) > 1) {
        const QDateTime middle = before.addSecs(before.secsTo(end) / 2);
        (middle.addSecs(offset(middle)) < reading ? before : end) = middle;
    }
    return end;
}

QString Days(qint64 days) {
    return days == 1 ? u"1 day"_s : u"%1 days"_s.arg(days);
}

}  // namespace

// Offsets lie within a day, so both that come into question hold a day before or behind.
QDateTime InstantOf(const QDateTime& reading, const ClockOffset& offset) {
    const int before = offset(reading.addSecs(-SecondsOfDay));
    const int behind = offset(reading.addSecs(SecondsOfDay));
    QDateTime first = reading.addSecs(-std::max(before, behind));
    const QDateTime last = reading.addSecs(-std::min(before, behind));
    if (first.addSecs(offset(first)) >= reading) {
        return first;
    }
    return MomentOfJump(reading, first, last, offset);
}

ClockMoment NextComing(const QTime& time, TimerDay day, const QDateTime& instant,
                       const ClockOffset& offset) {
    const QDateTime shown = instant.addSecs(offset(instant));
    const QDateTime from = instant.addSecs(-shown.time().second());
    const qint64 step = day == TimerDay::Half ? SecondsOfHalf : SecondsOfDay;
    QDateTime reading(shown.date().addDays(-1), QTime(time.hour(), time.minute()), Qt::UTC);
    while (InstantOf(reading, offset) < from) {
        reading = reading.addSecs(step);
    }
    return {reading, InstantOf(reading, offset)};
}

QDateTime ReadingOf(const QDateTime& due, const QTime& time, TimerDay day, int ahead) {
    const QDateTime shown = due.addSecs(ahead);
    const qint64 step = day == TimerDay::Half ? SecondsOfHalf : SecondsOfDay;
    QDateTime best(shown.date().addDays(-1), QTime(time.hour(), time.minute()), Qt::UTC);
    for (QDateTime next = best; next <= shown.addSecs(SecondsOfDay); next = next.addSecs(step)) {
        if (std::abs(next.secsTo(shown)) < std::abs(best.secsTo(shown))) {
            best = next;
        }
    }
    return best;
}

QString LateText(qint64 seconds) {
    constexpr qint64 minutesOfHour = 60;
    constexpr qint64 hoursOfDay = 24;
    const qint64 minutes = seconds / SecondsOfMinute;
    const qint64 hours = minutes / minutesOfHour;
    if (minutes < 1) {
        return {};
    }
    if (hours < 1) {
        return minutes == 1 ? u"1 minute late"_s : u"%1 minutes late"_s.arg(minutes);
    }
    return hours < hoursOfDay
               ? u"%1 h %2 min late"_s.arg(hours).arg(minutes % minutesOfHour)
               : u"%1 %2 h late"_s.arg(Days(hours / hoursOfDay)).arg(hours % hoursOfDay);
}

}  // namespace timers
