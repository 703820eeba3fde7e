#pragma once

#include <QTimeZone>

#include "platform/ZoneDatabase.h"

namespace platform {

/// The span of a zone of the tz database that holds an instant, in whatever year. Daylight time is
/// the half with the later clock: where the database calls winter a daylight time of less than
/// none, as in Dublin, summer is it all the same. A zone that keeps such a clock for more than a
/// year keeps it as its standard time.
/// @param instant seconds since 1970 in GMT
ZoneSpan TzSpanAt(const QTimeZone& zone, std::int64_t instant);

}  // namespace platform
