#pragma once

#include <vector>

#include "drawing/PixelGrid.h"
#include "drawing/StepLine.h"

namespace drawing {

/// Draws a sheaf of parallel stepping lines in one colour: the same pixels as `DrawPixelLine` for
/// each, with far fewer writes.
///
/// The lines come in order. Each lies evenly beside the last, by less than 0.9 pixels, but for
/// @p noise, by which its points may be off. Lines that start in the same row (or column) then
/// fill, at each step, all that lies between the first and the last of them; only where one of
/// these two passes half-way between two pixels, to within the noise, each line has to be asked.
class LineBundle {
public:
    LineBundle(Surface& surface, int colour, double noise)
        : surface_(surface), colour_(colour), noise_(noise) {}
    ~LineBundle() { Flush(); }
    Q_DISABLE_COPY_MOVE(LineBundle)

    void Add(double x1, double y1, double x2, double y2);

private:
    void PlotHalfWay(const StepLine& line, double from);
    void Flush();
    bool IsOutside(const PixelGrid& grid, int first, int last) const;
    void FillStep(PixelGrid& grid, int k) const;
    void FillEachAt(PixelGrid& grid, int k) const;
    void PlotEnds(PixelGrid& grid, int firstStep) const;

    Surface& surface_;
    int colour_;
    double noise_;
    std::vector<StepLine> lines_;  // alike, not yet drawn
};

}  // namespace drawing
