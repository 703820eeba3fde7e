#pragma once

#include "timezones/TimeZoneRecord.h"

namespace platform {
struct Services;
}

/// What holds for a record at present and at a moment, by the rules that it goes by: the database's
/// for a record with `ExactId`, else the record's own.
namespace mduTimeZones {

/// Sets `CurrentName`, `CurrentGMTHours` and `HoursFromLocal` for the present: by the database's
/// rules at this very instant, and tells how long they hold; or with `ApplyCurrentOffset`.
void ApplyPresentOffset(const platform::Services& services, TimeZoneRecord& record);

/// Whether that is to be done again at an instant, because a clock has been changed since, there or
/// on the machine, or the machine's time has been set back. Never for a record without `ExactId`.
inline bool IsOutdated(const TimeZoneRecord& record, qint64 instant) {
    return instant < record.HoldsSince || instant >= record.HoldsUntil;
}

/// What to tell of an exact record whose zone has just changed: "New York has changed to standard
/// time, UTC-05:00".
QString ChangeText(const platform::Services& services, const TimeZoneRecord& record);

/// "UTC-05:00", and with seconds where there are any; 0 is "UTC+00:00".
/// @param offset seconds east of GMT
QString OffsetText(int offset);

}  // namespace mduTimeZones
