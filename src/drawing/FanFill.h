#pragma once

#include <QPoint>

#include "drawing/Surface.h"

namespace drawing {

/// The pixels of a fan of stepping lines from @p hub to the edge between @p from and @p to, which
/// is walked by half pixels along its longer axis (y when they are equal).
///
/// The lines cover most pixels many times. Here each is written once: of all lines of a fan that
/// drive the same way, those that reach a given row (or column) lie side by side there, less than a
/// pixel apart, so that they fill it from the first such line to the last. What lies outside of the
/// clip is not even computed.
void FillFan(Surface& surface, const QPoint& hub, const QPoint& from, const QPoint& to, int colour);

}  // namespace drawing
