#pragma once

#include <QStringList>
#include <functional>

#include "foundation/ClockProperty.h"
#include "foundation/ModuleState.h"
#include "timezones/TimeZoneRecord.h"

namespace platform {
class Files;
struct Services;
}  // namespace platform

/// The six "Time Zone ..." keys of a property file.
namespace mduTimeZones {

/// Their names, in order.
const QStringList& ZoneKeys();

/// The current value of a key, trimmed; empty when the key has no line, unlike a plain lookup.
QString ZoneKeyValue(const ClockProperties& properties, const QString& key);

/// Lays the six keys of @p properties over @p record. An empty key is filled in from the record
/// first; @p onFilledIn is called after each. @return the names of the keys that were filled in.
QStringList OverlayZoneKeys(
    TimeZoneRecord& record, ClockProperties& properties, const QDateTime& now,
    const std::function<void()>& onFilledIn = [] {});

/// Brings offsets and transitions into their four keys, as far as these hold others; the names
/// stay.
/// @return whether a key has been changed
bool RenewZoneRules(const TimeZoneRecord& record, ClockProperties& properties, const QDate& today);

/// `OverlayZoneKeys`, with the file saved after each key that was filled in, and then
/// `OverlayExactKeys`. @return false when the file could not be written.
bool ReadZoneKeys(const platform::Services& services, TimeZoneRecord& record,
                  ClockProperties& properties, const QString& path);

/// Writes the six keys of the zone of that name into @p properties and the file, saved after each.
/// A zone that nothing lists takes them from a profile file of its name instead. Gives the record
/// back. @p written, when given, tells whether each save succeeded.
TimeZoneRecord WriteZoneKeys(const platform::Services& services, const PathTable& paths,
                             ClockProperties& properties, const QString& zoneName,
                             const QString& path, bool* written = nullptr);

/// Puts what `WriteZoneKeys` would write into @p properties, and writes nothing. A zone that
/// nothing knows leaves them as they are.
void PutZoneKeys(const platform::Services& services, const PathTable& paths,
                 ClockProperties& properties, const QString& zoneName);

/// Loads a zone's file into an empty array; one that is missing or empty has no rows. @return false
/// when a file is there that may not be written anew (`mduLib::MayRewrite`); no row is then read.
bool LoadZoneFile(const platform::Files& files, const QString& path, ClockProperties& properties);

/// Loads the file, then `WriteZoneKeys`. @return false when it could not be read or written.
bool ApplyZoneToFile(const platform::Services& services, const PathTable& paths,
                     const QString& path, const QString& zoneName);

/// Copies every one of the six keys that has a line in @p source, and those of exact rules. An
/// identifier that belongs to another zone than the new one does not stay.
void CopyZoneKeys(const ClockProperties& source, ClockProperties& target);

/// The whole of a clock's loading: `FindTimeZone`, `ReadZoneKeys` over it, the name where there is
/// none, and the present offset. @p written, when given, tells whether each key that was filled in
/// reached the file.
TimeZoneRecord LoadZone(const platform::Services& services, const PathTable& paths,
                        const QString& zoneName, ClockProperties& properties, const QString& path,
                        bool* written = nullptr);

}  // namespace mduTimeZones
