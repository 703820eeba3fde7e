#include "drawing/ClockOverlays.h"

namespace drawing {

void ClockOverlays::LayOutOverlays() {}

void ClockOverlays::LoadFlag() {}

void ClockOverlays::SetFlagPosition() {}

void ClockOverlays::SetSunMoon() {}

void ClockOverlays::SetSpeakerPosition() {}

void ClockOverlays::SetTransparentIconPosition() {}

void ClockOverlays::SetLocationLabel() {}

void ClockOverlays::HideSunMoon() {}

void ClockOverlays::HideLocationLabel() {}

}  // namespace drawing
