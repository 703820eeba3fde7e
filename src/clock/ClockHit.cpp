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
    {&mduUILib::ClockControls::imgTimer, ClockPart::TimerMark},
    {&mduUILib::ClockControls::lblLocation, ClockPart::Location},
    {&mduUILib::ClockControls::imgFlag, ClockPart::Flag},
    {&mduUILib::ClockControls::lblTimeOutput, ClockPart::Output},
    {&mduUILib::ClockControls::lblTimeInput, ClockPart::Input},
    {&mduUILib::ClockControls::lblDigitalNumber, ClockPart::Digits},
    {&mduUILib::ClockControls::lblHour, ClockPart::HourNumber},
    {&mduUILib::ClockControls::imgClockNumber, ClockPart::Spot},
};

}  // namespace

ClockHit PartAt(const mduUILib::ClockControls& controls, const QPointF& point) {
    for (const auto& layer : Layers) {
        const mduUILib::ControlArray& array = controls.*layer.Array;
        if (const mduUILib::Control* control = ControlAt(array, point)) {
            return {layer.Part, array.First + static_cast<int>(control - array.Members.data())};
        }
    }
    return {};
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
