#pragma once

#include "ctl/Command.h"

namespace ctl {

/// "zones instants FILE": the exact rules of many zones at many instants, for those who check all
/// of them. Each line of FILE is an instant in GMT and an identifier:
///
///     2026-10-25T01:30:00 America/New_York
///
/// Each answer is one object a line: `CurrentGMTHours`, `CurrentName` ("Standard" or "Daylight")
/// and `HoursFromLocal` at the instant; `local` and `zone`, what the clocks show; `texts`, what the
/// local time converts to, two readings where it is lived through twice. It is null, and the status
/// 1, for a line that can't be read and an identifier that the database does not know.
Command ZoneInstantsCommand();

}  // namespace ctl
