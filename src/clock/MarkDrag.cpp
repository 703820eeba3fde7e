#include "clock/MarkDrag.h"

#include "clock/Dragging.h"
#include "drawing/TimerMarks.h"
#include "timers/DialSpot.h"
#include "timers/TimerFile.h"

namespace clockcore {

namespace {

constexpr int AnyYear = 2000;  // a time alone has none

}  // namespace

void MarkDrag::Press(int slot, const QPointF& at) {
    Forget();
    if (data_.Is(ClockKind::Analogue)) {
        chosen_ = parts_.Dial.Choose(slot);
        pressedAt_ = at;
        held_ = at - CornerOf(slot);
    }
}

QPointF MarkDrag::CornerOf(int slot) const {
    const auto time = timers::TimeOfText(chosen_.Timer.TimerTime, AnyYear);
    if (!time) {
        return parts_.Controls.imgTimer(slot).Rect().bottomRight();
    }
    const timers::DialSpot spot = timers::SpotOfTime(*time);
    return drawing::TimerMarkPlace(parts_.Canvas.Surface(), data_.Properties(), true, spot.Spot,
                                   spot.Place, QSizeF(0, 0));
}

std::optional<QString> MarkDrag::Move(const QPointF& at, double threshold) {
    if (!IsThere()) {
        Forget();
        return std::nullopt;
    }
    if (!IsDragging() && !IsDrag(pressedAt_, at, threshold)) {
        return std::nullopt;
    }
    time_ = TimeAt(at - held_);
    Place();
    return timers::DialText(*time_);
}

bool MarkDrag::Follow() {
    if (!IsDragging()) {
        return false;
    }
    if (!IsThere()) {
        Forget();
        return false;
    }
    Place();
    return true;
}

bool MarkDrag::IsThere() const {
    return parts_.Dial.IsThere(chosen_) && data_.Is(ClockKind::Analogue);
}

void MarkDrag::Place() {
    const timers::DialSpot spot = timers::SpotOfTime(*time_);
    parts_.Host.PlaceMark(chosen_.Slot, spot.Spot, spot.Place);
    parts_.Canvas.ShowChanges();
}

bool MarkDrag::Drop() {
    if (!IsDragging()) {
        Forget();
        return false;
    }
    const ChosenTimer chosen = chosen_;
    const QTime time = *time_;
    Forget();
    const auto before = timers::TimeOfText(chosen.Timer.TimerTime, AnyYear);
    if (!before || timers::DialMinute(*before) != timers::DialMinute(time)) {
        parts_.Dial.ChangeDialTime(chosen, timers::HourMinute(time));
    }
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
