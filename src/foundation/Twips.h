#pragma once

/// Windows are measured in twips: 1440 to the inch, 15 to a logical pixel, whatever the screen.
inline constexpr double TwipsPerPixel = 15;
