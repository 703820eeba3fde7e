#pragma once

#include <QDateTime>
#include <QImage>

#include "platform/ZoneDatabase.h"

/// Where on the earth it is day. N is the day of the year.
namespace mduTimeZones {

/// The place that has the sun in its zenith at a moment of GMT: its latitude is the sun's
/// declination, -23.44 degrees * cos(360 / 365 * (N + 10)), its longitude follows from the hour and
/// the equation of time, 9.87 sin 2B - 7.53 cos B - 1.5 sin B minutes with B = 360 / 364 * (N -
/// 81).
platform::ZonePlace SunOver(const QDateTime& gmt);

/// The sine of the sun's height above the horizon of a place: 1 in the zenith, 0 on the horizon.
double SunHeight(const platform::ZonePlace& sun, const platform::ZonePlace& place);

/// How dark it is, from 0 by day to 1 by night; in between is the twilight, until the sun is 18
/// degrees below the horizon.
double Darkness(double sunHeight);

/// The night as a picture of the world from 180 W to 180 E, from pole to pole: clear by day, a dark
/// blue of the opacity @p strength (0 to 255) by night.
QImage NightPicture(const QDateTime& gmt, const QSize& size, int strength);

}  // namespace mduTimeZones
