#pragma once

#include <QTimeZone>
#include <vector>

namespace platform {

/// A change of a zone's clock. Instants are seconds since the epoch, offsets seconds east of GMT.
struct TzChange {
    qint64 At = 0;
    int Before = 0;
    int After = 0;

    bool operator==(const TzChange&) const = default;
};

/// What a zone's clock does in a year and in the three days before and after it, so that the year
/// is whole on every clock of the world. London in 2026 changes twice, Kolkata never.
struct TzYear {
    int Year = 0;
    /// At the beginning: three days before the year's first moment in GMT.
    int FirstOffset = 0;
    std::vector<TzChange> Changes;  ///< in order of time; each really moves the clock

    bool operator==(const TzYear&) const = default;
};

/// Looks at the offset of each day, and for the second of each change; two changes that undo each
/// other within a day are not seen. It takes a while: keep what it gives.
/// @param year of the calendar of GMT
TzYear ReadTzYear(const QTimeZone& zone, int year);

/// The date and time that a clock with that offset shows at an instant; it carries `Qt::UTC`, as
/// all readings of wall clocks do.
///
///     TzLocalMoment(0, -5 * 3600)  // 31 December 1969, 19:00
QDateTime TzLocalMoment(qint64 instant, int offset);

}  // namespace platform
