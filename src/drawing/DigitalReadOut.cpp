#include "drawing/DigitalReadOut.h"

namespace drawing {

void DigitalReadOut::DrawDigitalClock(const QString& /*format*/) {}

void DigitalReadOut::SetDigitalLayout() {}

void DigitalReadOut::HideDigitalClock() {}

void DigitalReadOut::FinishMotion() {}

}  // namespace drawing
