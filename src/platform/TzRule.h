#pragma once

#include "platform/TzYear.h"
#include "platform/ZoneDatabase.h"

namespace platform {

/// A zone in the terms of its 44-byte value. Daylight time is the half with the later clock,
/// whatever the tz database calls it.
struct TzRule {
    std::int32_t Bias = 0;          ///< minutes; west is positive
    std::int32_t DaylightBias = 0;  ///< relative to `Bias`, -60 as a rule
    SYSTEMTIME StandardDate;        ///< told on the daylight clock
    SYSTEMTIME DaylightDate;        ///< told on the standard clock
    bool KeepsDaylight = false;     ///< the zone has two offsets
    bool DaylightNow = false;

    bool operator==(const TzRule&) const = default;
};

/// The rule for the year, with the clock right at @p present (seconds since the epoch) and at every
/// other moment of a year with two changes.
///
/// A change on the last Sunday, Friday or Saturday of its month takes the yearly form (`wYear` 0,
/// occurrence 5), which survives being written to a file and read back; every other change is the
/// date of that year. In a year with one change, or with more than two, both ends of the daylight
/// period that holds or touches the present are dates; an end that the year does not know lies
/// outside it. London in 2026 gives the last Sundays of March at 1:00 and of October at 2:00; New
/// York gives 8 March 2026 and 1 November 2026, both at 2:00.
TzRule MakeTzRule(const TzYear& year, qint64 present);

/// The 44 bytes, little-endian.
QByteArray TziBytes(const TzRule& rule);

}  // namespace platform
