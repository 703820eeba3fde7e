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

/// How well what was typed fits a row, 0 being best: its name is just that, begins with it as a
/// whole word, begins with it, has a word that does, its cities have; or it is found otherwise.
int MatchRank(const QString& name, const QString& displayName, const QStringList& words);

/// Whether each word stands somewhere in the text; no words find everything.
bool IsFound(const QString& searchText, const QStringList& words);

}  // namespace mduTimeZones
