#pragma once

#include "foundation/ClockProperty.h"
#include "foundation/Controls.h"
#include "foundation/ModuleState.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "timezones/TimeZoneRecord.h"
#include "timezones/ZoneArithmetic.h"

/// What the parts of one clock share; all of it outlives them. It is a row of references, of which
/// a part keeps a copy; the properties and the zone are so always the clock's present ones. Each
/// kind of parts names its own host, an interface that the clock implements.
/// @tparam ClockHost what these parts ask of the clock that they belong to
template <class ClockHost>
struct ClockContext {
    const ClockProperties& Properties;
    const TimeZoneRecord& Zone;
    mduUILib::ClockControls& Controls;
    const platform::Services& Services;
    const ModuleState& Module;
    ClockHost& Host;

    /// The time that the clock shows, to the second: the machine's time and the zone's
    /// `HoursFromLocal`, as they are at this moment.
    QDateTime ClockTime() const { return mduTimeZones::GetClockTime(Zone, Services.Clock.Now()); }
};
