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
///
///     {
///         LineBundle bundle(surface, colour, 1e-9);
///         for (int k = 0; k <= 100; ++k) {
///             bundle.Add(10 + 0.5 * k, 20, 60 + 0.5 * k, 180);
///         }
///     }  // all of them are drawn by now
class LineBundle {
public:
    /// @param colour red in the low byte
    /// @param noise in pixels: how far a point may be from its even place
    LineBundle(Surface& surface, int colour, double noise)
        : surface_(surface), colour_(colour), noise_(noise) {}
    ~LineBundle() { Flush(); }
    Q_DISABLE_COPY_MOVE(LineBundle)

    /// Adds the next line, in device pixels. What is drawn, and when, is only certain once the
    /// bundle has gone: a line that starts in another row or goes another way draws those before
    /// it.
    void Add(double x1, double y1, double x2, double y2);

private:
    /// Draws a line by itself that starts exactly half-way between two rows.
    void PlotHalfWay(const StepLine& line, double from);
    /// Draws all lines of the sheaf and forgets them.
    void Flush();
    /// Whether the sheaf misses the clip at all of these steps, and nothing is to be filled.
    bool IsOutside(const PixelGrid& grid, int first, int last) const;
    void FillStep(PixelGrid& grid, int k) const;
    void FillEachAt(PixelGrid& grid, int k) const;
    /// What the longer lines have beyond the shortest one.
    void PlotEnds(PixelGrid& grid, int firstStep) const;

    Surface& surface_;
    int colour_;
    double noise_;
    std::vector<StepLine> lines_;  // alike, not yet drawn
};

}  // namespace drawing
