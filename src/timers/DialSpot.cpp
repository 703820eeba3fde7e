#include "timers/DialSpot.h"

namespace timers {

DialSpot SpotOfTime(const QTime& time) {
    constexpr int halfDay = 12;
    constexpr int spotsOfHour = 5;
    constexpr int placesOfSpot = 12;
    const int hour = time.hour() > halfDay ? time.hour() - halfDay : time.hour();
    return {hour * spotsOfHour + time.minute() / placesOfSpot, time.minute() % placesOfSpot + 1};
}

}  // namespace timers
