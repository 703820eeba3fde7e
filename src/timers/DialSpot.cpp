#include "timers/DialSpot.h"

#include <cmath>

#include "timers/ClockTimer.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int MinutesOfDial = 720;
constexpr int MinutesOfHour = 60;

}  // namespace

DialSpot SpotOfTime(const QTime& time) {
    constexpr int spotsOfHour = 5;
    constexpr int placesOfSpot = 12;
    const int hour = time.hour() > HalfDay ? time.hour() - HalfDay : time.hour();
    return {hour * spotsOfHour + time.minute() / placesOfSpot, time.minute() % placesOfSpot + 1};
}

QTime TimeAtTurn(double turn) {
    const double place = (turn - std::floor(turn)) * MinutesOfDial;
    const int minute = (static_cast<int>(std::lround(place)) - 1 + MinutesOfDial) % MinutesOfDial;
    return {minute / MinutesOfHour, minute % MinutesOfHour};
}

QString DialText(const QTime& time) {
    const int hour = time.hour() % HalfDay;
    return u"%1:%2"_s.arg(hour == 0 ? HalfDay : hour).arg(time.minute(), 2, 10, QChar(u'0'));
}

}  // namespace timers
