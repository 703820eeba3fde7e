#pragma once

#include <QByteArray>
#include <QString>
#include <QTimeZone>

/// Where the tz database lies. The environment variable TZDIR names its folder, as it does for the
/// C library, from which the wall clock takes its offset; else it is the machine's.
namespace platform {

/// The zone of an identifier such as "Europe/Paris"; an invalid one where the database has none. An
/// empty identifier is the machine's own zone.
QTimeZone TzZone(const QByteArray& iana);

/// What a file of the database holds, such as "zone.tab"; empty when there is none.
QByteArray TzFile(const QString& name);

/// The edition of the database, such as "2025b"; empty when it does not tell.
QString TzEdition();

}  // namespace platform
