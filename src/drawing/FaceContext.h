#pragma once

#include "drawing/Canvas.h"
#include "foundation/ClockProperty.h"
#include "foundation/Controls.h"
#include "foundation/ModuleState.h"
#include "foundation/PictureStore.h"
#include "platform/Files.h"
#include "platform/WallClock.h"
#include "timezones/TimeZoneRecord.h"

namespace platform {
class RandomNumbers;
}

namespace drawing {

/// What the parts of one clock's face share. All of it is owned by the clock or by the program and
/// outlives the parts; the properties and the zone are read anew at each use.
///
/// Each part keeps a copy of these references, never of what they lead to. A key that is missing
/// among the properties reads "0", and means what that means.
struct FaceContext {
    const ClockProperties& Properties;
    const TimeZoneRecord& Zone;
    /// The parts of a face share these: each moves and shows its own, and `FaceComposer` paints
    /// them.
    mduUILib::ClockControls& Controls;
    /// Where to draw, in device pixels, and whom to tell that something has changed.
    Canvas& Window;
    /// The machine's time. The clock's own is `mduTimeZones::GetClockTime(Zone, Clock.Now())`.
    platform::WallClock& Clock;
    platform::Files& FileSystem;
    platform::RandomNumbers& Random;
    /// Loads and scales pictures for all clocks; a picture that several show is kept once.
    mduUILib::PictureStore& Pictures;
    /// Where relative paths among the properties begin, and where the stock's pictures lie.
    const PathTable& Paths;
    /// What the calculator asks for the rules of a moment.
    const platform::ZoneDatabase& Zones;
};

}  // namespace drawing
