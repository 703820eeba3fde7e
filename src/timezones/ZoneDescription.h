#pragma once

#include <QDate>
#include <QLocale>

#include "timezones/TimeZoneRecord.h"

/// A zone's rules told in a few lines of English.
namespace mduTimeZones {

/// The phrase of a number of minutes, always without a sign and with a blank behind it: -570 gives
/// "9 hour(s) and 30 Minutes ", 60 gives "1 hour(s) ".
QString HoursText(std::int32_t minutes);

/// The occurrence of a weekday in its month: 1 gives " First ", 5 " Last ", all but 1 to 5
/// " Unknown ".
QString OrdinalWord(int occurrence);

/// Begin and end of daylight time where the zone keeps it, the offsets from Greenwich, and the
/// distance from local time, in lines that end with CR LF; the last has no end. @p record has its
/// derived fields. Rules are dated in the year of @p today. Weekdays are counted from the first day
/// of @p locale's week, so that 0 is Sunday where the week begins on Monday.
///
///     Standard Begins on  Last Sunday in March (30/03/2008) at 3:00:00
///     Daylight Begins on  Last Sunday in October (26/10/2008) at 2:00:00
///
///     Standard is 10 hour(s) after Greenwich Standard Time
///     Daylight is 11 hour(s) after Greenwich Standard Time
///
///     Standard is 10 hour(s)  before Local Time
QString ZoneDescription(const TimeZoneRecord& record, const QDate& today,
                        const QLocale& locale = QLocale());

}  // namespace mduTimeZones
