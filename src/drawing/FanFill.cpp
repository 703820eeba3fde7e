#include "drawing/FanFill.h"

#include <cmath>
#include <cstdint>

#include "drawing/PixelGrid.h"
#include "drawing/StepLine.h"

namespace drawing {

namespace {

/// The lines of a fan by their number, 0 to `Last`.
class Fan {
public:
    Fan(const QPoint& hub, const QPoint& from, const QPoint& to)
        : hub_(hub),
          from_(from),
          edge_(to - from),
          alongX_(std::abs(edge_.x()) > std::abs(edge_.y())),
          extent_(alongX_ ? edge_.x() : edge_.y()) {}

    int Last() const { return 2 * std::abs(extent_); }

    StepLine Line(int i) const {
        const double walked = (extent_ < 0 ? -0.5 : 0.5) * i;
        const double x = alongX_ ? from_.x() + walked : Followed(walked, edge_.x()) + from_.x();
        const double y = alongX_ ? Followed(walked, edge_.y()) + from_.y() : from_.y() + walked;
        return {static_cast<double>(hub_.x()), static_cast<double>(hub_.y()), x, y};
    }

    /// Whether the directions of neighbouring lines differ by more than what is lost in rounding;
    /// otherwise it can't be told which of them is the outermost where they pass half-way between
    /// two pixels.
    bool LinesAreApart() const {
        const QPoint arm = from_ - hub_;
        const auto cross = static_cast<std::int64_t>(arm.x()) * edge_.y() -
                           static_cast<std::int64_t>(arm.y()) * edge_.x();
        const double reach = std::max(arm.manhattanLength(), (arm + edge_).manhattanLength());
        constexpr double lost = 2e-14;
        return static_cast<double>(std::abs(cross)) >
               lost * std::abs(extent_) * reach * reach * reach;
    }

private:
    double Followed(double walked, int otherExtent) const {
        return extent_ == 0 ? 0 : walked * otherExtent / extent_;
    }

    QPoint hub_, from_, edge_;
    bool alongX_;
    int extent_;
};

void FillLine(Surface& surface, const StepLine& line, int colour) {
    PixelGrid grid(surface, line.YDrives, colour);
    const auto [first, last] = grid.StepsWithin(line.Start, line.Step, line.Steps);
    for (int k = first; k <= last; ++k) {
        const int minor = line.At(k);
        grid.Fill(line.Start + line.Step * k, minor, minor);
    }
}

/// Lines @p i to @p end, all of which drive the same way. They grow longer towards one end: a step
/// is reached by the lines from some number on to that end.
void FillRun(Surface& surface, const Fan& fan, int i, int end, int colour) {
    StepLine inner = fan.Line(i);
    StepLine outer = fan.Line(end);
    if (inner.Steps > outer.Steps) {
        std::swap(inner, outer);
        std::swap(i, end);
    }
    const int towardsEnd = i < end ? 1 : -1;
    PixelGrid grid(surface, outer.YDrives, colour);
    const auto [first, last] = grid.StepsWithin(outer.Start, outer.Step, outer.Steps);
    for (int k = first; k <= last; ++k) {
        while (inner.Steps < k) {
            i += towardsEnd;
            inner = fan.Line(i);
        }
        const auto [from, to] = std::minmax({inner.At(k), outer.At(k)});
        grid.Fill(outer.Start + outer.Step * k, from, to);
    }
}

/// The last line from @p i on that drives as line @p i does. The directions that drive the same way
/// make up a quarter turn: what lies between two of them belongs to it, too.
int EndOfRun(const Fan& fan, int i) {
    const StepLine first = fan.Line(i);
    if (fan.Line(fan.Last()).IsAlike(first)) {
        return fan.Last();
    }
    while (i < fan.Last() && fan.Line(i + 1).IsAlike(first)) {
        ++i;
    }
    return i;
}

bool IsWithinReach(const Surface& surface, const QPoint& a, const QPoint& b, const QPoint& c) {
    const auto [left, right] = std::minmax({a.x(), b.x(), c.x()});
    const auto [top, bottom] = std::minmax({a.y(), b.y(), c.y()});
    return surface.Clip().intersects(QRect(QPoint(left, top), QPoint(right, bottom)));
}

}  // namespace

void FillFan(Surface& surface, const QPoint& hub, const QPoint& from, const QPoint& to,
             int colour) {
    if (!IsWithinReach(surface, hub, from, to)) {
        return;
    }
    const Fan fan(hub, from, to);
    const bool apart = fan.LinesAreApart();
    for (int i = 0; i <= fan.Last(); ++i) {
        if (apart) {
            const int end = EndOfRun(fan, i);
            FillRun(surface, fan, i, end, colour);
            i = end;
        } else {
            FillLine(surface, fan.Line(i), colour);
        }
    }
}

}  // namespace drawing
