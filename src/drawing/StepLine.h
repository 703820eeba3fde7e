#pragma once

#include "drawing/Surface.h"

namespace drawing {

/// The pixels of `DrawPixelLine`, each to be had by its number, so that those outside of the clip
/// need not be walked and neighbouring lines can be compared. Along the driving axis the line goes
/// from @p Start by @p Step; across it stands at `At`.
///
/// Holds for regular lines only: the others step over a row now and then, because they start
/// exactly half-way between two, or so close to 0 that adding 1 loses digits.
class StepLine {
public:
    StepLine() = default;
    /// From the first end to the second, in pixels. Both in one place give one pixel.
    StepLine(double x1, double y1, double x2, double y2);

    bool YDrives = false;
    /// 1 or -1.
    int Step = 1;
    /// The first pixel along the driving axis.
    int Start = 0;
    int Steps = 0;  ///< the number of the last pixel; the first is 0
    bool StartsHalfWay = false;
    bool StepsAreExact = true;

    /// Where the line crosses, to within a billionth of a pixel.
    double Crossing(int k) const { return otherFrom_ + k * slope_; }

    /// The same rounded to a pixel, without any error.
    int At(int k) const;

    /// Whether the lines start in one place and go one way.
    bool IsAlike(const StepLine& line) const {
        return YDrives == line.YDrives && Step == line.Step && Start == line.Start;
    }

private:
    int ExactlyAt(int k) const;

    double otherFrom_ = 0;
    double otherSpan_ = 0;
    double span_ = 0;
    double slope_ = 0;  // by step
};

/// A number known to be small, rounded half to even.
inline double RoundSmall(double value) {
    constexpr double noFraction = 6755399441055744.0;  // 1.5 * 2^52, at which a double has none
    return (value + noFraction) - noFraction;
}

inline int StepLine::At(int k) const {
    constexpr double surelyNoTie = 0.49999;
    const double crossing = Crossing(k);
    const double whole = RoundSmall(crossing);
    const double rest = crossing - whole;
    return rest < surelyNoTie && rest > -surelyNoTie ? static_cast<int>(whole) : ExactlyAt(k);
}

}  // namespace drawing
