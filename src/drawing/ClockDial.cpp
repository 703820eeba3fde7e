#include "drawing/ClockDial.h"

namespace drawing {

void ClockDial::SetClockDial(bool /*show*/, const QString& /*style*/, bool /*shadow*/, bool /*numbersOnly*/) {}

void ClockDial::DrawDialNumbers(bool /*show*/, const QString& /*style*/, bool /*numbersOnly*/) {}

void ClockDial::ShowMinuteSpots(int /*hour*/) {}

void ClockDial::ApplyClockSpecial() {}

void ClockDial::RecolourNumbers() {}

bool ClockDial::NumbersArePainted() const { return false; }

bool ClockDial::NumbersAreRandom() const { return false; }

void ClockDial::PaintStill(Surface& /*surface*/) const {}

void ClockDial::PaintNumbersOver(Surface& /*surface*/) const {}

}  // namespace drawing
