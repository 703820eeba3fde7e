#include "clock/PartDrag.h"

#include <algorithm>
#include <utility>

#include "drawing/AnalogueFace.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

namespace clockcore {

using mduUILib::Control;

void PartDrag::Begin(DragObject object) {
    TakeBack();
    if (ControlOf(object, parts_.Controls) == nullptr) {
        return;
    }
    object_ = object;
    start_ = Held().Rect();
    revision_ = data_.Revision();
    for (const QString& key : KeysOf(object)) {
        before_.emplace_back(key, mduLib::GetProperty(key, data_.Properties()));
    }
}

bool PartDrag::Follow(const QPointF& pointer, const QPointF& way) {
    if (object_ == DragObject::None || !IsStillOurs()) {
        TakeBack();
        return false;
    }
    const DropWindow window = DropWindowOf(parts_.Canvas);
    moved_ = true;
    if (IsPercent()) {
        Put(DroppedPercent(object_, pointer, ReadOut().size(), window));
        Redo();
    } else {
        MoveControl(InSight(start_.translated(way * window.Ratio), window.Surface));
    }
    return true;
}

void PartDrag::Drop() {
    if (!moved_ || !IsStillOurs()) {
        TakeBack();
        return;
    }
    if (!IsPercent()) {
        Put(PlacedValues());
        Redo();
    }
    QStringList keys;
    for (const auto& value : before_) {
        keys += value.first;
    }
    object_ = DragObject::None;
    moved_ = false;
    before_.clear();
    put_.clear();
    parts_.Settings.Save(keys);
}

void PartDrag::TakeBack() {
    if (object_ == DragObject::None) {
        return;
    }
    const bool moved = std::exchange(moved_, false);
    const KeyValues put = std::exchange(put_, {});
    const KeyValues before = std::exchange(before_, {});
    for (std::size_t i = 0; i < put.size(); ++i) {
        if (mduLib::GetProperty(put[i].first, data_.Properties()) == put[i].second) {
            mduLib::PutProperty(before[i].first, before[i].second, data_.EditProperties());
        }
    }
    if (moved) {
        Redo();
    }
    object_ = DragObject::None;
}

void PartDrag::Nudge(DragObject object, const QPoint& percents) {
    if (object != object_ || !IsStillOurs()) {
        Drop();
        Begin(object);
    }
    if (object_ == DragObject::None) {
        return;
    }
    moved_ = true;
    if (IsPercent()) {
        Put(NudgedPercent(percents));
        Redo();
    } else {
        NudgeControl(percents);
    }
}

Control& PartDrag::Held() const {
    return *ControlOf(object_, parts_.Controls);
}

QRectF PartDrag::ReadOut() const {
    QRectF whole;
    for (const Control& label : parts_.Controls.lblDigitalNumber.Members) {
        if (label.Visible) {
            whole |= label.Rect();
        }
    }
    return whole;
}

bool PartDrag::IsPercent() const {
    return object_ == DragObject::Dial || object_ == DragObject::Digits;
}

KeyValues PartDrag::PlacedValues() const {
    const DropWindow window = DropWindowOf(parts_.Canvas);
    return object_ == DragObject::Flag ? DroppedCorner(Held().Rect(), window.Surface)
                                       : DroppedPixels(object_, Held().Rect(), window);
}

KeyValues PartDrag::NudgedPercent(const QPoint& percents) const {
    const DropWindow window = DropWindowOf(parts_.Canvas);
    const QPointF place =
        object_ == DragObject::Dial
            ? drawing::ClockCentre(data_.Properties(), static_cast<int>(window.Surface.width()),
                                   static_cast<int>(window.Surface.height()))
            : Held().Rect().topLeft();
    return PushedPercent(object_, place, percents, ReadOut().size(), window);
}

void PartDrag::NudgeControl(const QPoint& percents) {
    const DropWindow window = DropWindowOf(parts_.Canvas);
    const auto step = [&window](double whole, int percent) {
        const double pixels = std::max(1.0, std::nearbyint(whole / window.Ratio / 100));
        return percent * pixels * window.Ratio;
    };
    const bool isFlag = object_ == DragObject::Flag;
    const QSizeF& whole = window.Surface;
    const QPointF way(isFlag ? percents.x() * whole.width() : step(whole.width(), percents.x()),
                      isFlag ? percents.y() * whole.height() : step(whole.height(), percents.y()));
    MoveControl(InSight(Held().Rect().translated(way), whole));
}

void PartDrag::MoveControl(const QRectF& place) {
    Held().Left = static_cast<float>(place.left());
    Held().Top = static_cast<float>(place.top());
    parts_.Canvas.ShowChanges();
}

void PartDrag::Put(const KeyValues& values) {
    for (const auto& [key, value] : values) {
        mduLib::PutProperty(key, value, data_.EditProperties());
    }
    put_ = values;
    revision_ = data_.Revision();
}

void PartDrag::Redo() {
    if (object_ == DragObject::Dial) {
        RedoDial();
    } else if (object_ == DragObject::Digits && data_.IsDigital()) {
        parts_.Digital.SetDigitalLayout();
    } else {
        parts_.Overlays.LayOutOverlays();
        parts_.Canvas.ShowChanges();
    }
}

// All that stands around the dial's centre, each once.
void PartDrag::RedoDial() {
    parts_.Dial.DrawDialNumbers(data_.IsAnalogue() ? drawing::DialParts::All
                                                   : drawing::DialParts::None);
    parts_.Background.SetClockShape();
    if (data_.IsDigital()) {
        parts_.Digital.SetDigitalLayout();
    }
    parts_.Overlays.LayOutOverlays();
    parts_.Timers.PlaceTimerMarks();
    parts_.Face.DrawClockFace();
}

}  // namespace clockcore
