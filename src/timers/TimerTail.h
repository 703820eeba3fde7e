#pragma once

#include "timers/TimerFile.h"

/// What a line of a timer file tells of a timer beyond the five values that every reader takes. It
/// stands behind them, so that an older program, which takes no more than five, reads the same
/// line:
///
///     5,Red,,None,0,15:10,2026-11-16T14:10:00Z#16/11/2026 15:10=Call home
///     5,Red,,Reboot,0,15:10,2026-11-16T14:15:00Z,acts#15:10@Good night
///     5,Red,,None,0,,2026-11-16T14:10:00Z#15:10@Tea
///
/// In order: the time of day (none for a timer that means either half of it), the instant in GMT,
/// and "acts" for a timer that has fired and whose action counts down to that instant.
namespace timers {

/// The three values of a timer whose `Due.At` is valid, each with a comma in front; else nothing.
QString TailText(const ClockTimer& timer);

/// Takes over what stands behind the five values. @return false, with nothing changed, where there
/// is no readable instant
bool FillFromTail(const TimerLine& line, ClockTimer& timer);

/// The line of a timer that waits for a day that is not near: its date and its time of day stand
/// where an older program looks for them, so that it keeps the line for that day.
/// @param reading what the clock will show
QString KeptLineText(const ClockTimer& timer, const QDateTime& reading);

}  // namespace timers
