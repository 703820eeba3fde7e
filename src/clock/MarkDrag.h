#pragma once

#include <QPointF>
#include <QTime>
#include <optional>

#include "clock/DialTimers.h"
#include "drawing/Canvas.h"

namespace clockcore {

/// A timer's mark that is dragged along the ring of an analogue clock to another minute. The mark
/// follows the pointer around the dial and snaps to the minutes; nothing is changed before the
/// drop. A timer that fires or goes meanwhile ends the drag.
class MarkDrag {
public:
    /// What is dragged on. All of it outlives the drag.
    struct Parts {
        const mduUILib::ClockControls& Controls;
        timers::ClockTimers& Timers;
        timers::TimerHost& Host;
        DialTimers& Dial;
        drawing::Canvas& Canvas;
    };

    MarkDrag(const ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// The left button goes down on the mark of a slot. A clock without a ring drags no marks.
    /// @param at of the pointer, in device pixels of the surface, as everywhere here
    void Press(int slot, const QPointF& at);
    /// The pointer moves with the button held. Before it has gone @p threshold device pixels, as
    /// `IsDrag` counts them, that is still a click. @return the time that the mark has come to,
    /// "3:15" as a dial reads it; nothing where no mark is dragged
    std::optional<QString> Move(const QPointF& at, double threshold);
    /// Brings the mark to where it was dragged, after the clock has placed its marks anew; ends the
    /// drag of a timer that has gone. Called after each tick. @return whether a drag is under way
    bool Follow();
    /// The button goes up: a mark that was dragged gives its timer the time where it stands. At the
    /// timer's own minute of the dial nothing changes, so that "15:14" does not become "03:14".
    /// @return false for a click
    bool Drop();
    /// Takes a drag back: the mark returns. @return false when none was under way
    bool Cancel();
    bool IsDragging() const { return time_.has_value(); }

private:
    /// Of a mark whose corner has come there: 0:00 to 11:59.
    QTime TimeAt(const QPointF& corner) const;
    QPointF CornerOf(int slot) const;
    bool IsThere() const;
    void Place();
    void Forget();

    const ClockData& data_;
    Parts parts_;
    ChosenTimer chosen_;
    QPointF pressedAt_;
    /// From the lower right corner of the mark to the pointer. It is that of the place on the ring,
    /// which the mark may have been kept from by the edge of the window.
    QPointF held_;
    std::optional<QTime> time_;  ///< where the mark stands in a drag; nothing before it begins
};

}  // namespace clockcore
