#pragma once

#include <optional>

#include "platform/Files.h"
#include "platform/ZoneDatabase.h"

/// What a profile may tell of its city beside the zone.
namespace mduTimeZones {

struct ProfileFacts {
    std::optional<platform::ZonePlace> Place;  ///< keys "Latitude" and "Longitude", in degrees
    /// Key "Country", up to its first comma; empty when there is none.
    QString Country;
};

/// Reads them in one look through the file's text: a list of zones asks for hundreds. A place needs
/// both numbers, within the poles and the date line; a missing or unreadable file tells nothing.
ProfileFacts ReadProfileFacts(const platform::Files& files, const QString& path);
/// The same for the content of such a file, in UTF-8. The keys may stand behind a category; letter
/// case counts, and the first line of a key wins:
///
///     Zone:Latitude=59.91
///     Zone:Longitude=10.75
///     Zone:Country=Norway
ProfileFacts FactsInText(const QByteArray& content);

}  // namespace mduTimeZones
