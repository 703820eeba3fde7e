#include "drawing/StepLine.h"

#include <cmath>

#include "foundation/Numbers.h"

namespace drawing {

namespace {

constexpr double FarAway = 1 << 20;

bool KeepsItsDigits(double from) {
    return (from + FarAway) - FarAway == from && (from - FarAway) + FarAway == from;
}

bool IsHalfWay(double value) {
    return value - std::floor(value) == 0.5;
}

/// How many whole steps lead from one end towards the other without passing it.
int StepsBetween(double from, double to, int step) {
    int steps = static_cast<int>(std::abs(to - from));
    const auto passes = [&](int k) { return step > 0 ? from + k > to : from - k < to; };
    while (!passes(steps + 1)) {
        ++steps;
    }
    while (steps > 0 && passes(steps)) {
        --steps;
    }
    return steps;
}

}  // namespace

StepLine::StepLine(double x1, double y1, double x2, double y2)
    : YDrives(std::abs(y1 - y2) > std::abs(x1 - x2)),
      otherFrom_(YDrives ? x1 : y1),
      otherSpan_(YDrives ? x2 - x1 : y2 - y1),
      span_(YDrives ? y2 - y1 : x2 - x1) {
    const double from = YDrives ? y1 : x1;
    const double to = YDrives ? y2 : x2;
    Step = to >= from ? 1 : -1;
    Start = mduAPILib::RoundToInteger(from);
    Steps = StepsBetween(from, to, Step);
    StartsHalfWay = IsHalfWay(from);
    StepsAreExact = KeepsItsDigits(from);
    slope_ = otherSpan_ == 0 ? 0 : Step * otherSpan_ / span_;
}

// In the order in which `DrawPixelLine` computes, so that a tie falls to the same side.
int StepLine::ExactlyAt(int k) const {
    const double at = k * Step;
    return mduAPILib::RoundToInteger(otherSpan_ == 0 ? otherFrom_
                                                     : at * otherSpan_ / span_ + otherFrom_);
}

}  // namespace drawing
