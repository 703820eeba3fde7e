#pragma once

#include <optional>

#include "platform/Files.h"
#include "platform/ZoneDatabase.h"

/// What a profile may tell of its city beside the zone.
namespace mduTimeZones {

struct ProfileFacts {
    std::optional<platform::ZonePlace> Place;  ///< keys "Latitude" and "Longitude", in degrees
    QString Country;                           ///< key "Country"; empty when there is none
};

/// Reads them in one look through the file's text: a list of zones asks for hundreds. A place needs
/// both numbers, within the poles and the date line; a missing or unreadable file tells nothing.
ProfileFacts ReadProfileFacts(const platform::Files& files, const QString& path);
ProfileFacts FactsInText(const QByteArray& content);

}  // namespace mduTimeZones
