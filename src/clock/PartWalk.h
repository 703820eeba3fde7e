#pragma once

#include <QSize>
#include <optional>
#include <vector>

#include "clock/ClockHit.h"
#include "clock/DragObjects.h"
#include "timers/ClockTimers.h"

/// The parts of a clock as the keyboard walks along them.
namespace clockcore {

/// The parts that are seen, at least in part, in the order of the walk: the hands, the numbers from
/// one to twelve, the spots that hold a timer, the marks, an action, a message, the speaker, the
/// flag, the digits as one, the name. The lines of a calculator are not among them: it has keys of
/// its own.
/// @param scale the size of the surface in device pixels
std::vector<ClockHit> PartsInOrder(const ClockData& data, const mduUILib::ClockControls& controls,
                                   const QSize& scale, const timers::ClockTimers& timers);

/// What the arrow keys push when a part has the focus: with the hands it is the dial. `None` for a
/// part that stays.
DragObject PushedWith(ClockPart part, const DragGround& ground);

/// A part for those who hear it, such as "Hour number 3" or "Timer spot 1:12".
QString PartName(const mduUILib::ClockControls& controls, const ClockHit& hit);

/// Where the walk is. It goes from one end of the parts to the other and out there, so that it
/// holds nobody who wants to go on to the next window.
class PartWalk {
public:
    /// Goes on to the next part, or the one before; from outside to the first or the last. A part
    /// that is there no more is outside. @return false when there is none: the walk is over
    bool Step(const std::vector<ClockHit>& parts, bool forward);
    void Leave() { focus_.reset(); }
    /// Nothing outside of a walk.
    const std::optional<ClockHit>& Focus() const { return focus_; }

private:
    std::optional<ClockHit> focus_;
};

}  // namespace clockcore
