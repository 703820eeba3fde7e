#include "clock/ui/WindowOutline.h"

#include <algorithm>
#include <cmath>

#include "foundation/Numbers.h"

namespace clockcore {

QRect CentredPart(const QRect& whole, double part) {
    const auto extent = [part](int full) {
        return std::max(1, static_cast<int>(std::nearbyint(full * part)));
    };
    QRect middle(0, 0, extent(whole.width()), extent(whole.height()));
    middle.moveCenter(whole.center());
    return middle;
}

QRegion ToLogicalPixels(const QRegion& devicePixels, double ratio) {
    if (ratio == 1.0) {
        return devicePixels;
    }
    QRegion logical;
    for (const QRect& part : devicePixels) {
        const auto edge = [ratio](int value) { return mduAPILib::RoundToInteger(value / ratio); };
        const QPoint first(edge(part.left()), edge(part.top()));
        const QPoint behind(edge(part.right() + 1), edge(part.bottom() + 1));
        logical += QRect(first, behind - QPoint(1, 1));
    }
    return logical;
}

void WindowOutline::SetFigure(const QRegion& figure) {
    if (figure_ != figure) {
        figure_ = figure;
        Apply();
    }
}

void WindowOutline::SetRevealed(double part) {
    if (revealed_ != part) {
        revealed_ = part;
        Apply();
    }
}

// A mask that is not ours stays. A minimised window shows its bar whole, to be reached.
void WindowOutline::Apply() {
    QRegion mask = window_.isMinimized() ? QRegion() : figure_;
    if (revealed_ < 1) {
        const QRegion middle = CentredPart(window_.rect(), revealed_);
        mask = mask.isEmpty() ? middle : mask & middle;
    }
    const bool wasMasked = std::exchange(masked_, !mask.isEmpty());
    if (masked_) {
        window_.setMask(mask);
    } else if (wasMasked) {
        window_.clearMask();
        if (restore_) {
            restore_();
        }
    } else {
        return;
    }
    UpdateChildren();
}

// The toolkit paints a window anew where its mask has grown, but not the opaque children in it.
void WindowOutline::UpdateChildren() {
    for (QWidget* child : window_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        child->update();
    }
}

}  // namespace clockcore
