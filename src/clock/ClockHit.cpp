#include "clock/ClockHit.h"

namespace clockcore {

namespace {

/// The arrays of each part, the upper ones first.
constexpr struct {
    mduUILib::ControlArray mduUILib::ClockControls::*Array;
    ClockPart Part;
} Layers[] = {
    {&mduUILib::ClockControls::imgSpeaker, ClockPart::Speaker},
    {&mduUILib::ClockControls::imgAction, ClockPart::Action},
    {&mduUILib::ClockControls::lblActionMsg, ClockPart::Action},
    {&mduUILib::ClockControls::lblMsg, ClockPart::Message},
};

}  // namespace

ClockPart PartAt(const mduUILib::ClockControls& controls, const QPointF& point) {
    for (const auto& layer : Layers) {
        if (ControlAt(controls.*layer.Array, point) != nullptr) {
            return layer.Part;
        }
    }
    return ClockPart::Face;
}

const mduUILib::Control* ControlAt(const mduUILib::ControlArray& array, const QPointF& point) {
    for (const mduUILib::Control& control : array.Members) {
        if (control.Visible && control.Rect().contains(point)) {
            return &control;
        }
    }
    return nullptr;
}

}  // namespace clockcore
