#pragma once

#include <QDateTime>
#include <QStringList>

#include "timezones/TimeZoneRecord.h"

namespace mduTimeZones {

/// What the clock of a place shows at a time of the other's clock.
struct ConvertedTime {
    /// "25/03/2008 9:05:07"; of two the earlier; empty for a text that is no time, and beyond the
    /// years 100 to 9999. A time that does not exist gives "does not exist".
    QString Text = {};
    QStringList Texts =
        {};  ///< two, the earlier first, of a time that is lived through twice; else none
    bool IsGap = false;  ///< the time asked for is left out by the clock that it is told of

    /// For a line of text: both readings, as "25/10/2026 1:30:00 or 2:30:00" where they lie in one
    /// day, else both whole.
    QString Shown() const;
    /// The same for a line that has no room for a date: "1:30:00 or 2:30:00".
    QString ShownAsTimes() const;

    bool operator==(const ConvertedTime&) const = default;
};

/// `ConvertZoneTime`; for a record with `ExactId` with the offsets that both clocks have at the
/// moment asked for.
ConvertedTime ConvertTime(const platform::ZoneDatabase& zones, const QString& text, bool toZone,
                          const TimeZoneRecord& record, const QDateTime& now);

/// The name in force in an exact record's zone at a time of the machine's clock, or of the zone's
/// own (@p isZoneTime); of a time that is lived through twice the earlier counts, and one that is
/// left out as if the clock had not been put forward yet.
QString ExactNameAt(const platform::ZoneDatabase& zones, const TimeZoneRecord& record,
                    const QDateTime& reading, bool isZoneTime);

}  // namespace mduTimeZones
