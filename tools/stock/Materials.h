#pragma once

#include "Shade.h"

/// Surfaces to stand behind a clock: each is the colour of a place, evenly lit from the upper left.
namespace stock {

Colour Walnut(double x, double y);
Colour WhiteMarble(double x, double y);
Colour BrushedAluminium(double x, double y);
Colour Parchment(double x, double y);
Colour CarbonFibre(double x, double y);
Colour FrostedGlass(double x, double y);
Colour CopperPatina(double x, double y);
Colour MotherOfPearl(double x, double y);
Colour Dusk(double x, double y);
Colour DeepSea(double x, double y);

/// Rays brushed from the middle outward, which throw the light back in two opposite fans. From
/// @p light in the fans over @p body between them to @p rim at the edge.
struct SunburstTones {
    Colour Light, Body, Rim;
};
Colour Sunburst(double x, double y, const SunburstTones& tones);

/// A sky full of stars with a faint galaxy through it.
QImage NightSky();

}  // namespace stock
