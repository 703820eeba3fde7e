#include "timezones/SunShade.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "foundation/Numbers.h"

namespace mduTimeZones {

namespace {

constexpr double Radians = std::numbers::pi / 180;
constexpr double Tilt = 23.44;
constexpr double EndOfTwilight = -0.309017;  // the sine of -18 degrees

struct Rgb {
    int Red, Green, Blue;
};
constexpr Rgb nightColour = {6, 12, 40};

/// Runs from 0 at 0 to 1 at 1 with level ends.
double Smooth(double step) {
    return step * step * (3 - 2 * step);
}

QRgb NightAt(double darkness, int strength) {
    const int alpha = mduAPILib::RoundToInteger(darkness * strength);
    return qPremultiply(qRgba(nightColour.Red, nightColour.Green, nightColour.Blue, alpha));
}

}  // namespace

platform::ZonePlace SunOver(const QDateTime& gmt) {
    const double day = gmt.date().dayOfYear();
    const double declination = -Tilt * std::cos(Radians * 360 / 365 * (day + 10));
    const double b = Radians * 360 / 364 * (day - 81);
    const double minutesAhead = 9.87 * std::sin(2 * b) - 7.53 * std::cos(b) - 1.5 * std::sin(b);
    const double hours = gmt.time().msecsSinceStartOfDay() / 3600000.0 + minutesAhead / 60;
    return {declination, (12 - hours) * 15};
}

double SunHeight(const platform::ZonePlace& sun, const platform::ZonePlace& place) {
    return std::sin(Radians * place.Latitude) * std::sin(Radians * sun.Latitude) +
           std::cos(Radians * place.Latitude) * std::cos(Radians * sun.Latitude) *
               std::cos(Radians * (place.Longitude - sun.Longitude));
}

double Darkness(double sunHeight) {
    return Smooth(std::clamp(sunHeight / EndOfTwilight, 0.0, 1.0));
}

QImage NightPicture(const QDateTime& gmt, const QSize& size, int strength) {
    const platform::ZonePlace sun = SunOver(gmt);
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    std::vector<double> hourAngles;
    for (int x = 0; x < size.width(); ++x) {
        const double longitude = (x + 0.5) * 360 / size.width() - 180;
        hourAngles.push_back(std::cos(Radians * (longitude - sun.Longitude)));
    }
    for (int y = 0; y < size.height(); ++y) {
        const double latitude = Radians * (90 - (y + 0.5) * 180 / size.height());
        const double level = std::sin(latitude) * std::sin(Radians * sun.Latitude);
        const double swing = std::cos(latitude) * std::cos(Radians * sun.Latitude);
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (std::size_t x = 0; x < hourAngles.size(); ++x) {
            line[x] = NightAt(Darkness(level + swing * hourAngles[x]), strength);
        }
    }
    return picture;
}

}  // namespace mduTimeZones
