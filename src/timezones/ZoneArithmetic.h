#pragma once

#include <QDateTime>

#include "timezones/TimeZoneRecord.h"

/// From a zone's rules to its time. Moments are wall-clock readings (see `platform::WallClock`);
/// comparisons have a resolution of one second.
namespace mduTimeZones {

/// A bias in hours, as the derived fields tell it.
float Hours(std::int32_t minutes);

/// The time of day of a transition, as "2:00:00": the hour has no leading zero.
QString TimeText(const platform::SYSTEMTIME& time);

/// Whether the zone keeps daylight time: `DaylightDate.wMonth` and `.wDay` are both non-zero.
bool HasDaylightRule(const TimeZoneRecord& record);

/// The date of these parts; @p today when they are no valid date.
QDate DateFromParts(int day, int month, int year, const QDate& today);

/// The date of a yearly rule in the year of @p today. @p occurrence 5, 0 or more than 5 gives the
/// last such weekday of the month (0 is Sunday). Occurrence 1, weekday 0, month 4 gives 6 April in
/// 2008.
QDate RuleTransitionDate(int occurrence, int weekday, int month, const QDate& today);

/// A value for ordering two transitions; an invalid moment for a rule that reads as no date.
QDateTime TransitionValue(const platform::SYSTEMTIME& transition, const QDate& today);

/// Sets `CurrentName`, `CurrentGMTHours` and `HoursFromLocal` for @p now. @p localGMTHours is
/// `CurrentGMTHours` of the machine's own zone (`GetLocalZone`). The zone's standard clock is
/// compared with both transitions, strictly: at the exact second of either, standard time holds.
void ApplyCurrentOffset(TimeZoneRecord& record, const QDateTime& now, float localGMTHours);

/// The name in force at a local moment, `StandardName` or `DaylightName`. Leaves `CurrentGMTHours`
/// at the standard value and `CurrentName` at `StandardName`.
QString ZoneNameAtTime(const QDateTime& localMoment, const QDateTime& now, TimeZoneRecord& record,
                       float localGMTHours);

/// The clock's time: @p now, cut to its second, plus `HoursFromLocal`.
QDateTime GetClockTime(const TimeZoneRecord& record, const QDateTime& now);

}  // namespace mduTimeZones
