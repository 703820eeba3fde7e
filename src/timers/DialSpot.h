#pragma once

#include <QString>
#include <QTime>

namespace timers {

inline constexpr int DialMinutes = 720;  ///< the dial has no more

/// The minute of the dial that a time falls into, 0 to 719: 14 for "0:14" and for "12:14".
int DialMinute(const QTime& time);

/// Where a time stands on the dial of twelve hours. It has five minute spots for each hour, and
/// each spot stands for twelve minutes.
struct DialSpot {
    int Spot = 0;   ///< from 0; 60 to 64 are those behind twelve o'clock
    int Place = 1;  ///< 1 to 12: a minute of the twelve
    bool operator==(const DialSpot&) const = default;
};

/// "3:14" stands at place 3 of spot 16, and so does "15:14"; "12:00" at place 1 of spot 60, but
/// "0:00" of spot 0.
DialSpot SpotOfTime(const QTime& time);

/// The time at a turn of the dial from twelve o'clock, to the nearest minute: the inverse of
/// `SpotOfTime` on a ring that has 720 places. It lies between 0:00 and 11:59.
/// @param turn in whole turns clockwise; any number
///
/// A quarter turn and one place further, 181 / 720, is 3:00: the first place of a spot is 1.
QTime TimeAtTurn(double turn);

/// A time as a dial reads it, "3:05": "12:48" is followed by "1:00", and so is "0:48".
QString DialText(const QTime& time);

}  // namespace timers
