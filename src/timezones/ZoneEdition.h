#pragma once

#include <QDate>
#include <QString>

/// The age of the zone database. Its edition is a year and a letter, "2025b"; a database that does
/// not tell its edition counts as neither old nor new.
namespace mduTimeZones {

/// Whether an edition is older than a year for certain. The letter tells no date, only the order,
/// so an edition counts from the last day on which it is likely to have come out: "a" from the end
/// of April of its year, "b" from the end of October, any other from the end of December. "2025b"
/// is old from 1 November 2026 on.
bool IsOldEdition(const QString& edition, const QDate& today);

/// "Time zone database: edition 2025b".
QString EditionText(const QString& edition);

/// What to tell the user about an old edition; empty while it is none.
QString OldEditionNotice(const QString& edition, const QDate& today);

}  // namespace mduTimeZones
