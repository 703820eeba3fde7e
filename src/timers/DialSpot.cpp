#include "timers/DialSpot.h"

#include <cmath>

namespace timers {

namespace {

constexpr int MinutesOfDial = 720;
constexpr int MinutesOfHour = 60;

}  // namespace

DialSpot SpotOfTime(const QTime& time) {
    constexpr int halfDay = 12;
    constexpr int spotsOfHour = 5;
    constexpr int placesOfSpot = 12;
    const int hour = time.hour() > halfDay ? time.hour() - halfDay : time.hour();
    return {hour * spotsOfHour + time.minute() / placesOfSpot, time.minute() % placesOfSpot + 1};
}

QTime TimeAtTurn(double turn) {
    const double place = (turn - std::floor(turn)) * MinutesOfDial;
    const int minute = (static_cast<int>(std::lround(place)) - 1 + MinutesOfDial) % MinutesOfDial;
    return {minute / MinutesOfHour, minute % MinutesOfHour};
}

}  // namespace timers
