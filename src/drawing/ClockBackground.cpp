#include "drawing/ClockBackground.h"

namespace drawing {

void ClockBackground::LoadClockPicture() {}

void ClockBackground::LoadWindowPicture(bool /*force*/) {}

bool ClockBackground::HasClockPicture() const { return false; }

void ClockBackground::DrawBackgroundPicture(Surface& /*surface*/) const {}

void ClockBackground::ApplyTransparency() {}

void ClockBackground::SetWindowShape() {}

void ClockBackground::SetClockShape() {}

void ClockBackground::ApplySurface() {}

void ClockBackground::ShowAutoBackground() {}

void ClockBackground::FinishWipe() {}

}  // namespace drawing
