#pragma once

#include <span>

#include "platform/ZoneDatabase.h"

/// Cities that the tables of the tz database may leave out: those name one city for each zone.
namespace profiles {

struct KnownCity {
    const char* Country;  ///< its two letters
    const char* Name;
    const char* Iana;
    platform::ZonePlace Place;
};

/// The seats of government of all states.
std::span<const KnownCity> KnownCapitals();

/// Others that many people look for.
std::span<const KnownCity> KnownGreatCities();

}  // namespace profiles
