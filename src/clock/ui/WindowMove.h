#pragma once

#include <QPointF>

#include "clock/ui/MdiPlacement.h"

namespace clockcore {

/// The window of a clock, moved by its ground. One in a shell moves within the shell's area, where
/// the pointer stays within what is seen of it; one that stands alone is left to the desktop where
/// that moves windows itself.
class WindowMove {
public:
    /// Both outlive the move. @param area null for a clock that stands alone
    WindowMove(MdiPlacement& placement, const QMdiArea* area)
        : placement_(placement), area_(area) {}

    /// Whether there is anything to move: a maximised window stays.
    bool CanMove() const { return placement_.WindowState() == 0; }
    /// @return true when the desktop has taken the move over, up to its end
    bool Begin();
    /// @param way from the press to the pointer, in logical pixels of the screen
    /// @param pointer on the screen
    void Follow(const QPointF& way, const QPointF& pointer);
    void TakeBack();

private:
    MdiPlacement& placement_;
    const QMdiArea* area_;
    QPoint start_;  ///< of the outer window
};

}  // namespace clockcore
