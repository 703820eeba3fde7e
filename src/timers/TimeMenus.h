#pragma once

#include <QStringList>

/// What the menus that set a timer offer: times of the twelve-hour dial, and numbers of minutes.
namespace timers {

/// The twelve captions, "hh:mm", of a menu of times. A text with a ":" is a time whose twelve
/// minutes are listed: "3:12" gives "03:12" to "03:23". One without is an hour, or a date, whose
/// steps of five minutes are: "3" gives "03:00", "03:05" to "03:55". Behind 23:59 comes 00:00.
/// Nothing for an empty text and for one that is no time.
/// @param presentYear the year of a date that has none
QStringList FillTimeMenu(const QString& text, int presentYear);

/// The twelve captions of a menu of minutes, for display and action times: @p start and the eleven
/// numbers behind it, as they are.
QStringList FillMinutesMenu(int start);

}  // namespace timers
