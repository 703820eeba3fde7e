#pragma once

#include <QImage>
#include <functional>

/// Pictures as functions: a shader tells the colour of each place, `Render` makes the image.
/// Places run from -1 to 1 in both directions, y downward. The light comes from the upper left.
namespace stock {

/// Side of a rendered picture in pixels.
constexpr int PictureSize = 1000;

/// A colour, each part from 0 to 1; sums may leave that range until the picture is made.
struct Colour {
    double Red = 0;
    double Green = 0;
    double Blue = 0;
};

Colour operator*(const Colour& colour, double factor);
Colour operator*(const Colour& one, const Colour& other);
Colour operator+(const Colour& one, const Colour& other);

/// 0xRRGGBB.
Colour Hex(unsigned rgb);
Colour Grey(double level);
Colour Mix(const Colour& from, const Colour& to, double share);
QColor ToQColor(const Colour& colour, double alpha = 1);

/// 0 below @p from, 1 above @p to, a soft way between; @p from may be the larger.
double Soft(double from, double to, double value);

/// A soft hill of height 1 and the given half-width around @p middle.
double Hill(double middle, double width, double value);

using Shader = std::function<Colour(double x, double y)>;

/// Four samples a pixel, and a grain finer than one step of colour so that no gradient shows bands.
QImage Render(const Shader& shader, std::uint32_t seed);

/// Brightness that falls by @p depth from the middle to the corners.
double Vignette(double x, double y, double depth);

}  // namespace stock
