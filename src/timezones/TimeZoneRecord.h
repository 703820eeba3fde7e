#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "platform/ZoneDatabase.h"

/// A time zone, identified by `StandardName`. Biases are total minutes that, added to zone time,
/// give GMT: west is positive. New York has a `StandardBias` of 300 and a `DaylightBias` of 240;
/// seen from a machine in London in January its `CurrentGMTHours` is 5 and its `HoursFromLocal` -5.
///
/// A record is a value, and does not follow the time by itself: whoever keeps one calls
/// `ApplyPresentOffset` again. An empty `StandardName` means no zone.
struct TimeZoneRecord {
    std::int32_t Bias = 0;  ///< of the database; 0 in records from elsewhere
    QString KeyName;        ///< database subkey, or the full path of a profile
    QString StandardName;
    platform::SYSTEMTIME StandardDate;  ///< when standard time starts
    std::int32_t StandardBias = 0;      ///< minutes, total
    QString DaylightName;
    platform::SYSTEMTIME DaylightDate;  ///< when daylight time starts
    std::int32_t DaylightBias = 0;      ///< minutes, total
    QString DisplayName;
    // The rest is derived, and valid once `ApplyPresentOffset` has run.
    QString CurrentName;
    float CurrentGMTHours = 0;  ///< total offset now, in hours, west positive
    float HoursFromLocal = 0;   ///< added to the local clock, gives this zone's clock
    /// The identifier by which the database tells offset and name at every instant; empty for a
    /// zone that goes by the rules above.
    QString ExactId;
    /// With `ExactId` the derived fields hold from the one instant to before the other (seconds
    /// since 1970 in GMT): no clock is changed in between, neither there nor on the machine.
    std::int64_t HoldsSince = -platform::ZoneSpan::Always;
    std::int64_t HoldsUntil = platform::ZoneSpan::Always;
    /// The database was to be asked, but knows no identifier for the zone.
    bool LacksId = false;

    bool operator==(const TimeZoneRecord&) const = default;
};

/// Zones from 1; index 0 is unused. It may hold empty records; readers skip them.
///
///     for (const TimeZoneRecord& record : records) {
///         if (!record.StandardName.isEmpty()) { ... }  // leaves out row 0 as well
///     }
using TimeZoneRecords = std::vector<TimeZoneRecord>;
