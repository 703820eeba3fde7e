#pragma once

#include <algorithm>

#include "drawing/Surface.h"

namespace drawing {

/// A surface as a stepping line sees it: `major` runs along the driving axis, `minor` across it.
/// Fills one colour, within the surface's clip.
class PixelGrid {
public:
    /// @param yDrives whether the driving axis is the vertical one
    /// @param colour red in the low byte
    PixelGrid(Surface& surface, bool yDrives, int colour)
        : pixels_(surface.Row(0)),
          majorStride_(yDrives ? surface.Stride() : 1),
          minorStride_(yDrives ? 1 : surface.Stride()),
          rgb_(ToRgb(colour)) {
        const QRect& clip = surface.Clip();
        MajorFirst = yDrives ? clip.top() : clip.left();
        MajorLast = yDrives ? clip.bottom() : clip.right();
        MinorFirst = yDrives ? clip.left() : clip.top();
        MinorLast = yDrives ? clip.right() : clip.bottom();
    }

    int MajorFirst, MajorLast, MinorFirst, MinorLast;  ///< the clip

    /// The numbers of those pixels, out of 0 to @p steps, that lie within the clip along the major
    /// axis; the first is above the last when there is none.
    std::pair<int, int> StepsWithin(int start, int step, int steps) const {
        return step > 0
                   ? std::pair(std::max(0, MajorFirst - start), std::min(steps, MajorLast - start))
                   : std::pair(std::max(0, start - MajorLast), std::min(steps, start - MajorFirst));
    }

    /// Fills from one pixel to another across the driving axis, both included. @p major lies within
    /// the clip.
    /// What lies outside of the clip is left out; nothing is filled when @p from lies beyond @p to.
    void Fill(int major, int from, int to) {
        const int last = std::min(to, MinorLast);
        int minor = std::max(from, MinorFirst);
        QRgb* pixel = pixels_ + major * majorStride_ + minor * minorStride_;
        for (; minor <= last; ++minor, pixel += minorStride_) {
            *pixel = rgb_;
        }
    }

private:
    QRgb* pixels_;
    std::ptrdiff_t majorStride_, minorStride_;
    QRgb rgb_;
};

}  // namespace drawing
