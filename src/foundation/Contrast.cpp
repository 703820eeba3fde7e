#include "foundation/Contrast.h"

#include <algorithm>
#include <cmath>

namespace mduUILib {

namespace {

// The light that a component of 0 to 1 gives off, by the curve of a screen.
double Linear(double component) {
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

}  // namespace

double ContrastRatio(const QColor& text, const QColor& ground) {
    constexpr double stray = 0.05;  // light that a screen reflects
    const double one = Luminance(text) + stray;
    const double other = Luminance(ground) + stray;
    return std::max(one, other) / std::min(one, other);
}

QColor ReadableShade(const QColor& text, const QColor& ground) {
    constexpr double enough = 4.5;
    constexpr int steps = 50;
    const QColor end = ReadableOn(ground);
    const auto between = [&](int from, int to, int step) {
        return from + (to - from) * step / steps;
    };
    QColor shade = text;
    for (int step = 1; step <= steps && ContrastRatio(shade, ground) < enough; ++step) {
        shade =
            QColor(between(text.red(), end.red(), step), between(text.green(), end.green(), step),
                   between(text.blue(), end.blue(), step));
    }
    return shade;
}

QColor ReadableOn(const QColor& ground) {
    const QColor black = Qt::black;
    const QColor white = Qt::white;
    return ContrastRatio(white, ground) > ContrastRatio(black, ground) ? white : black;
}

}  // namespace mduUILib
