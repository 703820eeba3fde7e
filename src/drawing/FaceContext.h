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
struct FaceContext {
    const ClockProperties& Properties;
    const TimeZoneRecord& Zone;
    mduUILib::ClockControls& Controls;
    Canvas& Window;
    platform::WallClock& Clock;
    platform::Files& FileSystem;
    platform::RandomNumbers& Random;
    mduUILib::PictureStore& Pictures;
    const PathTable& Paths;
};

}  // namespace drawing
