#pragma once

#include "foundation/ModuleState.h"
#include "timezones/TimeZoneRecord.h"

namespace platform {
struct Services;
class ZoneDatabase;
}  // namespace platform

/// Where records come from: the system's zone database and the folder of zone profiles.
namespace mduTimeZones {

/// All records of the system's database, from index 1. With no database it is one empty record.
TimeZoneRecords ListWindowsTimeZones(const platform::Services& services);

/// Biases (as totals) and transitions of a subkey's 44-byte "TZI"; zeros if it can't be read.
void ReadZoneTZI(const platform::ZoneDatabase& zones, const QString& subkey,
                 TimeZoneRecord& record);

/// The same from the 44 bytes themselves; zeros from any other number of bytes.
void TakeTzi(QByteArray tzi, TimeZoneRecord& record);

/// Three text values of a subkey, in the order asked for; blank where they can't be read.
std::array<QString, 3> ReadZoneValues(const platform::ZoneDatabase& zones, const QString& subkey,
                                      const std::array<QString, 3>& names);

/// One record for each profile file of a folder, from index 1, in file-name order. A file that
/// can't be read leaves an empty record. A key that is missing reads "0", as everywhere but in
/// `ReadZoneKeys`: a profile without keys lists as "(GMT-00:00) Name" with `StandardName` "0".
TimeZoneRecords ListProfileTimeZones(const platform::Services& services, const QString& folder);

/// The machine's own zone with its derived fields; `HoursFromLocal` equals `CurrentGMTHours` here.
TimeZoneRecord GetLocalZone(const platform::Services& services);
TimeZoneRecord ReadRegistryLocalZone(const platform::Services& services);

/// The zone of that standard name, from the database or else from the profiles; if none has it, an
/// empty record with that name.
TimeZoneRecord FindTimeZone(const platform::Services& services, const PathTable& paths,
                            const QString& standardName);

}  // namespace mduTimeZones
