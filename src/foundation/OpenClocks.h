#pragma once

#include "foundation/Forms.h"

namespace mduLib {

/// The caption of the clock of a zone: the name of its file, without the extension.
QString ClockCaption(const QString& zoneName);

/// The open clock of that zone, however its name is written, "UTC" or "UTC.ini"; null if there is
/// none. A file belongs to one clock at a time.
IForm* FindClock(const Forms& windows, const QString& zoneName);

/// Shows a window, a minimised one in its normal size, and gives it the focus.
void BringToFront(IForm& window);

}  // namespace mduLib
