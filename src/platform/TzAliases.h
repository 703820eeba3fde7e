#pragma once

#include <QByteArray>

namespace platform {

/// The identifier under which CLDR keeps a zone that the tz database also calls by another name:
/// "Asia/Kolkata" gives "Asia/Calcutta", "US/Pacific" gives "America/Los_Angeles". Empty when the
/// identifier is no such name.
QByteArray TzCldrId(const QByteArray& iana);

/// The way back, for zones that the tz database has renamed: "Asia/Calcutta" gives "Asia/Kolkata".
QByteArray TzPresentId(const QByteArray& cldrId);

}  // namespace platform
