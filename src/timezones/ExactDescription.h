#pragma once

#include <QLocale>

#include "timezones/TimeZoneRecord.h"

namespace platform {
struct Services;
}

/// A zone told by what its clock does from now on.
namespace mduTimeZones {

/// The yearly rule behind a change, as "Second Sunday in March" or "Last Sunday in October": its
/// date holds to that for eight years. Empty where the dates follow another rule or none.
/// @param id an identifier
/// @param instant the first second of the change, since 1970 in GMT
QString RuleWords(const platform::Services& services, const QString& id, qint64 instant,
                  const QLocale& locale = QLocale());

/// `ZoneDescription`; for a record with `ExactId` the next two changes, each with its rule, its
/// date and the difference to the local time from then on; then the offsets and the present
/// difference:
///
///     Eastern Standard Time Begins on First Sunday in November (01/11/2026) at 2:00:00, then 5
///     hour(s) behind Local Time
///     Eastern Daylight Time Begins on Second Sunday in March (14/03/2027) at 2:00:00, then 4
///     hour(s) behind Local Time
///
///     Eastern Standard Time is 5 hour(s) before Greenwich Standard Time
///     Eastern Daylight Time is 4 hour(s) before Greenwich Standard Time
///
///     Eastern Daylight Time is 5 hour(s) behind Local Time
///     Exact rules of America/New_York
///
/// each in one line. A record that lacks its identifier tells so below its description.
QString PresentDescription(const platform::Services& services, const TimeZoneRecord& record,
                           const QLocale& locale = QLocale());

}  // namespace mduTimeZones
