#pragma once

#include <QStringList>

#include "foundation/ClockProperty.h"
#include "timezones/TimeZoneRecord.h"

namespace platform {
struct Services;
}

/// The two keys by which a zone's rules come from the database at every instant:
///
///     Time Zone Rules=Exact,Exact,As Stored
///     Time Zone Id=America/New_York
namespace mduTimeZones {

inline const QString ZoneRulesKey = QStringLiteral("Time Zone Rules");
inline const QString ZoneIdKey = QStringLiteral("Time Zone Id");

/// The words of the first key.
QStringList ZoneRulesNames();

/// Gives a key without an identifier the one of the record, as `OverlayExactKeys` does; in memory,
/// so that it is saved with what else is to be. Nothing happens unless the rules are "Exact".
/// @return whether it has been filled in
bool FillZoneId(const platform::Services& services, const QString& source,
                const TimeZoneRecord& record, ClockProperties& properties);

/// Reads them over @p record, which has read the six keys. Nothing happens unless the rules are
/// "Exact". With an identifier that the database knows the record takes its offsets and transitions
/// for the present year, and so do their keys, so that the user may go back to them at any time.
///
/// A key without an identifier is given the one of the record's name, be it that of a zone or a
/// city, or of the profile it comes from. It is taken only where the zone has kept the offsets of
/// the file since 2000: nobody's own numbers are overwritten. Without any, `LacksId` is set.
/// @param source `KeyName` of the record before its file was laid over it: it may be a profile
/// @return whether a key has been changed
bool OverlayExactKeys(const platform::Services& services, const QString& source,
                      TimeZoneRecord& record, ClockProperties& properties);

}  // namespace mduTimeZones
