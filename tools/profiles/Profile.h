#pragma once

#include <QDateTime>

#include "Cities.h"
#include "foundation/ClockProperty.h"

namespace profiles {

/// The property file of a city: the default file with the city's values.
///
/// The zone goes by the city's name, its daylight time by "Berlin Daylight Time", so that each city
/// is a zone of its own. Both of its changes are dates of the year of @p now, which is in GMT. Keys
/// "Zone:Latitude", "Zone:Longitude" (degrees, north and east positive), "Zone:Country" and
/// "Zone:City" tell its place. @p flag is the stored path of a picture; an empty one leaves the
/// default's.
ClockProperties MakeProfile(const City& city, const QDateTime& now, const QString& flag,
                            const ClockProperties& defaults);

}  // namespace profiles
