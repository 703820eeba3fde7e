#include "drawing/LineBundle.h"

#include <cmath>

#include "drawing/PixelPrimitives.h"
#include "foundation/Numbers.h"

namespace drawing {

void LineBundle::Add(double x1, double y1, double x2, double y2) {
    const StepLine line(x1, y1, x2, y2);
    if (!line.StepsAreExact) {
        DrawPixelLine(surface_, x1, y1, x2, y2, 1, colour_);
        return;
    }
    if (line.StartsHalfWay) {
        PlotHalfWay(line, line.YDrives ? y1 : x1);
        return;
    }
    if (!lines_.empty() && !lines_.back().IsAlike(line)) {
        Flush();
    }
    lines_.push_back(line);
}

// Such a line steps on even rows (or columns) only, where two steps meet.
void LineBundle::PlotHalfWay(const StepLine& line, double from) {
    PixelGrid grid(surface_, line.YDrives, colour_);
    const auto [first, last] = grid.StepsWithin(line.Start, line.Step, line.Steps);
    for (int k = std::max(0, first - 1); k <= std::min(line.Steps, last + 1); ++k) {
        const int major = mduAPILib::RoundToInteger(from + line.Step * k);
        if (major >= grid.MajorFirst && major <= grid.MajorLast) {
            const int minor = line.At(k);
            grid.Fill(major, minor, minor);
        }
    }
}

void LineBundle::Flush() {
    if (lines_.empty()) {
        return;
    }
    const auto shorter = [](const StepLine& a, const StepLine& b) { return a.Steps < b.Steps; };
    const StepLine& shortest = *std::min_element(lines_.begin(), lines_.end(), shorter);
    PixelGrid grid(surface_, shortest.YDrives, colour_);
    const auto [first, last] = grid.StepsWithin(shortest.Start, shortest.Step, shortest.Steps);
    if (first <= last && !IsOutside(grid, first, last)) {
        for (int k = first; k <= last; ++k) {
            FillStep(grid, k);
        }
    }
    PlotEnds(grid, shortest.Steps + 1);
    lines_.clear();
}

bool LineBundle::IsOutside(const PixelGrid& grid, int first, int last) const {
    const StepLine& one = lines_.front();
    const StepLine& other = lines_.back();
    const auto [least, most] = std::minmax(
        {one.Crossing(first), one.Crossing(last), other.Crossing(first), other.Crossing(last)});
    const double margin = noise_ + 1;
    return most < grid.MinorFirst - margin || least > grid.MinorLast + margin;
}

void LineBundle::FillStep(PixelGrid& grid, int k) const {
    const double one = lines_.front().Crossing(k);
    const double other = lines_.back().Crossing(k);
    const double onePixel = RoundSmall(one);
    const double otherPixel = RoundSmall(other);
    const double sure = 0.5 - noise_;
    if (std::abs(one - onePixel) < sure && std::abs(other - otherPixel) < sure) {
        const auto [from, to] = std::minmax(onePixel, otherPixel);
        grid.Fill(lines_.front().Start + lines_.front().Step * k, static_cast<int>(from),
                  static_cast<int>(to));
    } else {
        FillEachAt(grid, k);
    }
}

void LineBundle::FillEachAt(PixelGrid& grid, int k) const {
    int from = lines_.front().At(k);
    int to = from;
    for (const StepLine& line : lines_) {
        const int minor = line.At(k);
        from = std::min(from, minor);
        to = std::max(to, minor);
    }
    grid.Fill(lines_.front().Start + lines_.front().Step * k, from, to);
}

void LineBundle::PlotEnds(PixelGrid& grid, int firstStep) const {
    for (const StepLine& line : lines_) {
        const auto [first, last] = grid.StepsWithin(line.Start, line.Step, line.Steps);
        for (int k = std::max(first, firstStep); k <= last; ++k) {
            const int minor = line.At(k);
            grid.Fill(line.Start + line.Step * k, minor, minor);
        }
    }
}

}  // namespace drawing
