#pragma once

#include <QDateTime>
#include <QString>

#include "platform/ZoneDatabase.h"

/// The text form of the "Start Time" keys: a rule as "1.0.4 2:00:00" (occurrence, weekday, month
/// and time) or a date as "25/03/2008 2:00:00".
namespace mduTimeZones {

QString TransitionText(const platform::SYSTEMTIME& transition, const QDate& today);

/// Reads the rule form over @p transition and makes it a date in the year of @p today; all zeros
/// stay a zone without daylight time. The second number of the text overwrites the first and the
/// weekday keeps its value, so the occurrence is lost: "1.0.4 2:00:00" over a Sunday gives the last
/// Sunday of April. The last number has no delimiter behind it and gives 0.
platform::SYSTEMTIME ParseTransitionText(const QString& text, platform::SYSTEMTIME transition,
                                         const QDate& today);

/// The reader for the list of profiles: a date and time only; any other text, the rule form
/// included, gives all zeros. On a platform other than NT a text holding "/" is not parsed.
platform::SYSTEMTIME ParseTransitionDate(const QString& text, bool isNT, const QDate& today);

/// Makes @p transition that moment in the absolute form; `wDayOfWeek` stays as it was.
void TakeMoment(platform::SYSTEMTIME& transition, const QDateTime& moment);

}  // namespace mduTimeZones
