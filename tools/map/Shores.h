#pragma once

#include <QPainterPath>
#include <optional>

/// The world's shores as paths in degrees: x is the longitude, y the latitude.
namespace map {

struct Shores {
    QPainterPath Land;
    QPainterPath Isles;  ///< land as well, too small to have shallows
    QPainterPath Water;  ///< lakes, which lie over the land
};

/// Reads the table of shores; nothing when a line of it can't be understood. The outlines get the
/// small bays between the places of the table, always the same ones.
std::optional<Shores> ReadShores(const QString& file);

}  // namespace map
