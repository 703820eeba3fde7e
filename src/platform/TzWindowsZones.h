#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace platform {

/// A zone by its CLDR name and the cities that stand for it.
struct TzWindowsZone {
    QString Name;    ///< "Eastern Standard Time"; at most 31 characters
    QString Cities;  ///< "New York, Toronto, Detroit"; the best known first
};

/// All of them, from the Date Line eastward.
std::vector<TzWindowsZone> TzWindowsZones();

/// The tz identifier that keeps the time of that zone: CLDR's default, or its present spelling
/// where the machine knows only that. Empty for a name that is not in the table.
QByteArray TzDefaultIana(const QString& name);

/// The CLDR name of a tz identifier, which may be an alias or a newer spelling: "Asia/Kolkata" and
/// "Asia/Calcutta" both give "India Standard Time". Empty when it has none.
QString TzWindowsName(const QByteArray& iana);

}  // namespace platform
