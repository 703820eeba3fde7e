#pragma once

#include "foundation/Forms.h"

namespace mduLib {

/// The caption of the clock of a zone: the name of its file, without the extension.
QString ClockCaption(const QString& zoneName);

/// The open clock of that zone, however its name is written, "UTC" or "UTC.ini"; null if there is
/// none. A file belongs to one clock at a time.
IForm* FindClock(const Forms& windows, const QString& zoneName);

}  // namespace mduLib
