#include "clock/MarkDrag.h"

#include "clock/Dragging.h"
#include "drawing/TimerMarks.h"
#include "timers/DialSpot.h"
#include "timers/TimerFile.h"

namespace clockcore {

void MarkDrag::Press(int slot, const QPointF& at) {
    Forget();
    if (data_.Is(ClockKind::Analogue)) {
        chosen_ = parts_.Dial.Choose(slot);
        pressedAt_ = at;
        held_ = at - parts_.Controls.imgTimer(slot).Rect().bottomRight();
    }
}

std::optional<QString> MarkDrag::Move(const QPointF& at, double threshold) {
    if (!parts_.Dial.IsThere(chosen_) || !data_.Is(ClockKind::Analogue)) {
        Forget();
        return std::nullopt;
    }
    if (!IsDragging() && !IsDrag(pressedAt_, at, threshold)) {
        return std::nullopt;
    }
    time_ = TimeAt(at - held_);
    const timers::DialSpot spot = timers::SpotOfTime(*time_);
    parts_.Host.PlaceMark(chosen_.Slot, spot.Spot, spot.Place);
    parts_.Canvas.ShowChanges();
    return timers::DialText(*time_);
}

bool MarkDrag::Drop() {
    if (!IsDragging()) {
        Forget();
        return false;
    }
    const ChosenTimer chosen = chosen_;
    const QTime time = *time_;
    Forget();
    parts_.Dial.ChangeTime(chosen, timers::HourMinute(time));
    return true;
}

bool MarkDrag::Cancel() {
    const bool wasDragging = IsDragging();
    if (wasDragging && parts_.Dial.IsThere(chosen_)) {
        parts_.Timers.PlaceTimerMark(chosen_.Slot, chosen_.Timer.TimerTime);
        parts_.Canvas.ShowChanges();
    }
    Forget();
    return wasDragging;
}

QTime MarkDrag::TimeAt(const QPointF& corner) const {
    return timers::TimeAtTurn(
        drawing::TurnOnTheRing(parts_.Canvas.Surface(), data_.Properties(), corner));
}

void MarkDrag::Forget() {
    chosen_ = {};
    time_.reset();
}

}  // namespace clockcore
