#pragma once

#include <QImage>

namespace stock {

/// The whole earth across the picture, land as dots.
QImage WorldMap();

/// The earth seen from above the north pole, land as dots, in a ring for the numbers.
QImage PolarWorld();

}  // namespace stock
