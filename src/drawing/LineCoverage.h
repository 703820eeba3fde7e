#pragma once

#include <QRect>
#include <algorithm>
#include <cmath>
#include <utility>

namespace drawing {

/// How much of each pixel a straight line of some width covers, by the distance of the pixel's
/// centre from the line: full within the half-width less half a pixel, falling to nothing over the
/// next pixel. Ends are pixel centres; a hairline ends square, a wider line round.
///
/// `Surface::Line` walks it row by row; what it finds it lays over the pixel in that share:
///
///     const LineCoverage line(10, 10, 90, 40, 3);
///     for (int y = line.Bounds().top(); y <= line.Bounds().bottom(); ++y) {
///         const auto [from, to] = line.Span(y);
///         const LineCoverage::Row row(line, y);
///         for (int x = from; x <= to; ++x) { ... row.At(x) ... }
///     }
///
/// It knows nothing of a surface: the bounds may lie outside of any.
class LineCoverage {
public:
    /// @param width in pixels; below 1 it counts as 1. Two ends in one place give a dot.
    LineCoverage(int x1, int y1, int x2, int y2, int width)
        : x1_(static_cast<float>(x1)),
          y1_(static_cast<float>(y1)),
          round_(width > 1),
          reach_(static_cast<float>(std::max(1, width)) / 2 + 0.5F) {
        const float dx = static_cast<float>(x2) - x1_;
        const float dy = static_cast<float>(y2) - y1_;
        length_ = std::hypot(dx, dy);
        if (length_ > 0) {
            ux_ = dx / length_;
            uy_ = dy / length_;
        }
        const int margin = static_cast<int>(std::ceil(reach_));
        bounds_ = QRect(QPoint(std::min(x1, x2) - margin, std::min(y1, y2) - margin),
                        QPoint(std::max(x1, x2) + margin, std::max(y1, y2) + margin));
    }

    /// Every pixel that may be covered lies in here.
    const QRect& Bounds() const { return bounds_; }

    /// The first and last pixel of a row that may be covered. They are cut to `Bounds`; the first
    /// may lie beyond the last, where the row is not touched. A level line, and a dot, gives all of
    /// the bounds' width.
    /// @param y a row of `Bounds`
    std::pair<int, int> Span(int y) const {
        constexpr float nearlyLevel = 0.01F;
        if (std::abs(uy_) < nearlyLevel) {
            return {bounds_.left(), bounds_.right()};
        }
        const float middle = x1_ + (static_cast<float>(y) - y1_) * ux_ / uy_;
        const float half = reach_ / std::abs(uy_) + 1;  // the ends lie within the strip, too
        return {std::max(bounds_.left(), static_cast<int>(std::floor(middle - half))),
                std::min(bounds_.right(), static_cast<int>(std::ceil(middle + half)))};
    }

    /// One row of pixels. It refers to the line, which must outlive it.
    class Row {
    public:
        Row(const LineCoverage& line, int y)
            : line_(line),
              across_(-line.x1_ * line.uy_ - (static_cast<float>(y) - line.y1_) * line.ux_),
              along_(-line.x1_ * line.ux_ + (static_cast<float>(y) - line.y1_) * line.uy_) {}

        /// The covered part of a pixel, of 256.
        /// @param x any pixel of the row; outside of `Span` the part is 0
        unsigned At(int x) const {
            const float at = static_cast<float>(x);
            const float across = std::abs(across_ + at * line_.uy_);
            const float along = along_ + at * line_.ux_;
            const float beyond = std::max(-along, along - line_.length_);
            const float part = line_.reach_ - (beyond <= 0 ? across : line_.End(across, beyond));
            return part >= 1 ? 256 : part <= 0 ? 0 : static_cast<unsigned>(part * 256);
        }

    private:
        const LineCoverage& line_;
        float across_, along_;  // of the row's pixel 0
    };

private:
    /// The distance of a pixel that lies @p beyond an end.
    float End(float across, float beyond) const {
        return round_ ? std::sqrt(across * across + beyond * beyond) : std::max(across, beyond);
    }

    float x1_, y1_;
    bool round_;
    float reach_;  // half the width and half a pixel
    float length_ = 0;
    float ux_ = 1, uy_ = 0;  // the line's direction
    QRect bounds_;
};

}  // namespace drawing
