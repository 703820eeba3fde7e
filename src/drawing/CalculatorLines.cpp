#include "drawing/CalculatorLines.h"

namespace drawing {

void CalculatorLines::DrawCalculatorClock() {}

void CalculatorLines::SetCalculatorClock(bool /*fill*/) {}

void CalculatorLines::SetCalculatorLayout() {}

void CalculatorLines::HideCalculatorClock() {}

void CalculatorLines::BeginInput() {}

bool CalculatorLines::EditCalculatorKey(int /*keyCode*/) { return false; }

}  // namespace drawing
