#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

#include "platform/ZoneDatabase.h"

namespace mduTimeZones {

/// A change of a zone's clock or of the name of its time.
struct ZoneChange {
    qint64 At = 0;  ///< the first second with the new one, since 1970 in GMT
    platform::ZoneSpan Before;
    platform::ZoneSpan After;
};

/// A zone of the database at any instant, in whatever year. It asks the database anew each time and
/// keeps nothing. Instants are seconds since 1970 in GMT; readings are those of a wall clock (see
/// `platform::WallClock`).
///
///     const ExactZone zone(services.Zones, u"America/New_York"_s);
///     zone.ReadingAt(services.Clock.Instant());   // what the clocks there show
///     zone.InstantsOf(reading).empty();           // a time that does not exist there
class ExactZone {
public:
    /// @param id an identifier; an empty one is the machine's own zone. One that the database does
    /// not know is GMT.
    /// @param zones outlives this object
    ExactZone(const platform::ZoneDatabase& zones, QString id)
        : zones_(zones), id_(std::move(id)) {}

    platform::ZoneSpan At(qint64 instant) const {
        return zones_.SpanAt(id_, instant).value_or(platform::ZoneSpan());
    }
    QDateTime ReadingAt(qint64 instant) const;

    /// All instants at which the zone's clocks show that reading, the earlier first: two where an
    /// hour is lived through twice, none where one is left out.
    std::vector<qint64> InstantsOf(const QDateTime& reading) const;

    /// The one that is taken where there has to be one: the earlier of two, and for a reading that
    /// is left out the instant that the clock, not yet put forward, would have shown it at.
    qint64 InstantOf(const QDateTime& reading) const;

    /// The first change behind @p instant that a clock shows, or that ends or begins daylight time;
    /// nothing when there is none any more. Changes of the law alone are passed over.
    std::optional<ZoneChange> NextChange(qint64 instant) const;

private:
    const platform::ZoneDatabase& zones_;
    QString id_;
};

}  // namespace mduTimeZones
