#include "timezones/StartZone.h"

#include "foundation/FileHelpers.h"
#include "timezones/ZoneSources.h"

namespace mduTimeZones {

StartZone ChooseStartZone(const platform::Services& services, const QString& commandLine) {
    StartZone zone;
    zone.Name = commandLine.isEmpty() ? GetLocalZone(services).StandardName : commandLine;
    zone.Problem = mduLib::ZoneNameProblem(zone.Name.trimmed());
    return zone;
}

}  // namespace mduTimeZones
