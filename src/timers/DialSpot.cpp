#include "timers/DialSpot.h"

#include <cmath>

#include "timers/ClockTimer.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int MinutesOfDial = 720;
constexpr int MinutesOfHour = 60;

int DialHour(const QTime& time) {
    return time.hour() > HalfDay ? time.hour() - HalfDay : time.hour();
}

}  // namespace

DialSpot SpotOfTime(const QTime& time) {
    constexpr int spotsOfHour = 5;
    constexpr int placesOfSpot = 12;
    return {DialHour(time) * spotsOfHour + time.minute() / placesOfSpot,
            time.minute() % placesOfSpot + 1};
}

QTime TimeAtTurn(double turn) {
    const double place = (turn - std::floor(turn)) * MinutesOfDial;
    const int minute = (static_cast<int>(std::lround(place)) - 1 + MinutesOfDial) % MinutesOfDial;
    return {minute / MinutesOfHour, minute % MinutesOfHour};
}

QString DialText(const QTime& time) {
    return u"%1:%2"_s.arg(DialHour(time)).arg(time.minute(), 2, 10, QChar(u'0'));
}

}  // namespace timers
