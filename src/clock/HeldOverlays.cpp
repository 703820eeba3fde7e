#include "clock/HeldOverlays.h"

namespace clockcore {

void HeldOverlays::Do(void (Overlays::*layOut)()) {
    if (held_ == nullptr) {
        (overlays_.*layOut)();
        return;
    }
    const auto left = held_->Left;
    const auto top = held_->Top;
    (overlays_.*layOut)();
    held_->Left = left;
    held_->Top = top;
}

}  // namespace clockcore
