#include "Shade.h"

#include <QColor>
#include <algorithm>
#include <cmath>

#include "Noise.h"

namespace stock {

namespace {

// Two hashes make a triangular grain, which hides steps of colour best.
int Level(double part, int x, int y, std::uint32_t seed) {
    const double grain = Hash(x, y, seed) + Hash(y, x, seed + 7) - 1;
    return static_cast<int>(std::clamp(std::floor(part * 255 + 0.5 + grain * 1.2), 0.0, 255.0));
}

Colour Sample(const Shader& shader, int column, int row) {
    Colour sum;
    for (const double dy : {0.25, 0.75}) {
        for (const double dx : {0.25, 0.75}) {
            const double x = (column + dx) * 2 / PictureSize - 1;
            const double y = (row + dy) * 2 / PictureSize - 1;
            sum = sum + shader(x, y) * 0.25;
        }
    }
    return sum;
}

}  // namespace

Colour operator*(const Colour& colour, double factor) {
    return {colour.Red * factor, colour.Green * factor, colour.Blue * factor};
}

Colour operator*(const Colour& one, const Colour& other) {
    return {one.Red * other.Red, one.Green * other.Green, one.Blue * other.Blue};
}

Colour operator+(const Colour& one, const Colour& other) {
    return {one.Red + other.Red, one.Green + other.Green, one.Blue + other.Blue};
}

Colour Hex(unsigned rgb) {
    return {(rgb >> 16 & 255U) / 255.0, (rgb >> 8 & 255U) / 255.0, (rgb & 255U) / 255.0};
}

Colour Grey(double level) {
    return {level, level, level};
}

Colour Mix(const Colour& from, const Colour& to, double share) {
    return from * (1 - share) + to * share;
}

QColor ToQColor(const Colour& colour, double alpha) {
    const auto part = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(part(colour.Red), part(colour.Green), part(colour.Blue), part(alpha));
}

double Soft(double from, double to, double value) {
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

double Hill(double middle, double width, double value) {
    const double t = (value - middle) / width;
    return std::exp(-t * t);
}

QImage Render(const Shader& shader, std::uint32_t seed) {
    QImage image(PictureSize, PictureSize, QImage::Format_RGB32);
    for (int row = 0; row < PictureSize; ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
        for (int column = 0; column < PictureSize; ++column) {
            const Colour colour = Sample(shader, column, row);
            line[column] =
                qRgb(Level(colour.Red, column, row, seed), Level(colour.Green, column, row, seed),
                     Level(colour.Blue, column, row, seed));
        }
    }
    return image;
}

double Vignette(double x, double y, double depth) {
    return 1 - depth * Soft(0.35, 1.5, std::hypot(x, y));
}

}  // namespace stock
