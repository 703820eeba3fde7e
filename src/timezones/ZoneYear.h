#pragma once

#include <QDate>

#include "foundation/ClockProperty.h"

namespace mduTimeZones {

/// Whether the zone keys of a file hold the days of another year than that of @p today, so that
/// they are to be made anew. A yearly rule, a zone without daylight time and other texts hold for
/// every year; so do New Year's Day and New Year's Eve at midnight, which stand for an end of
/// daylight time that its year does not know.
bool IsOfAnotherYear(const ClockProperties& properties, const QDate& today);

}  // namespace mduTimeZones
