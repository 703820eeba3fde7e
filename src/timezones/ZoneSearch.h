#pragma once

#include <QStringList>

#include "timezones/TimeZoneRecord.h"

/// Finding zones while one types.
namespace mduTimeZones {

/// Lower case, without accents: "São Tomé" gives "sao tome", "Łódź" gives "lodz".
QString FoldForSearch(const QString& text);

/// All that a zone is found by: its names, cities and countries and its standard offset, as
/// "GMT+05:30", "GMT+5:30" and the same with "UTC".
QString ZoneSearchText(const TimeZoneRecord& record, const QStringList& countries);

/// The words of what was typed, ready for `IsFound`.
QStringList SearchWords(const QString& typed);

/// Whether each word stands somewhere in the text; no words find everything.
bool IsFound(const QString& searchText, const QStringList& words);

}  // namespace mduTimeZones
