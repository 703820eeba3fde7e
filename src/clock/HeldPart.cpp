#include "clock/HeldPart.h"

#include <algorithm>
#include <utility>

#include "foundation/PropertyLookup.h"

namespace clockcore {

using mduUILib::Control;

void HeldPart::Take(DragObject object) {
    TakeBack();
    if (ControlOf(object, parts_.Controls) == nullptr) {
        return;
    }
    object_ = object;
    if (!IsPercent()) {
        parts_.Overlays.Hold(&Held());
    }
    kind_ = data_.Tag.Kind;
    style_ = data_.Dial.LastStyle;
    for (const QString& key : KeysOf(object)) {
        before_.emplace_back(key, mduLib::GetProperty(key, data_.Properties()));
    }
}

bool HeldPart::IsStillOurs() const {
    const KeyValues& left = put_.empty() ? before_ : put_;
    return object_ != DragObject::None && data_.Is(kind_) && data_.Dial.LastStyle == style_ &&
           std::all_of(left.begin(), left.end(), [this](const auto& value) { return Has(value); });
}

bool HeldPart::IsPercent() const {
    return object_ == DragObject::Dial || object_ == DragObject::Digits;
}

QRectF HeldPart::Place() const {
    return Held().Rect();
}

QRectF HeldPart::ReadOut() const {
    QRectF whole;
    for (const Control& label : parts_.Controls.lblDigitalNumber.Members) {
        if (label.Visible) {
            whole |= label.Rect();
        }
    }
    return whole;
}

void HeldPart::Put(const KeyValues& values) {
    moved_ = true;
    PutValues(values);
    Redo();
}

void HeldPart::MoveTo(const QRectF& place) {
    moved_ = true;
    const QRectF inside = InSight(place, Window().Surface);
    Held().Left = static_cast<float>(inside.left());
    Held().Top = static_cast<float>(inside.top());
    parts_.Canvas.ShowChanges();
}

void HeldPart::Store() {
    if (!moved_ || !IsStillOurs()) {
        TakeBack();
        return;
    }
    if (!IsPercent()) {
        PutValues(PlacedValues());
        LetGo();
        Redo();
    }
    QStringList keys;
    for (const auto& value : before_) {
        keys += value.first;
    }
    Forget();
    parts_.Settings.Save(keys);
}

void HeldPart::TakeBack() {
    for (std::size_t i = 0; i < put_.size(); ++i) {
        if (Has(put_[i])) {
            PutValue(before_[i].first, before_[i].second, data_.EditProperties());
        }
    }
    LetGo();
    if (std::exchange(moved_, false)) {
        Redo();
    }
    Forget();
}

Control& HeldPart::Held() const {
    return *ControlOf(object_, parts_.Controls);
}

KeyValues HeldPart::PlacedValues() const {
    return object_ == DragObject::Flag ? DroppedCorner(Place(), Window().Surface)
                                       : DroppedPixels(object_, Place(), Window());
}

void HeldPart::PutValues(const KeyValues& values) {
    for (const auto& [key, value] : values) {
        PutValue(key, value, data_.EditProperties());
    }
    put_ = values;
}

bool HeldPart::Has(const KeyValues::value_type& value) const {
    return mduLib::GetProperty(value.first, data_.Properties()) == value.second;
}

void HeldPart::LetGo() {
    if (object_ != DragObject::None && !IsPercent()) {
        parts_.Overlays.Hold(nullptr);
    }
}

void HeldPart::Forget() {
    object_ = DragObject::None;
    moved_ = false;
    before_.clear();
    put_.clear();
}

void HeldPart::Redo() {
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
void HeldPart::RedoDial() {
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
