#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

#include "timezones/TimeZoneRecord.h"

/// The same moment on the local clock and on a zone's clock, as texts.
namespace mduTimeZones {

/// The moment that a text tells: a text without "/" is a time of the day of @p now, a date alone
/// is its first second. Nothing for a text that is neither date nor time.
std::optional<QDateTime> MomentOfText(const QString& text, const QDateTime& now);

/// Converts a local date and time to the zone's (@p toZone), or a zone's to the local one, with
/// the offset that the zone has at present (`HoursFromLocal`). The result is "25/03/2008 9:05:07";
/// it is empty for a text that is no date or time, and beyond the years 100 to 9999.
///
/// With an offset of 5.5 and at 15/06/2026, "12:30" gives "15/06/2026 18:00:00" to the zone.
QString ConvertZoneTime(const QString& text, bool toZone, const TimeZoneRecord& record,
                        const QDateTime& now);

/// A zone's moment on the local clock.
QDateTime LocalMoment(const QDateTime& zoneMoment, const TimeZoneRecord& record);

}  // namespace mduTimeZones
