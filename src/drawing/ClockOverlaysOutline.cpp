// How the overlays keep inside the window's outline.
#include "drawing/ClockOverlays.h"

namespace drawing {

using mduUILib::Control;

namespace {

constexpr double ClearOfOthers = 3;  // logical pixels

}  // namespace

const SeenArea& ClockOverlays::Seen() {
    if (!sunMoonSize_) {
        ReadProperties();
    }
    if (IsFigure(windowShape_)) {
        const WindowMeasures window = MeasuresOf(face_.Window);
        if (measured_ != window) {
            measured_ = window;
            seen_ = SeenThrough(windowShape_, window);
        }
    }
    return seen_;
}

/// What is shown of the read-out and of the overlays that are placed before this one.
std::vector<QRectF> ClockOverlays::Taken(const Control& before) const {
    const mduUILib::ClockControls& controls = face_.Controls;
    std::vector<QRectF> taken;
    for (const mduUILib::ControlArray* array :
         {&controls.lblDigitalNumber, &controls.lblTimeInput, &controls.lblTimeOutput,
          &controls.imgFlag, &controls.shpArea, &controls.imgSpeaker}) {
        for (const Control& control : array->Members) {
            if (&control == &before) {
                return taken;
            }
            if (control.Visible) {
                taken.push_back(control.Rect());
            }
        }
    }
    return taken;
}

void ClockOverlays::KeepInside(Control& control) {
    const SeenArea& seen = Seen();
    if (!seen.IsWhole()) {
        const double gap = ClearOfOthers * face_.Window.Surface().DevicePixelRatio();
        const QPointF way = seen.WayInward(control.Rect(), Taken(control), gap);
        control.Left += static_cast<float>(way.x());
        control.Top += static_cast<float>(way.y());
    }
}

}  // namespace drawing
