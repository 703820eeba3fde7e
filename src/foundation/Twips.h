#pragma once

/// Windows are measured in twips: 1440 to the inch, 15 to a logical pixel, whatever the screen.
/// A device pixel is `TwipsPerPixel` divided by the screen's device pixel ratio.
inline constexpr double TwipsPerPixel = 15;
