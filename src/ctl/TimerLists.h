#pragma once

#include "ctl/Command.h"

namespace ctl {

/// "timers next": the timers of all clocks below the program folder, or of the one that "--zone"
/// names, the soonest first. Nothing is written.
///
///     [{"zone":"London","file":"...","time":"15:10","message":"Tea",
///       "at":"2026-06-15T14:10:00Z","action":"None"}]
///
/// A timer that stands for either half of the day is told with the half that comes next.
int TimersNext(Context& context);

/// "timers log": what became of timers, the oldest first; with "--last" the last so many.
int TimersLog(Context& context);

}  // namespace ctl
