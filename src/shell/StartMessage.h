#pragma once

#include <QDateTime>

namespace shell {

/// What the shell says when it starts: "<date>" in @p pattern becomes the date as "MM/DD/YYYY",
/// "<Morning/Afternoon/Evening>" the time of day; the evening begins at 19 o'clock. Empty for an
/// empty pattern and for "0".
QString StartMessage(const QString& pattern, const QDateTime& now);

}  // namespace shell
