#pragma once

#include "ctl/Command.h"
#include "timezones/TimeZoneRecord.h"

namespace ctl {

/// The zone of that name. One that no zone has counts as GMT, and standard error tells so, with the
/// nearest name that there is.
TimeZoneRecord FindAndTell(const Context& context, const QString& name);

/// Tells a notice about a zone or the zones; nothing where it is empty.
void TellNotice(const QString& notice);

}  // namespace ctl
