#pragma once

#include "foundation/ClockProperty.h"
#include "foundation/Controls.h"
#include "foundation/ModuleState.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "timezones/TimeZoneRecord.h"
#include "timezones/ZoneArithmetic.h"

/// What the parts of one clock share; all of it outlives them.
/// @tparam ClockHost what these parts ask of the clock that they belong to
template <class ClockHost>
struct ClockContext {
    const ClockProperties& Properties;
    const TimeZoneRecord& Zone;
    mduUILib::ClockControls& Controls;
    const platform::Services& Services;
    const ModuleState& Module;
    ClockHost& Host;

    /// The time that the clock shows.
    QDateTime ClockTime() const { return mduTimeZones::GetClockTime(Zone, Services.Clock.Now()); }
};
