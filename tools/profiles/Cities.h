#pragma once

#include <QString>
#include <vector>

#include "platform/ZoneDatabase.h"

/// The cities that have a profile.
namespace profiles {

struct City {
    QString Name;     ///< unlike all others, whatever the case of its letters; fit for a file
    QString Country;  ///< its English name
    QByteArray Iana;
    platform::ZonePlace Place;
};

/// The capitals, the cities of a table of the tz database, and other great cities, in this order. A
/// city of the table goes by the last part of its identifier with blanks: "Asia/Ho_Chi_Minh" gives
/// "Ho Chi Minh". Of two cities of one name the later tells its country: "Georgetown (Malaysia)";
/// in the same country, the part of the identifier before it: "Monticello (Indiana)".
///
/// @p table holds lines of "countries TAB place TAB identifier"; others are left out, and so are
/// cities whose zone this machine does not know.
std::vector<City> ListCities(const QByteArray& table);

/// What a file's name, a property's value or a list of names can't hold is taken out of a name.
QString FitForFile(QString name);

}  // namespace profiles
