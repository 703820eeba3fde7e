#pragma once

#include <QRect>
#include <algorithm>
#include <cmath>
#include <utility>

namespace drawing {

/// How much of each pixel a straight line of some width covers, by the distance of the pixel's
/// centre from the line: full within the half-width less half a pixel, falling to nothing over the
/// next pixel. Ends are pixel centres; a hairline ends square, a wider line round.
class LineCoverage {
public:
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

    /// The first and last pixel of a row that may be covered.
    std::pair<int, int> Span(int y) const {
        constexpr float nearlyLevel = 0.01F;
        if (std::abs(uy_) < nearlyLevel) {
            return {bounds_.left(), bounds_.right()};
        }
        const float middle = x1_ + (static_cast<float>(y) - y1_) * ux_ / uy_;
        const float half = reach_ / std::abs(uy_) + reach_ + 1;
        return {std::max(bounds_.left(), static_cast<int>(std::floor(middle - half))),
                std::min(bounds_.right(), static_cast<int>(std::ceil(middle + half)))};
    }

    /// The covered part of a pixel, of 256.
    unsigned At(int x, int y) const {
        const float px = static_cast<float>(x) - x1_;
        const float py = static_cast<float>(y) - y1_;
        const float across = std::abs(px * uy_ - py * ux_);
        const float along = px * ux_ + py * uy_;
        const float beyond = std::max({-along, along - length_, 0.0F});
        float part = 0;
        if (beyond == 0.0F) {
            part = reach_ - across;
        } else if (round_) {
            part = reach_ - std::sqrt(across * across + beyond * beyond);
        } else {
            part = std::min(reach_ - across, reach_ - beyond);
        }
        return static_cast<unsigned>(std::clamp(part, 0.0F, 1.0F) * 256);
    }

private:
    float x1_, y1_;
    bool round_;
    float reach_;  // half the width and half a pixel
    float length_ = 0;
    float ux_ = 1, uy_ = 0;  // the line's direction
    QRect bounds_;
};

}  // namespace drawing
