#pragma once

#include "clock/ClockData.h"
#include "clock/ClockScreen.h"
#include "foundation/Controls.h"

namespace platform {
struct Services;
}

namespace clockcore {

/// Keeps a clock with exact rules right over the changes of its zone's clock and of the machine's.
/// On any other clock it does nothing.
class ZoneFollow {
public:
    /// All that it is given outlives it.
    ZoneFollow(ClockData& data, mduUILib::ClockControls& controls, ClockScreen& screen,
               const platform::Services& services)
        : data_(data), controls_(controls), screen_(screen), services_(services) {}

    /// To be called at each tick, before the clock asks for its time: a comparison, unless a clock
    /// has been changed since the last one. A change of the zone's own time is told in the status
    /// bar: "New York has changed to standard time, UTC-05:00".
    /// @return whether the clock shows another time or name than before, so that all of it is to be
    /// drawn anew
    bool Follow();

private:
    ClockData& data_;
    mduUILib::ClockControls& controls_;
    ClockScreen& screen_;
    const platform::Services& services_;
};

}  // namespace clockcore
