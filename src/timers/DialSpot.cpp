#include "timers/DialSpot.h"

#include <cmath>

#include "timers/ClockTimer.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int MinutesOfHour = 60;

int DialHour(const QTime& time) {
    return time.hour() > HalfDay ? time.hour() - HalfDay : time.hour();
}

}  // namespace

int DialMinute(const QTime& time) {
    return (time.hour() * MinutesOfHour + time.minute()) % DialMinutes;
}

DialSpot SpotOfTime(const QTime& time) {
    constexpr int spotsOfHour = 5;
    constexpr int placesOfSpot = 12;
    return {DialHour(time) * spotsOfHour + time.minute() / placesOfSpot,
            time.minute() % placesOfSpot + 1};
}

QTime TimeAtTurn(double turn) {
    const double place = (turn - std::floor(turn)) * DialMinutes;
    const int minute = (static_cast<int>(std::lround(place)) - 1 + DialMinutes) % DialMinutes;
    return {minute / MinutesOfHour, minute % MinutesOfHour};
}

QString DialText(const QTime& time) {
    return u"%1:%2"_s.arg(DialHour(time)).arg(time.minute(), 2, 10, QChar(u'0'));
}

}  // namespace timers
