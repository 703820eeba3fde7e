#pragma once

#include <QEvent>

/// What all that is dragged on a clock with the mouse, parts and timers' marks, has in common.
namespace clockcore {

/// Whether events of that type take the window away from under a drag, which is then taken back:
/// another size or state, a window that is hidden, closed, disabled or behind another.
bool EndsDrags(QEvent::Type type);

/// The desktop's way that a press has to go before it is a drag, for `IsDrag`, in logical pixels.
double DragThreshold();

}  // namespace clockcore
